#include "frontend/qt/HelpBrowser.h"

#include "frontend/qt/Text.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace qt {

namespace {

constexpr QLatin1String kScheme("topic");
constexpr int kPageMargin = 8; // pixels
constexpr int kCellPadding = 3;
constexpr int kParagraphGap = 6;

QUrl UrlOf(std::uint32_t number) { return QUrl(QStringLiteral("topic:%1").arg(number)); }

// Markdown's own tables leave no room between text and lines.
void SetApart(QTextDocument& page) {
    page.setDocumentMargin(kPageMargin);
    for (QTextFrame* const frame : page.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setCellPadding(kCellPadding);
            format.setTopMargin(kPageMargin);
            format.setBottomMargin(kPageMargin);
            table->setFormat(format);
        }
    }
}

// Nor does Markdown leave any between paragraphs; the items of a list stay together.
void SetParagraphsApart(QTextDocument& page) {
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        const bool isItem = block.textList() && block.next().textList() == block.textList();
        if (!cursor.currentTable() && !isItem) {
            QTextBlockFormat format = block.blockFormat();
            format.setBottomMargin(kParagraphGap);
            cursor.setBlockFormat(format);
        }
    }
}

QString PageOf(const help::HelpTopic& topic) {
    return QStringLiteral("# %1\n\n%2").arg(ToQt(topic.title), ToQt(topic.text));
}

// Any punctuation of ASCII may be escaped, whether it means something or not.
QString EscapeMarkdown(QString text) {
    static const QRegularExpression punctuation(QStringLiteral(R"(([!-/:-@[-`{-~]))"));
    return text.replace(punctuation, QStringLiteral(R"(\\1)"));
}

}

void CHelpBrowser::ShowTopic(std::vector<help::HelpTopic> topics, std::uint32_t number) {
    m_topics = std::move(topics);
    m_fault.clear();
    ShowPage(UrlOf(number));
}

void CHelpBrowser::ShowFault(const QString& text, std::uint32_t number) {
    m_topics.clear();
    m_fault = EscapeMarkdown(text);
    ShowPage(UrlOf(number));
}

void CHelpBrowser::ShowPage(const QUrl& url) {
    // A source that is set already would not be asked for again, though the file may have changed.
    if (source() == url) {
        reload();
    } else {
        setSource(url);
    }
}

QVariant CHelpBrowser::loadResource(int, const QUrl& name) {
    if (!m_fault.isEmpty()) {
        return m_fault;
    }
    const std::uint32_t number = name.path().toUInt();
    if (const help::HelpTopic* const topic = help::FindTopic(m_topics, number)) {
        return PageOf(*topic);
    }
    return QStringLiteral("There is no page %1 in this help.\n\n[First page](topic:1)").arg(number);
}

void CHelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType) {
    if (url.scheme() == kScheme) {
        QTextBrowser::doSetSource(url, QTextDocument::MarkdownResource);
        SetApart(*document());
        SetParagraphsApart(*document());
    }
}

}
