#pragma once

#include "contract/device/SelfTestResults.h"
#include "simulator/Device.h"

#include <map>
#include <string>

namespace simulator {

/// The self-test results of a device's last start.
class CSelfTestResults final : public contract::ISelfTestResults {
public:
    explicit CSelfTestResults(const CDevice& device) : m_codes(device.Description().selfTests) {}

    /// kInvalidArgument for a test that does not exist.
    contract::Status GetResult(contract::SelfTest test, std::int32_t& code) override {
        const auto number = static_cast<std::int32_t>(test);
        if (number < 1 || number > contract::kSelfTestCount) {
            return Fail(kInvalidArgument, "There is no self-test " + std::to_string(number));
        }
        const auto found = m_codes.find(test);
        return Give(found == m_codes.end() ? kTestNotRun : found->second, code);
    }

private:
    const std::map<contract::SelfTest, std::int32_t> m_codes;
};

}
