#include "simulator/device/ProgrammingDeviceSubsystem.h"

#include "simulator/device/Krx10Control.h"
#include "simulator/device/ProgrammingDeviceControl.h"

#include <utility>

namespace simulator {

CProgrammingDeviceSubsystem::CProgrammingDeviceSubsystem(std::shared_ptr<CDeviceSlot> slot)
    : m_slot(std::move(slot)),
      m_control(std::make_shared<CProgrammingDeviceControl>(m_slot)),
      m_krx10Control(std::make_shared<CKrx10Control>(m_slot)) {}

contract::Status CProgrammingDeviceSubsystem::get_ProgrammingDeviceControl(
    std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    return Give(m_control, control);
}

contract::Status
CProgrammingDeviceSubsystem::GetKrx10Control(std::shared_ptr<contract::IKrx10Control>& control) {
    return m_slot->WithDevice([&](const CDevice& device) {
        if (!device.IsNetworked()) {
            return Fail(contract::kNoSuchInterface, "This device has no network control");
        }
        return Give(m_krx10Control, control);
    });
}

}
