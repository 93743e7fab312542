#pragma once

#include "contract/host/HostViewControl.h"
#include "contract/host/MessageService.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace support {

/// A message as the user would have seen it.
struct Shown {
    std::string text;
    std::string caption;
    std::uint32_t style = 0;
    std::int32_t status = 0;
    std::string description;

    friend bool operator==(const Shown&, const Shown&) = default;
};

std::ostream& operator<<(std::ostream& out, const Shown& shown);

/// A host's message boxes without a screen: notes what is shown and answers from a queue, else OK
/// or No.
class CMessageServiceDouble final : public contract::IMessageService {
public:
    contract::Status ShowMessage(const contract::Message& message, std::int32_t& button) override;

    std::vector<Shown> shown;
    /// Every message as it came, for owner and show flag.
    std::vector<contract::Message> messages;
    std::deque<std::int32_t> answers;
    /// Runs while each box is open.
    std::function<void()> whileOpen;
    /// Failure to return instead of showing anything.
    contract::Status status;
};

/// A host's view control that notes requests to close.
class CHostViewControlDouble final : public contract::IHostViewControl {
public:
    contract::Status ClosePanel() override;

    int closeRequests = 0;
    std::function<void()> onClose;
};

}
