#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

class CFreeMemory;

/// Stands in the address field when the device names none.
inline constexpr const char* kNoAddress = "0.0.0.0";

/// Identity, versions, memory and network values of the device. User-interface thread only.
class CDeviceInformation {
public:
    CDeviceInformation(PanelServices& services, CFreeMemory& freeMemory)
        : m_services(services), m_freeMemory(freeMemory) {}

    /// Reads the device into the information fields and the kept network values, step by step. The
    /// first failing step is reported and ends the routine; what was written before it stays.
    void ReadDeviceInformation();

private:
    PanelServices& m_services;
    CFreeMemory& m_freeMemory;
};

}
