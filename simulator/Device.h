#pragma once

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "simulator/DeviceDescription.h"
#include "simulator/DeviceStore.h"
#include "simulator/EventSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

using CDeviceEvents = CEventSource<contract::_IProgrammingDeviceControlEvents>;
using StoredFiles = std::vector<StoredFile>;

/// A simulated device: what it holds, and its modes.
///
/// The device knows nothing of interfaces: CHost (simulator/Host.h) offers the device that is
/// inserted in it as the programming-device service. Operations that change what it holds
/// (simulator/device) do so through Change, and nothing else does. One call at a time; the thread
/// does not matter.
class CDevice : public std::enable_shared_from_this<CDevice> {
public:
    /// A device whose changes go to `store`; null: to nowhere, the device lives in memory.
    static std::shared_ptr<CDevice> Create(DeviceDescription description,
                                           std::unique_ptr<IDeviceStore> store = nullptr);

    explicit CDevice(DeviceDescription description, std::unique_ptr<IDeviceStore> store = nullptr);

    /// What the device holds now, but for the files, which are in Files(). Its `mode` is the one
    /// in which the device is found when it is opened again.
    const DeviceDescription& Description() const { return m_description; }

    /// The mode the device is in.
    std::int32_t Mode() const { return m_mode; }

    /// The files as they are now. A change makes a new list, so that the one handed out stays.
    std::shared_ptr<const StoredFiles> Files() const { return m_files; }

    /// Free memory: the whole minus the files stored in it, never below 0.
    std::uint32_t FreeRamBytes() const;
    std::uint32_t FreeFlashBytes() const;

    bool IsNetworked() const;

    /// A copy of all that the device holds, files included, to be changed and handed to Change.
    DeviceDescription State() const;

    /// Makes `next` what the device holds, and stores it; `content` is for the one file that has
    /// new bytes. Raises nothing. A failure changes nothing. What is already so is not stored
    /// again.
    Outcome Change(DeviceDescription next, const NewContent* content = nullptr);

    /// Carries out a mode request; the mode events are raised before it returns. Normal is refused
    /// with kNotReady while the application software's self-test has failed. Reset goes through
    /// Maintenance mode, runs the self-tests and ends in ModeAfterStart.
    /// kInvalidArgument for a request that does not exist.
    contract::Status RequestMode(contract::ModeRequest request);

    /// Takes on a mode by itself and reports it. Not stored: see Change.
    void EnterMode(std::int32_t mode);

    /// Raise one event each, changing nothing. Without a host nobody hears them.
    void RaiseMode(std::int32_t mode);
    void RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total);
    void RaiseEvent3(std::int32_t first, std::int32_t second);

    /// Events go to `events` from now on; an expired pointer: to nobody.
    void SendEventsTo(std::weak_ptr<CDeviceEvents> events) { m_events = std::move(events); }

private:
    Outcome SwitchToNormal();
    Outcome Restart();
    std::uint32_t FreeBytes(std::int32_t location, std::uint32_t totalBytes) const;
    template <class Raise>
    void RaiseToAll(const Raise& raise);

    DeviceDescription m_description;
    std::int32_t m_mode;
    std::shared_ptr<const StoredFiles> m_files;
    const std::unique_ptr<IDeviceStore> m_store;
    std::weak_ptr<CDeviceEvents> m_events;
};

}
