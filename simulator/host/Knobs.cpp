#include "simulator/host/Knobs.h"

#include "interception/Operations.h"

#include <chrono>
#include <utility>

namespace simulator {

std::shared_ptr<CKnobs> CKnobs::Create(const std::shared_ptr<CDevice>& device,
                                       const std::shared_ptr<CDeviceSlot>& slot,
                                       const std::shared_ptr<CHostConnection>& connection,
                                       interception::CLatency::Sleep sleep) {
    const auto& description = device->Description();
    if (description.faults.empty() && !description.loss && description.latency == Latency()) {
        return nullptr;
    }
    return std::make_shared<CKnobs>(device, slot, connection, std::move(sleep));
}

CKnobs::CKnobs(std::shared_ptr<CDevice> device, std::weak_ptr<CDeviceSlot> slot,
               std::weak_ptr<CHostConnection> connection, interception::CLatency::Sleep sleep)
    : m_device(std::move(device)),
      m_slot(std::move(slot)),
      m_connection(std::move(connection)),
      m_latency(std::move(sleep)) {
    const auto& description = m_device->Description();
    SetLatency(description.latency);
    for (const auto& fault : description.faults) {
        AddFault(fault);
    }
    if (description.loss) {
        AddLoss(*description.loss);
    }
}

contract::Status CKnobs::Call(const interception::Operation& operation,
                              interception::FunctionRef<contract::Status()> run) {
    return m_latency.Call(operation, [&] { return m_faults.Call(operation, run); });
}

void CKnobs::SetLatency(const Latency& latency) {
    for (const auto& operation : interception::Operations()) {
        if (operation.provider == interception::Provider::Device) {
            m_latency.Set(operation.name, std::chrono::milliseconds(latency.defaultMs));
        }
    }
    for (const auto& [operation, timeMs] : latency.operationsMs) {
        m_latency.Set(operation, std::chrono::milliseconds(timeMs));
    }
}

void CKnobs::AddFault(const Fault& fault) {
    const interception::NthCall call{fault.call, fault.operation};
    if (fault.succeedsWithNull) {
        m_faults.DeliverNull(call);
    } else {
        m_faults.Fail(call, {fault.status, fault.description});
    }
}

void CKnobs::AddLoss(const DeviceLoss& loss) {
    const interception::NthCall call{loss.call, loss.operation};
    // The injector is part of this object, so that a plain `this` is good in its callbacks.
    m_faults.RunBefore(call, [this, loss] { Lose(loss); });
    m_faults.Fail(call, {kDeviceNotConnected, "The programming device was disconnected"});
}

void CKnobs::Lose(const DeviceLoss& loss) {
    const auto slot = m_slot.lock();
    const auto connection = m_connection.lock();
    if (!slot || !connection || slot->Device() != m_device) {
        return;
    }
    m_isLost = true;
    if (loss.returnsAfterCalls) {
        m_faults.RunBefore({m_faults.Calls() + *loss.returnsAfterCalls + 1},
                           [this] { BringBack(); });
    }
    slot->Insert(nullptr);
    connection->RaiseState(contract::kSuccess, contract::kConnectionDeviceGone);
}

void CKnobs::BringBack() {
    const auto slot = m_slot.lock();
    const auto connection = m_connection.lock();
    if (!slot || !connection || !std::exchange(m_isLost, false)) {
        return;
    }
    slot->Insert(m_device);
    connection->RaiseState(contract::kSuccess, contract::kConnectionDeviceReady);
}

}
