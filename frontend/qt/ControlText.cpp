#include "frontend/qt/ControlText.h"

#include "frontend/qt/EditField.h"
#include "frontend/qt/Font.h"
#include "frontend/qt/Text.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTextDocument>

namespace qt {

namespace {

using panel::ControlKind;

// What frame and toolkit take of a control's width.
constexpr int kFieldMarginPixels = 8;
constexpr int kButtonMarginPixels = 8;

void FitText(QWidget& widget, const QString& text, int room) {
    widget.setFont(FitFont(widget.parentWidget()->font(), text, room));
}

// What the box itself takes of a check box's width.
int IndicatorWidth(const QWidget& box) {
    return box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box) +
           box.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &box);
}

// A text too long even so can be read in a tool tip.
void FitField(QWidget& field, const QString& text) {
    const int room = field.width() - kFieldMarginPixels;
    FitText(field, text, room);
    const bool fits = field.fontMetrics().horizontalAdvance(text) <= room;
    field.setToolTip(fits ? QString() : Qt::convertFromPlainText(text));
}

// Without a buddy a label takes no "&" as the mark of a mnemonic.
void SetLabelText(QLabel& label, const QString& text) {
    label.setText(label.buddy() ? EscapeMnemonics(text) : text);
}

void SetFieldText(QLineEdit& field, const QString& text) {
    field.setText(text);
    field.setCursorPosition(0);
}

void SetText(QWidget& widget, ControlKind kind, const QString& text) {
    switch (kind) {
    case ControlKind::GroupBox:
        static_cast<QGroupBox&>(widget).setTitle(EscapeMnemonics(text));
        break;
    case ControlKind::Label:
    case ControlKind::CentredLabel:
        SetLabelText(static_cast<QLabel&>(widget), text);
        break;
    case ControlKind::TextField:
    case ControlKind::NumberField:
        SetFieldText(static_cast<QLineEdit&>(widget), text);
        break;
    case ControlKind::EditField:
        static_cast<CEditField&>(widget).ShowText(text);
        break;
    case ControlKind::CheckBox:
    case ControlKind::Button:
    case ControlKind::DefaultButton:
        static_cast<QAbstractButton&>(widget).setText(EscapeMnemonics(text));
        break;
    default:
        break;
    }
}

}

void ShowText(QWidget& widget, ControlKind kind, const QString& text) {
    SetText(widget, kind, text);
    FitText(widget, kind, text);
}

void FitText(QWidget& widget, ControlKind kind, const QString& text) {
    switch (kind) {
    case ControlKind::TextField:
    case ControlKind::NumberField:
        FitField(widget, text);
        break;
    case ControlKind::Button:
    case ControlKind::DefaultButton:
        FitText(widget, text, widget.width() - kButtonMarginPixels);
        break;
    case ControlKind::CheckBox:
        FitText(widget, text, widget.width() - IndicatorWidth(widget));
        break;
    default:
        break;
    }
}

}
