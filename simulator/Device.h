#pragma once

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "simulator/DeviceDescription.h"
#include "simulator/EventSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

using CDeviceEvents = CEventSource<contract::_IProgrammingDeviceControlEvents>;
using StoredFiles = std::vector<StoredFile>;

/// A simulated device: what it holds and what it does.
///
/// The device knows nothing of interfaces: CHost (simulator/Host.h) offers the device that is
/// inserted in it as the programming-device service. All state that an operation may change is
/// changed here and nowhere else. One call at a time; the thread does not matter.
class CDevice {
public:
    /// A device in memory; nothing of it is stored anywhere.
    static std::shared_ptr<CDevice> Create(DeviceDescription description);

    explicit CDevice(DeviceDescription description);

    /// The values the device was made from. `mode` and `files` of it are those at the start (the
    /// files have moved to Files()).
    const DeviceDescription& Description() const { return m_description; }

    std::int32_t Mode() const { return m_mode; }

    /// The files as they are now. A change makes a new list, so that the one handed out stays.
    std::shared_ptr<const StoredFiles> Files() const { return m_files; }

    /// Free memory: the whole minus the files stored in it, never below 0.
    std::uint32_t FreeRamBytes() const;
    std::uint32_t FreeFlashBytes() const;

    bool IsNetworked() const;

    /// Carries out a mode request; the mode event is raised before it returns. kInvalidArgument for
    /// a request that does not exist.
    contract::Status RequestMode(contract::ModeRequest request);

    /// Takes on a mode by itself and reports it.
    void EnterMode(std::int32_t mode);

    /// Raise one event each, changing nothing. Without a host nobody hears them.
    void RaiseMode(std::int32_t mode);
    void RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total);
    void RaiseEvent3(std::int32_t first, std::int32_t second);

    /// Events go to `events` from now on; an expired pointer: to nobody.
    void SendEventsTo(std::weak_ptr<CDeviceEvents> events) { m_events = std::move(events); }

private:
    std::uint32_t FreeBytes(std::int32_t location, std::uint32_t totalBytes) const;
    template <class Raise>
    void RaiseToAll(const Raise& raise);

    DeviceDescription m_description;
    std::int32_t m_mode;
    std::shared_ptr<const StoredFiles> m_files;
    std::weak_ptr<CDeviceEvents> m_events;
};

}
