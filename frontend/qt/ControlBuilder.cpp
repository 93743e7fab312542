#include "frontend/qt/ControlBuilder.h"

#include "frontend/qt/AddressField.h"
#include "frontend/qt/CommandEvent.h"
#include "frontend/qt/DigitsValidator.h"
#include "frontend/qt/EditField.h"
#include "frontend/qt/Font.h"
#include "frontend/qt/GroupBox.h"
#include "frontend/qt/HelpRequests.h"
#include "frontend/qt/ListView.h"
#include "frontend/qt/LogView.h"
#include "frontend/qt/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVariant>

#include <iterator>
#include <limits>

namespace qt {

namespace {

using panel::ControlKind;
using panel::ControlTemplate;
using panel::InitialState;

constexpr const char* kControlId = "controlId";

/// What the builders of controls share.
struct Surroundings {
    QWidget* view;
    const std::shared_ptr<const CHandlerLink>& link;
};

QWidget* BuildGroupBox(const ControlTemplate& control, const Surroundings& around) {
    return new CGroupBox(ToQt(control.text), around.view);
}

QWidget* BuildLabel(const ControlTemplate& control, const Surroundings& around) {
    auto* const label = new QLabel(around.view);
    label->setTextFormat(Qt::PlainText);
    label->setAutoFillBackground(true);
    label->setText(ToQt(control.text));
    return label;
}

QWidget* BuildCentredLabel(const ControlTemplate& control, const Surroundings& around) {
    auto* const label = static_cast<QLabel*>(BuildLabel(control, around));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

// The grey of the window tells that nothing can be typed; the text stays as dark as any.
QLineEdit* BuildField(const ControlTemplate& control, const Surroundings& around) {
    auto* const field = new QLineEdit(ToQt(control.text), around.view);
    field->setReadOnly(true);
    field->setMaxLength(std::numeric_limits<int>::max());
    QPalette colours = field->palette();
    colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    field->setPalette(colours);
    return field;
}

QWidget* BuildTextField(const ControlTemplate& control, const Surroundings& around) {
    return BuildField(control, around);
}

QWidget* BuildNumberField(const ControlTemplate& control, const Surroundings& around) {
    QLineEdit* const field = BuildField(control, around);
    field->setValidator(new CDigitsValidator(field));
    return field;
}

QWidget* BuildEditField(const ControlTemplate& control, const Surroundings& around) {
    auto* const field = new CEditField(around.view);
    field->ShowText(ToQt(control.text));
    return field;
}

QWidget* BuildAddressField(const ControlTemplate&, const Surroundings& around) {
    return new CAddressField(around.view);
}

QWidget* BuildCheckBox(const ControlTemplate& control, const Surroundings& around) {
    auto* const box = new QCheckBox(ToQt(control.text), around.view);
    QObject::connect(box, &QCheckBox::clicked, [link = around.link, id = control.id] {
        link->Notify(&panel::IDialogHandler::OnCommand, id);
    });
    return box;
}

QWidget* BuildDropDownList(const ControlTemplate&, const Surroundings& around) {
    return new QComboBox(around.view);
}

QWidget* BuildIcon(const ControlTemplate&, const Surroundings& around) {
    auto* const icon = new QLabel(around.view);
    icon->setAlignment(Qt::AlignCenter);
    return icon;
}

QWidget* BuildList(CListView::Selection selection, const ControlTemplate& control,
                   const Surroundings& around) {
    auto* const list = new CListView(selection, around.view);
    list->SetKeyListener([link = around.link, id = control.id](std::uint16_t virtualKey) {
        link->Notify(&panel::IDialogHandler::OnListKeyDown, id, virtualKey);
    });
    list->SetRightClickListener([link = around.link, id = control.id](QPoint screen) {
        link->Notify(&panel::IDialogHandler::OnListRightClick, id,
                     panel::Point{screen.x(), screen.y()});
    });
    return list;
}

QWidget* BuildMultiSelectList(const ControlTemplate& control, const Surroundings& around) {
    return BuildList(CListView::Selection::Multiple, control, around);
}

QWidget* BuildSingleSelectList(const ControlTemplate& control, const Surroundings& around) {
    return BuildList(CListView::Selection::Single, control, around);
}

QWidget* BuildLog(const ControlTemplate&, const Surroundings& around) {
    return new CLogView(around.view);
}

QWidget* BuildProgressBar(const ControlTemplate&, const Surroundings& around) {
    auto* const bar = new QProgressBar(around.view);
    bar->setTextVisible(false);
    bar->setValue(0);
    return bar;
}

QWidget* BuildButton(const ControlTemplate& control, const Surroundings& around) {
    auto* const button = new QPushButton(ToQt(control.text), around.view);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, [button, link = around.link, id = control.id] {
        if (MayCommand(*button)) {
            link->Notify(&panel::IDialogHandler::OnCommand, id);
        }
    });
    return button;
}

QWidget* BuildDefaultButton(const ControlTemplate& control, const Surroundings& around) {
    QWidget* const button = BuildButton(control, around);
    static_cast<QPushButton*>(button)->setDefault(true);
    return button;
}

using Builder = QWidget* (*)(const ControlTemplate&, const Surroundings&);

// In the order of ControlKind.
constexpr Builder kBuilders[] = {
    BuildGroupBox,     BuildLabel,       BuildCentredLabel,    BuildTextField,
    BuildNumberField,  BuildEditField,   BuildAddressField,    BuildCheckBox,
    BuildDropDownList, BuildIcon,        BuildMultiSelectList, BuildSingleSelectList,
    BuildLog,          BuildProgressBar, BuildButton,          BuildDefaultButton,
};
static_assert(std::size(kBuilders) == static_cast<std::size_t>(ControlKind::DefaultButton) + 1);

}

QWidget* BuildControl(const ControlTemplate& control, QWidget& view,
                      const std::shared_ptr<const CHandlerLink>& link) {
    QWidget* const widget =
        kBuilders[static_cast<std::size_t>(control.kind)](control, {&view, link});
    widget->setObjectName(QStringLiteral("control-%1").arg(control.id));
    widget->setProperty(kControlId, control.id);
    SetHelpContext(*widget, control.helpContext);
    const panel::Rectangle place = ToPixels(control.rectangle, MeasureFont(view.font()));
    widget->setGeometry(place.x, place.y, place.width, place.height);
    widget->setEnabled(control.state != InitialState::Disabled);
    widget->setVisible(control.state != InitialState::Hidden);
    return widget;
}

panel::ControlId GetControlId(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (const QVariant id = widget->property(kControlId); id.isValid()) {
            return static_cast<panel::ControlId>(id.toUInt());
        }
    }
    return panel::kNoControl;
}

}
