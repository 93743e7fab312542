#include "frontend/qt/HelpWindow.h"

#include "frontend/help/HelpFile.h"
#include "frontend/qt/HelpBrowser.h"
#include "frontend/qt/Text.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

#include <optional>

namespace qt {

namespace {

constexpr qint64 kLargestHelpBytes = 1 << 22;
constexpr QSize kWindowSize{640, 480};
constexpr const char* kFirstPage = "topic:1";

std::optional<QByteArray> ReadHelp(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.read(kLargestHelpBytes);
}

QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& text) {
    auto* const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    // Return follows the link that has the focus.
    button->setAutoDefault(false);
    row.addWidget(button);
    return button;
}

}

CHelpWindow::CHelpWindow() : m_browser(new CHelpBrowser(this)) {
    setObjectName(QStringLiteral("help"));
    setWindowTitle(QStringLiteral("Help"));
    m_browser->setObjectName(QStringLiteral("help-text"));
    m_browser->setAccessibleName(QStringLiteral("Help"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(MakeWays());
    layout->addWidget(m_browser);
    m_browser->setFocus();
    resize(kWindowSize);
}

QWidget* CHelpWindow::MakeWays() {
    auto* const ways = new QWidget(this);
    auto* const row = new QHBoxLayout(ways);
    row->setContentsMargins(0, 0, 0, 0);
    QPushButton* const first = AddButton(*row, "help-first", QStringLiteral("&First page"));
    QPushButton* const back = AddButton(*row, "help-back", QStringLiteral("&Back"));
    QPushButton* const forward = AddButton(*row, "help-forward", QStringLiteral("F&orward"));
    row->addStretch();
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(first, &QPushButton::clicked, m_browser,
            [this] { m_browser->setSource(QUrl(QLatin1String(kFirstPage))); });
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    return ways;
}

void CHelpWindow::ShowTopic(const std::string& file, std::uint32_t context, QWidget* owner) {
    BelongTo(owner);
    setProperty("helpTopic", context);
    const QString path = ToQt(file);
    if (const std::optional<QByteArray> text = ReadHelp(path)) {
        m_browser->ShowTopic(help::ParseHelp(text->toStdString()), context);
    } else {
        m_browser->ShowFault(
            QStringLiteral("The help file was not found. It was looked for here:\n\n") + path,
            context);
    }
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    show();
    raise();
    activateWindow();
}

void CHelpWindow::BelongTo(QWidget* owner) {
    if (parentWidget() == owner) {
        return;
    }
    if (parentWidget()) {
        parentWidget()->removeEventFilter(this);
    }
    const QRect place = geometry();
    setParent(owner, windowFlags());
    setGeometry(place);
    if (owner && owner->isModal()) {
        owner->installEventFilter(this);
    }
}

bool CHelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
        Outlive(*parentWidget());
    }
    return false;
}

// The dialog's owner is where the user goes on, so the focus stays there.
void CHelpWindow::Outlive(const QWidget& dialog) {
    const bool wasShown = isVisible();
    BelongTo(dialog.parentWidget());
    if (wasShown) {
        setAttribute(Qt::WA_ShowWithoutActivating);
        show();
    }
}

}
