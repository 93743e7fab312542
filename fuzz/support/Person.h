#pragma once

#include "panel/control/PopupMenu.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace headless {
class CHeadlessFileDialog;
class CHeadlessView;
}

namespace fuzz {

/// A box as it opens; its description is empty in a plain one.
struct Box {
    std::string text;
    std::string caption;
    std::string description;
    std::uint32_t style = 0;

    bool IsQuestion() const { return (style & 0xF) == 4; }
};

/// Who sits before the panel: is shown every prompt when it opens and answers it at once.
class IPerson {
public:
    virtual ~IPerson() = default;

    /// The button pressed: 1 OK, 6 Yes, 7 No.
    virtual std::int32_t AnswerBox(const Box& box) = 0;
    /// One that is still open afterwards is left by Escape.
    virtual void UseDialog(headless::CHeadlessView& dialog) = 0;
    /// The command of an item, or kNoCommand.
    virtual int ChooseCommand(std::span<const panel::MenuItem> items) = 0;
    /// One that is still open afterwards is cancelled.
    virtual void UseFileDialog(headless::CHeadlessFileDialog& dialog) = 0;

    /// The system: whether it can make the next dialog or menu.
    virtual bool CanMakePrompt() { return true; }
    /// The system: whether the file, which is kept nowhere, can be opened.
    virtual bool TakeFile(const std::string& path, std::string_view content) = 0;
};

}
