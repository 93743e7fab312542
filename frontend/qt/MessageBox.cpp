#include "frontend/qt/MessageBox.h"

#include "frontend/qt/ArrowCursor.h"
#include "frontend/qt/Text.h"
#include "panel/control/DialogHandler.h"

#include <QMessageBox>

namespace qt {

namespace {

// Bits of the style as numbered by the MessageBox function (winuser.h).
constexpr std::uint32_t kButtonBits = 0x0F;
constexpr std::uint32_t kIconBits = 0xF0;
constexpr std::uint32_t kYesNo = 0x04;

QMessageBox::Icon IconOf(std::uint32_t style) {
    switch (style & kIconBits) {
    case 0x10:
        return QMessageBox::Critical;
    case 0x20:
        return QMessageBox::Question;
    case 0x30:
        return QMessageBox::Warning;
    case 0x40:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QString WithPlainLineEnds(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}

std::int32_t ShowMessageBox(const std::string& text, const std::string& caption,
                            std::uint32_t style) {
    const bool isQuestion = (style & kButtonBits) == kYesNo;
    QMessageBox box;
    box.setObjectName(QStringLiteral("box"));
    box.setIcon(IconOf(style));
    box.setWindowTitle(ToTitle(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(WithPlainLineEnds(ToQt(text)));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setStandardButtons(isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (isQuestion) {
        box.setEscapeButton(QMessageBox::No);
    }
    const CArrowCursor arrow;
    const int pressed = box.exec();
    if (!isQuestion) {
        return panel::kOkButton;
    }
    return pressed == QMessageBox::Yes ? panel::kYesButton : panel::kNoButton;
}

}
