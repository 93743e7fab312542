#include "frontend/qt/HelpWindow.h"

#include "frontend/qt/Text.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <QVariant>

namespace qt {

namespace {

constexpr qint64 kLargestHelpBytes = 1 << 22;
constexpr QSize kWindowSize{520, 360};

QString ReadHelp(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("The help file was not found. It was looked for here:\n\n") + path;
    }
    return QString::fromUtf8(file.read(kLargestHelpBytes));
}

}

CHelpWindow::CHelpWindow() : m_text(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("help"));
    setWindowTitle(QStringLiteral("Help"));
    m_text->setObjectName(QStringLiteral("help-text"));
    m_text->setAccessibleName(QStringLiteral("Help"));
    m_text->setReadOnly(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    resize(kWindowSize);
}

void CHelpWindow::ShowTopic(const std::string& file, std::uint32_t context, QWidget* owner) {
    if (parentWidget() != owner) {
        setParent(owner, windowFlags());
    }
    setProperty("helpTopic", context);
    m_text->setPlainText(ReadHelp(ToQt(file)));
    show();
    raise();
    activateWindow();
}

}
