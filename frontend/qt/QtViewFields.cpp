// The verbs of CQtView for check boxes, address fields, drop-down lists and icons.

#include "frontend/qt/AddressField.h"
#include "frontend/qt/QtView.h"
#include "frontend/qt/StandardIcons.h"
#include "frontend/qt/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QVariant>

namespace qt {

using panel::ControlId;
using panel::ControlKind;

void CQtView::SetChecked(ControlId box, bool checked) {
    if (auto* const found = Find<QCheckBox>(box, ControlKind::CheckBox)) {
        found->setChecked(checked);
    }
}

bool CQtView::IsChecked(ControlId box) const {
    const auto* const found = Find<QCheckBox>(box, ControlKind::CheckBox);
    return found && found->isChecked();
}

void CQtView::SetAddress(ControlId field, std::uint32_t address) {
    if (auto* const found = Find<CAddressField>(field, ControlKind::AddressField)) {
        found->SetAddress(address);
    }
}

std::uint32_t CQtView::GetAddress(ControlId field) const {
    const auto* const found = Find<CAddressField>(field, ControlKind::AddressField);
    return found ? found->GetAddress() : 0;
}

// The toolkit would choose the first one of its own accord.
int CQtView::AddChoice(ControlId list, std::string_view text, std::int32_t data) {
    auto* const found = Find<QComboBox>(list, ControlKind::DropDownList);
    if (!found) {
        return panel::kNoChoice;
    }
    const int chosen = found->currentIndex();
    found->addItem(ToQt(text), data);
    found->setCurrentIndex(chosen);
    return found->count() - 1;
}

void CQtView::SelectChoice(ControlId list, int index) {
    if (auto* const found = Find<QComboBox>(list, ControlKind::DropDownList)) {
        found->setCurrentIndex(index >= 0 && index < found->count() ? index : -1);
    }
}

int CQtView::GetSelectedChoice(ControlId list) const {
    const auto* const found = Find<QComboBox>(list, ControlKind::DropDownList);
    return found && found->currentIndex() >= 0 ? found->currentIndex() : panel::kNoChoice;
}

std::optional<std::int32_t> CQtView::GetChoiceData(ControlId list, int index) const {
    const auto* const found = Find<QComboBox>(list, ControlKind::DropDownList);
    const QVariant data = found ? found->itemData(index) : QVariant();
    return data.isValid() ? std::optional(data.toInt()) : std::nullopt;
}

int CQtView::SetIcon(ControlId id, panel::StandardIcon icon) {
    auto* const found = Find<QLabel>(id, ControlKind::Icon);
    return found ? ShowStandardIcon(*found, icon) : 0;
}

}
