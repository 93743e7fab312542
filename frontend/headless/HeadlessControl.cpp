#include "frontend/headless/HeadlessControl.h"

#include <algorithm>

namespace headless {

namespace {

using enum panel::ControlKind;

constexpr int kHeadingHeight = 20;
constexpr int kRowHeight = 17;

constexpr bool IsListKind(panel::ControlKind kind) {
    return kind == MultiSelectList || kind == SingleSelectList;
}

constexpr bool HasMnemonic(panel::ControlKind kind) {
    return kind == GroupBox || kind == Label || kind == CentredLabel || kind == Button ||
           kind == DefaultButton || kind == CheckBox;
}

constexpr char ToLower(char letter) {
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}

HeadlessControl::HeadlessControl(const panel::ControlTemplate& controlTemplate,
                                 const panel::Rectangle& initialRectangle)
    : id(controlTemplate.id),
      kind(controlTemplate.kind),
      helpContext(controlTemplate.helpContext),
      text(controlTemplate.text),
      isEnabled(controlTemplate.state != panel::InitialState::Disabled),
      isVisible(controlTemplate.state != panel::InitialState::Hidden),
      rectangle(initialRectangle) {
    const std::size_t mark = text.find('&');
    if (HasMnemonic(kind) && mark != std::string::npos) {
        text.erase(mark, 1);
        mnemonic = mark < text.size() ? ToLower(text[mark]) : '\0';
    }
    if (IsListKind(kind)) {
        list = std::make_unique<CHeadlessList>(kind == MultiSelectList);
        list->SetPageSize(PageSize());
    }
}

bool HeadlessControl::IsButton() const { return kind == Button || kind == DefaultButton; }

void HeadlessControl::Move(const panel::Rectangle& target) {
    rectangle = target;
    ++frameComputations;
    if (list) {
        list->SetPageSize(PageSize());
    }
}

panel::Point HeadlessControl::RowPosition(int row) const {
    return {0, kHeadingHeight + list->RowOffset(row) * kRowHeight};
}

panel::Rectangle HeadlessControl::RowRectangle(int row) const {
    return {rectangle.x, rectangle.y + RowPosition(row).y, rectangle.width, kRowHeight};
}

int HeadlessControl::PageSize() const {
    return std::max((rectangle.height - kHeadingHeight) / kRowHeight, 1);
}

}
