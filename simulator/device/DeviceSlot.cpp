#include "simulator/device/DeviceSlot.h"

#include <utility>

namespace simulator {

void CDeviceSlot::Insert(std::shared_ptr<CDevice> device) {
    if (m_device) {
        m_device->SendEventsTo({});
    }
    if (device) {
        device->SendEventsTo(m_events);
    }
    m_device = std::move(device);
}

}
