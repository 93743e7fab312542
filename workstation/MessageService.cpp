#include "workstation/MessageService.h"

#include "frontend/qt/ArrowCursor.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QTextEdit>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>

namespace workstation {

namespace {

// Bits of the style as numbered by the MessageBox function (winuser.h).
constexpr std::uint32_t kButtonBits = 0x0F;
constexpr std::uint32_t kIconBits = 0xF0;

struct ButtonSet {
    std::uint32_t style;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton escape;
};

const ButtonSet kButtonSets[] = {
    {0x00, QMessageBox::Ok, QMessageBox::Ok},
    {0x01, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel},
    {0x03, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel},
    {0x04, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
};

struct Icon {
    std::uint32_t style;
    QMessageBox::Icon icon;
};

constexpr Icon kIcons[] = {
    {0x10, QMessageBox::Critical},
    {0x20, QMessageBox::Question},
    {0x30, QMessageBox::Warning},
    {0x40, QMessageBox::Information},
};

struct Answer {
    QMessageBox::StandardButton button;
    std::int32_t number;
};

constexpr Answer kAnswers[] = {
    {QMessageBox::Ok, 1},
    {QMessageBox::Cancel, 2},
    {QMessageBox::Yes, 6},
    {QMessageBox::No, 7},
};

template <class Entry, std::size_t N, class Key>
const Entry* Find(const Entry (&table)[N], Key Entry::*member, Key key) {
    const Entry* const found = std::ranges::find(table, key, member);
    return found == std::end(table) ? nullptr : found;
}

QString ToLines(const std::string& text) {
    return QString::fromStdString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString DescribeFailure(const contract::Message& message) {
    const std::int32_t code = message.status.Code();
    char line[40];
    std::snprintf(line, sizeof line, "HRESULT 0x%08x (%d)", static_cast<std::uint32_t>(code), code);
    QString details = QString::fromLatin1(line);
    if (!message.description.empty()) {
        details += '\n' + ToLines(message.description);
    }
    return details;
}

void Fill(QMessageBox& box, const contract::Message& message, const ButtonSet& set) {
    box.setObjectName(QStringLiteral("message"));
    // Qt gives "[*]" in a title a meaning of its own.
    box.setWindowTitle(QString::fromStdString(message.caption).replace("[*]", "[*][*]"));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToLines(message.text));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (const Icon* const icon = Find(kIcons, &Icon::style, message.style & kIconBits)) {
        box.setIcon(icon->icon);
    }
    if (message.status != contract::kSuccess) {
        box.setDetailedText(DescribeFailure(message));
        // By default the keyboard can neither select nor copy there.
        box.findChild<QTextEdit*>()->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                                             Qt::TextSelectableByKeyboard);
    }
    // After the details, whose button would else count among those that Escape may press.
    box.setStandardButtons(set.buttons);
    box.setEscapeButton(set.escape);
}

}

contract::Status CMessageService::ShowMessage(const contract::Message& message,
                                              std::int32_t& button) {
    const ButtonSet* const set = Find(kButtonSets, &ButtonSet::style, message.style & kButtonBits);
    if (!set) {
        return contract::kUnspecifiedFailure;
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    // Its parent may end it while it waits.
    const QPointer<QMessageBox> box = new QMessageBox(dialog ? dialog : &m_window);
    Fill(*box, message, *set);
    const qt::CArrowCursor arrow;
    const auto pressed = static_cast<QMessageBox::StandardButton>(box->exec());
    delete box;
    const Answer* const answer = Find(kAnswers, &Answer::button, pressed);
    button = (answer ? answer : Find(kAnswers, &Answer::button, set->escape))->number;
    return contract::kSuccess;
}

}
