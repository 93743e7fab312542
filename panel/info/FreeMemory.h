#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

/// The free memory shown in the information group. User-interface thread only.
class CFreeMemory {
public:
    explicit CFreeMemory(PanelServices& services) : m_services(services) {}

    /// Reads free RAM and flash memory into their fields. A device of the KRX-8 family answers only
    /// in Normal mode; otherwise it is not asked and shows 0. Reports its own failure; the fields
    /// not yet reached keep their values.
    void UpdateFreeMemory();

private:
    PanelServices& m_services;
};

}
