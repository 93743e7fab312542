#include "tests/frontend/qt/QtViewUser.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextDocumentFragment>

#include <cctype>

namespace qttests {

namespace {

using panel::ControlId;

struct KeyCode {
    std::uint16_t virtualKey;
    Qt::Key key;
};

constexpr KeyCode kKeyCodes[] = {
    {0x23, Qt::Key_End},    {0x24, Qt::Key_Home},   {0x25, Qt::Key_Left},
    {0x26, Qt::Key_Up},     {0x27, Qt::Key_Right},  {0x28, Qt::Key_Down},
    {0x2D, Qt::Key_Insert}, {0x2E, Qt::Key_Delete}, {0x5D, Qt::Key_Menu},
};

Qt::Key ToKey(std::uint16_t virtualKey) {
    for (const KeyCode& code : kKeyCodes) {
        if (code.virtualKey == virtualKey) {
            return code.key;
        }
    }
    constexpr std::uint16_t kF1 = 0x70;
    return static_cast<Qt::Key>(virtualKey >= kF1 ? Qt::Key_F1 + virtualKey - kF1 : virtualKey);
}

QString WithoutMark(QString text) {
    for (qsizetype mark = text.indexOf('&'); mark >= 0; mark = text.indexOf('&', mark + 1)) {
        text.remove(mark, 1);
    }
    return text;
}

QString ShownBy(const QLabel& label) {
    const bool isMarkup = label.textFormat() == Qt::RichText ||
                          (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (isMarkup) {
        return QTextDocumentFragment::fromHtml(label.text()).toPlainText();
    }
    return label.buddy() ? WithoutMark(label.text()) : label.text();
}

QString ShownBy(QWidget& widget) {
    widget.grab(); // what is shown late is shown now
    if (const auto* const label = dynamic_cast<QLabel*>(&widget)) {
        return ShownBy(*label);
    }
    if (const auto* const button = dynamic_cast<QAbstractButton*>(&widget)) {
        return WithoutMark(button->text());
    }
    if (const auto* const box = dynamic_cast<QGroupBox*>(&widget)) {
        return WithoutMark(box->title());
    }
    if (const auto* const field = dynamic_cast<QLineEdit*>(&widget)) {
        return field->displayText();
    }
    if (const auto* const log = dynamic_cast<QPlainTextEdit*>(&widget)) {
        return log->toPlainText().replace("\n", "\r\n");
    }
    return {};
}

}

bool CQtViewUser::Press(ControlId button) {
    QWidget* const widget = m_user.FindUsable(button);
    if (!dynamic_cast<QPushButton*>(widget)) {
        return false;
    }
    m_user.ClickCentre(*widget);
    return true;
}

// A button pressed by its mnemonic shows that for a moment before it sends its command.
bool CQtViewUser::PressMnemonic(char letter) {
    const auto key = static_cast<Qt::Key>(std::toupper(static_cast<unsigned char>(letter)));
    QPointer<QAbstractButton> pressed;
    for (QAbstractButton* const button : m_user.GetView()->findChildren<QAbstractButton*>()) {
        if (button->shortcut() == QKeySequence(Qt::ALT | key) && button->isVisible() &&
            button->isEnabled()) {
            pressed = button;
        }
    }
    m_user.PressKey(key, Qt::AltModifier);
    return pressed && QTest::qWaitFor([&] { return !pressed || !pressed->isDown(); });
}

bool CQtViewUser::PressKeyInList(ControlId list, std::uint16_t virtualKey) {
    QWidget* const widget = m_user.FindUsable(list);
    if (!widget) {
        return false;
    }
    widget->setFocus();
    m_user.PressKey(ToKey(virtualKey));
    return true;
}

bool CQtViewUser::ClickRow(ControlId list, int row, conformance::Modifier modifier) {
    constexpr Qt::KeyboardModifier kModifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                   Qt::ControlModifier};
    return row != panel::kNoRow &&
           ClickList(list, row, Qt::LeftButton, kModifiers[static_cast<int>(modifier)]);
}

bool CQtViewUser::RightClickRow(ControlId list, int row) {
    return ClickList(list, row, Qt::RightButton, Qt::NoModifier);
}

bool CQtViewUser::ClickList(ControlId id, int row, Qt::MouseButton button,
                            Qt::KeyboardModifiers modifiers) {
    QTableView* const list = FindList(id);
    if (!list || !m_user.FindUsable(id) || row >= list->model()->rowCount()) {
        return false;
    }
    QWidget& area = *list->viewport();
    QPoint place(area.width() / 2, area.height() - 3);
    if (row != panel::kNoRow) {
        list->scrollTo(list->model()->index(row, 0));
        place = list->visualRect(list->model()->index(row, 0)).center();
    }
    m_user.Click(area, place, button, modifiers);
    return true;
}

void CQtViewUser::PressCloseBox() {
    m_user.GetView()->window()->close();
    QCoreApplication::processEvents();
}

std::string CQtViewUser::ShownTitle() {
    return m_user.GetView()->window()->windowTitle().toStdString();
}

std::string CQtViewUser::ShownText(ControlId id) {
    QWidget* const widget = m_user.FindWidget(id);
    return widget ? ShownBy(*widget).toStdString() : std::string();
}

std::vector<conformance::ShownColumn> CQtViewUser::ShownColumns(ControlId id) {
    std::vector<conformance::ShownColumn> columns;
    const QTableView* const list = FindList(id);
    const QAbstractItemModel& model = *list->model();
    for (int column = 0; column < model.columnCount(); ++column) {
        const auto alignment = static_cast<Qt::Alignment>(
            model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
        columns.push_back(
            {model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString(),
             list->columnWidth(column),
             alignment & Qt::AlignRight ? panel::Alignment::Right : panel::Alignment::Left});
    }
    return columns;
}

std::string CQtViewUser::ShownCell(ControlId id, int row, int column) {
    QTableView* const list = FindList(id);
    return list->model()->index(row, column).data().toString().toStdString();
}

bool CQtViewUser::IsRowInSight(ControlId id, int row) {
    const QTableView* const list = FindList(id);
    const QRect place = list->visualRect(list->model()->index(row, 0));
    return place.isValid() && place.top() >= 0 && place.bottom() < list->viewport()->height();
}

conformance::ShownProgress CQtViewUser::Progress(ControlId id) {
    const auto* const bar = m_user.Find<QProgressBar>(id);
    return {bar->maximum(), bar->value()};
}

std::vector<ControlId> CQtViewUser::StackingOrder() {
    std::vector<ControlId> order;
    for (const QObject* const child : m_user.GetView()->children()) {
        const QString name = child->objectName();
        if (name.startsWith("control-")) {
            order.push_back(static_cast<ControlId>(name.mid(8).toUInt()));
        }
    }
    return order;
}

panel::Rectangle CQtViewUser::ScreenRectangle(ControlId id) {
    const QWidget* const widget = m_user.FindWidget(id);
    const QPoint place = widget->mapToGlobal(QPoint(0, 0));
    return {place.x(), place.y(), widget->width(), widget->height()};
}

QTableView* CQtViewUser::FindList(ControlId id) const {
    auto* const list = m_user.Find<QTableView>(id);
    if (list) {
        list->grab(); // what is shown late is shown now
    }
    return list;
}

}
