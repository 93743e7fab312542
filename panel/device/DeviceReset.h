#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

class CRefreshSequence;

/// The Reset command. User-interface thread only.
class CDeviceReset {
public:
    CDeviceReset(PanelServices& services, CRefreshSequence& refresh)
        : m_services(services), m_refresh(refresh) {}

    /// Restarts the device without a question and reads everything anew; a failure is reported and
    /// leaves what is shown. Phones are not polled meanwhile, the reading included.
    void ResetDevice();

private:
    PanelServices& m_services;
    CRefreshSequence& m_refresh;
};

}
