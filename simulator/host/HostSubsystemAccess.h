#pragma once

#include "contract/host/SubsystemAccess.h"
#include "simulator/device/DeviceSlot.h"
#include "simulator/host/ProductInformation.h"
#include "simulator/host/Subsystem.h"

namespace simulator {

/// The two subsystems of a CHost.
class CHostSubsystemAccess final : public contract::ISubsystemAccess {
public:
    CHostSubsystemAccess(std::shared_ptr<CDeviceSlot> slot,
                         std::shared_ptr<CProductInformation> product);

    /// kInvalidArgument for any other identifier.
    contract::Status GetSubsystem(const contract::Guid& identifier,
                                  std::shared_ptr<contract::ISubsystem>& subsystem) override;

private:
    const std::shared_ptr<contract::ISubsystem> m_programming;
    const std::shared_ptr<contract::ISubsystem> m_product;
};

}
