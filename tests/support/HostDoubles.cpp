#include "tests/support/HostDoubles.h"

namespace support {

std::ostream& operator<<(std::ostream& out, const Shown& shown) {
    return out << '{' << '"' << shown.text << "\", \"" << shown.caption << "\", style 0x"
               << std::hex << shown.style << ", status 0x"
               << static_cast<std::uint32_t>(shown.status) << std::dec << ", \""
               << shown.description << "\"}";
}

contract::Status CMessageServiceDouble::ShowMessage(const contract::Message& message,
                                                    std::int32_t& button) {
    if (status.IsFailure()) {
        return status;
    }
    messages.push_back(message);
    shown.push_back(
        {message.text, message.caption, message.style, message.status.Code(), message.description});
    if (whileOpen) {
        whileOpen();
    }
    constexpr std::uint32_t kYesNoButtons = 0x4;
    constexpr std::int32_t kOk = 1;
    constexpr std::int32_t kNo = 7;
    button = (message.style & 0xF) == kYesNoButtons ? kNo : kOk;
    if (!answers.empty()) {
        button = answers.front();
        answers.pop_front();
    }
    return contract::kSuccess;
}

contract::Status CHostViewControlDouble::ClosePanel() {
    ++closeRequests;
    if (onClose) {
        onClose();
    }
    return contract::kSuccess;
}

}
