#pragma once

#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/host/ExtConnectionEvents.h"

#include <functional>
#include <string>
#include <vector>

namespace simulator {

/// Writes down the events it receives, of device and connection alike, and may act on each.
class CEventLog final : public contract::_IProgrammingDeviceControlEvents,
                        public contract::_IExtConnectionEvents {
public:
    contract::Status ModeChanged(std::int32_t mode) override {
        return Note("mode " + std::to_string(mode));
    }
    contract::Status DeviceMessage(const std::string& text, std::uint32_t done,
                                   std::uint32_t total) override {
        return Note("message " + text + " " + std::to_string(done) + "/" + std::to_string(total));
    }
    contract::Status Event3(std::int32_t first, std::int32_t second) override {
        return Note("event3 " + std::to_string(first) + " " + std::to_string(second));
    }
    contract::Status ConnectionStateChanged(contract::Status status, std::int32_t state) override {
        return Note("state " + std::to_string(status.Code()) + " " + std::to_string(state));
    }
    contract::Status Event2(std::int32_t first, std::int32_t second) override {
        return Note("event2 " + std::to_string(first) + " " + std::to_string(second));
    }

    std::vector<std::string> events;
    std::function<void()> onEvent = [] {};

private:
    contract::Status Note(std::string event) {
        events.push_back(std::move(event));
        // A copy, since the callback may replace itself.
        const auto act = onEvent;
        act();
        return contract::kSuccess;
    }
};

using Events = std::vector<std::string>;

}
