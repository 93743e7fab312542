#include "simulator/host/HostSubsystemAccess.h"

#include "simulator/device/ProgrammingDeviceSubsystem.h"

#include <utility>

namespace simulator {

CHostSubsystemAccess::CHostSubsystemAccess(std::shared_ptr<CDeviceSlot> slot,
                                           std::shared_ptr<CProductInformation> product)
    : m_programming(std::make_shared<CSubsystem>(
          std::make_shared<CProgrammingDeviceSubsystem>(std::move(slot)))),
      m_product(std::make_shared<CSubsystem>(
          std::shared_ptr<contract::IProductInformation>(std::move(product)))) {}

contract::Status
CHostSubsystemAccess::GetSubsystem(const contract::Guid& identifier,
                                   std::shared_ptr<contract::ISubsystem>& subsystem) {
    if (identifier == contract::kProgrammingDeviceSubsystem) {
        return Give(m_programming, subsystem);
    }
    if (identifier == contract::kProductInformationSubsystem) {
        return Give(m_product, subsystem);
    }
    return Fail(kInvalidArgument, "This host has no subsystem of that identifier");
}

}
