#pragma once

#include "interception/FaultInjector.h"
#include "interception/Interceptor.h"
#include "interception/Latency.h"
#include "simulator/host/HostConnection.h"

#include <memory>

namespace simulator {

/// The knobs of the description of one device while it is in a host: latency, faults, and the loss
/// of the device. Stands before every operation of the host.
class CKnobs final : public interception::IInterceptor {
public:
    /// Null for a device whose description turns no knob.
    static std::shared_ptr<CKnobs> Create(const std::shared_ptr<CDevice>& device,
                                          const std::shared_ptr<CDeviceSlot>& slot,
                                          const std::shared_ptr<CHostConnection>& connection,
                                          interception::CLatency::Sleep sleep);

    CKnobs(std::shared_ptr<CDevice> device, std::weak_ptr<CDeviceSlot> slot,
           std::weak_ptr<CHostConnection> connection, interception::CLatency::Sleep sleep);

    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override;

    /// Puts a lost device back and raises state 7; nothing when it is not lost.
    void BringBack();

private:
    void SetLatency(const Latency& latency);
    void AddFault(const Fault& fault);
    void AddLoss(const DeviceLoss& loss);
    void Lose(const DeviceLoss& loss);

    const std::shared_ptr<CDevice> m_device;
    // Weak: slot and connection hold the sinks, which reach back here through their wrappers.
    const std::weak_ptr<CDeviceSlot> m_slot;
    const std::weak_ptr<CHostConnection> m_connection;
    interception::CLatency m_latency;
    interception::CFaultInjector m_faults;
    bool m_isLost = false;
};

}
