#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

class CRefreshSequence;

/// Reads the type of the device that has become ready. User-interface thread only.
class CDeviceTypeReader {
public:
    CDeviceTypeReader(PanelServices& services, CRefreshSequence& refresh)
        : m_services(services), m_refresh(refresh) {}

    /// Reads and keeps the type, also one outside the known ones, which gets a warning; a known one
    /// is followed by the refresh. Reports a failing call and leaves it at that. Silent without a
    /// device control.
    void ReadDeviceType();

private:
    PanelServices& m_services;
    CRefreshSequence& m_refresh;
};

}
