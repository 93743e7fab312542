#pragma once

#include "contract/Status.h"
#include "interception/Interception.h"
#include "interception/Latency.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace contract {
class IConnection;
class IContext;
class IHostViewControl;
class IMessageService;
class ISubsystemAccess;
}

namespace simulator {

class CDevice;
class CDeviceSlot;
class CHostConnection;
class CHostContext;
class CKnobs;
class CKnobSwitch;
class CProductInformation;

/// How a CHost treats the knobs in the descriptions of its devices.
struct KnobOptions {
    /// Off for callers that put interceptors of their own before the host and want to be alone.
    bool areApplied = true;
    /// Waits for the time that a call is said to take.
    interception::CLatency::Sleep sleep = interception::CLatency::WaitOnThisThread;
};

/// The small host around a simulated device: context, subsystem access, connection and phone
/// polling, everything that a panel is handed.
///
/// One device control lives as long as the host, and devices come and go behind it. Without a
/// device its operations fail with 0x8007048F (device not connected) and a description; objects
/// that were obtained from a device answer on, being snapshots.
///
/// One call at a time, on any thread. Events are raised on the thread of the call that causes them,
/// from inside it. The objects given out stay usable after the host's end.
class CHost {
public:
    explicit CHost(KnobOptions knobs = {});
    ~CHost();
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;

    /// What a panel is handed: the same objects for the life of the host.
    std::shared_ptr<contract::IContext> Context() const { return m_contextToHand; }
    std::shared_ptr<contract::ISubsystemAccess> SubsystemAccess() const { return m_accessToHand; }
    std::shared_ptr<contract::IConnection> Connection() const { return m_connectionToHand; }

    /// Connects a device, in place of the one that is there; its knobs count from here. Its events
    /// reach the subscribers of the control until it goes. Raises nothing. The device must not be
    /// null and not be in another host.
    void InsertDevice(std::shared_ptr<CDevice> device);
    /// Disconnects the device, also one that is lost; raises nothing.
    void RemoveDevice();
    /// The device that is connected, or null.
    std::shared_ptr<CDevice> Device() const;
    /// Puts a device back that went away by its own knob and raises connection state 7; nothing
    /// when none is lost.
    void BringBackLostDevice();

    /// Raise connection events to the subscribers, whatever the device does.
    void RaiseConnectionState(contract::Status status, std::int32_t state);
    void RaiseConnectionEvent2(std::int32_t first, std::int32_t second);

    /// What the context's queries answer; null, as at first, for no such interface.
    void SetHostViewControl(std::shared_ptr<contract::IHostViewControl> control);
    void SetMessageService(std::shared_ptr<contract::IMessageService> service);

    /// Phone polling; on at first.
    bool PollingEnabled() const;
    void SetPollingEnabled(bool enabled);

    /// Who still holds on to the host: members of the context that have not unregistered, and event
    /// subscriptions.
    std::size_t ContextMemberCount() const;
    std::size_t DeviceSubscriberCount() const;
    std::size_t ConnectionSubscriberCount() const;

private:
    const KnobOptions m_knobOptions;
    const std::shared_ptr<CDeviceSlot> m_slot;
    const std::shared_ptr<CHostContext> m_context;
    const std::shared_ptr<CHostConnection> m_connection;
    const std::shared_ptr<CProductInformation> m_product;
    const std::shared_ptr<CKnobSwitch> m_knobSwitch;
    std::shared_ptr<CKnobs> m_knobs;
    std::shared_ptr<contract::IContext> m_contextToHand;
    std::shared_ptr<contract::ISubsystemAccess> m_accessToHand;
    std::shared_ptr<contract::IConnection> m_connectionToHand;
};

}
