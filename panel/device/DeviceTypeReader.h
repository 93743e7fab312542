#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"

#include <memory>

namespace contract {
class IProgrammingDeviceControl;
}

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
    /// Keeps the type that the device gives; false when a call failed, which has been reported.
    bool Read(const std::shared_ptr<contract::IProgrammingDeviceControl>& control);
    void Report(const char* text, contract::Status status);

    PanelServices& m_services;
    CRefreshSequence& m_refresh;
};

}
