#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace contract {

/// A message for the user. Texts are UTF-8.
struct Message {
    /// Numeric owner; the panel always passes 0, none.
    std::int32_t owner = 0;
    std::string text;
    std::string caption;
    /// Status of the failure that is reported, or success.
    Status status;
    /// What the failing call said of it; empty when it said nothing.
    std::string description;
    /// Icon and buttons as the bits of the Windows MessageBox function (winuser.h): 0x10 error,
    /// 0x30 warning, 0x40 information, each with OK; 0x24 question with Yes and No.
    std::uint32_t style = 0;
    /// The panel always passes 1, show.
    std::int32_t showFlag = 1;
};

/// The host's message boxes. User-interface thread only.
class IMessageService {
public:
    virtual ~IMessageService() = default;

    /// Shows `message` and waits for the user. Delivers the button pressed: 1 OK, 2 Cancel, 6 Yes,
    /// 7 No. On failure `button` is untouched and the panel shows a plain box of its own, so a
    /// message is never lost. May re-enter the panel through events while it waits.
    virtual Status ShowMessage(const Message& message, std::int32_t& button) = 0;
};

}
