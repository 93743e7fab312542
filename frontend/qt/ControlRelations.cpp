#include "frontend/qt/ControlRelations.h"

#include "frontend/qt/AddressField.h"
#include "frontend/qt/Text.h"
#include "panel/control/ControlKinds.h"

#include <QLabel>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace qt {

namespace {

using panel::ControlKind;

struct Control {
    ControlKind kind;
    QWidget* widget;
};

using Controls = std::vector<Control>;

Controls FindControls(const panel::DialogTemplate& dialogTemplate, const QWidget& view) {
    Controls controls;
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        const QString name = QStringLiteral("control-%1").arg(control.id);
        controls.push_back(
            {control.kind, view.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly)});
    }
    return controls;
}

// Only what overlaps is moved: the order of the children is also that of accessibility tools.
void Stack(const Controls& controls) {
    for (auto control = controls.rbegin(); control != controls.rend(); ++control) {
        const auto overlaps = [&](const Control& later) {
            return later.widget->geometry().intersects(control->widget->geometry());
        };
        if (control->kind == ControlKind::GroupBox) {
            control->widget->lower();
        } else if (std::any_of(controls.rbegin(), control, overlaps)) {
            control->widget->raise();
        }
    }
}

// Whether the user can go to a control that does not itself say what it is called.
bool NeedsName(ControlKind kind) {
    const bool hasCaption = kind == ControlKind::CheckBox || kind == ControlKind::Button ||
                            kind == ControlKind::DefaultButton;
    return panel::CanHaveFocus(kind) && !hasCaption;
}

void JoinBuddies(const Controls& controls) {
    for (std::size_t i = 1; i < controls.size(); ++i) {
        if (controls[i - 1].kind == ControlKind::Label && NeedsName(controls[i].kind)) {
            static_cast<QLabel*>(controls[i - 1].widget)->setBuddy(controls[i].widget);
        }
    }
}

void NameForAccessibility(const panel::DialogTemplate& dialogTemplate, const Controls& controls) {
    QString title = ToQt(dialogTemplate.title);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (controls[i].kind == ControlKind::GroupBox) {
            title = ToQt(dialogTemplate.controls[i].text);
        } else if (NeedsName(controls[i].kind)) {
            const bool hasLabel = i > 0 && controls[i - 1].kind == ControlKind::Label;
            controls[i].widget->setAccessibleName(hasLabel ? QString() : title);
            if (auto* const field = dynamic_cast<CAddressField*>(controls[i].widget)) {
                field->NameParts(hasLabel ? ToQt(dialogTemplate.controls[i - 1].text) : title);
            }
        }
    }
}

}

void RelateControls(const panel::DialogTemplate& dialogTemplate, QWidget& view) {
    const Controls controls = FindControls(dialogTemplate, view);
    Stack(controls);
    JoinBuddies(controls);
    NameForAccessibility(dialogTemplate, controls);
}

}
