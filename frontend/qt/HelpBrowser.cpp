#include "frontend/qt/HelpBrowser.h"

#include "frontend/qt/Text.h"

#include <QTextFrame>
#include <QTextTable>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace qt {

namespace {

constexpr QLatin1String kScheme("topic");
constexpr int kPageMargin = 8; // pixels
constexpr int kCellPadding = 3;

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

QString PageOf(const help::HelpTopic& topic) {
    return QStringLiteral("# %1\n\n%2").arg(ToQt(topic.title), ToQt(topic.text));
}

}

void CHelpBrowser::ShowTopic(std::vector<help::HelpTopic> topics, std::uint32_t number) {
    m_topics = std::move(topics);
    const QUrl url = UrlOf(number);
    // A source that is set already would not be asked for again, though the file may have changed.
    if (source() == url) {
        reload();
    } else {
        setSource(url);
    }
}

void CHelpBrowser::ShowFault(const QString& text) {
    m_topics.clear();
    setPlainText(text);
}

QVariant CHelpBrowser::loadResource(int, const QUrl& name) {
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
    }
}

}
