#pragma once

#include "contract/Status.h"
#include "panel/control/DialogTemplate.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sweeps {

/// What host, device and user can do to a panel.
///
/// Scenarios and events are written against it once and played twice: to the real panel
/// (CSweepPanel) and to what is expected of it (CExpectation). After ReleasePanel whatever needs
/// the host's reference to the panel does nothing.
class IStage {
public:
    virtual ~IStage() = default;

    // The host
    virtual void SetContextAndRegister() = 0;
    /// Another context, which offers what the first one does.
    virtual void SetOtherContext() = 0;
    virtual void SetOtherContextAndRegister() = 0;
    virtual void CreateView() = 0;
    virtual void SetSubsystemAccess() = 0;
    /// Another access object, which leads to the same subsystem.
    virtual void SetOtherSubsystemAccess() = 0;
    virtual void SetConnection() = 0;
    /// Another connection, which raises the same events and tells the same state.
    virtual void SetOtherConnection() = 0;
    virtual void SetNoConnection() = 0;
    virtual void Go() = 0;
    virtual void DestroyView() = 0;
    /// Drops the host's last reference to the panel.
    virtual void ReleasePanel() = 0;

    // Events of the connection and of the device
    virtual void RaiseState(contract::Status status, std::int32_t state) = 0;
    virtual void RaiseConnectionEvent2() = 0;
    virtual void RaiseMode(std::int32_t mode) = 0;
    virtual void RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) = 0;
    virtual void RaiseDeviceEvent3() = 0;

    // The device itself, which no event tells of
    virtual void InsertDevice() = 0;
    /// From now on the device says that it is of that type.
    virtual void TellType(std::int32_t type) = 0;
    /// From now on every call that a device answers fails.
    virtual void LoseDevice() = 0;

    // The user
    virtual void PressButton(panel::ControlId id) = 0;
    /// Selects those rows of the file list that there are, and no other.
    virtual void SelectRows(const std::vector<int>& rows) = 0;
    /// Presses a key in the file list.
    virtual void PressKey(std::uint16_t virtualKey) = 0;
    /// Right-clicks the file list where it is selected, or below its rows.
    virtual void RightClick() = 0;
};

}
