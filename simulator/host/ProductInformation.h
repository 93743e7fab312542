#pragma once

#include "contract/host/ProductDetection.h"
#include "simulator/Failure.h"

#include <memory>

namespace simulator {

/// The phone polling of a CHost: a flag, and the three objects in one that lead to it.
class CProductInformation final : public contract::IProductInformation,
                                  public contract::IProductDetection,
                                  public contract::IProductDetectionControl,
                                  public std::enable_shared_from_this<CProductInformation> {
public:
    contract::Status
    GetProductDetection(std::shared_ptr<contract::IProductDetection>& detection) override {
        detection = shared_from_this();
        return contract::kSuccess;
    }
    contract::Status QueryProductDetectionControl(
        std::shared_ptr<contract::IProductDetectionControl>& control) override {
        control = shared_from_this();
        return contract::kSuccess;
    }
    contract::Status GetPollingEnabled(bool& enabled) override {
        return Give(m_isPollingEnabled, enabled);
    }
    contract::Status SetPollingEnabled(bool enabled) override {
        return Give(enabled, m_isPollingEnabled);
    }

    bool IsPollingEnabled() const { return m_isPollingEnabled; }

private:
    bool m_isPollingEnabled = true;
};

}
