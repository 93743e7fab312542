#include "simulator/Host.h"

#include "simulator/host/HostConnection.h"
#include "simulator/host/HostContext.h"
#include "simulator/host/HostSubsystemAccess.h"
#include "simulator/host/KnobSwitch.h"
#include "simulator/host/Knobs.h"

#include <utility>

namespace simulator {

CHost::CHost(KnobOptions knobs)
    : m_knobOptions(std::move(knobs)),
      m_slot(std::make_shared<CDeviceSlot>()),
      m_context(std::make_shared<CHostContext>()),
      m_connection(std::make_shared<CHostConnection>(m_slot)),
      m_product(std::make_shared<CProductInformation>()),
      m_knobSwitch(std::make_shared<CKnobSwitch>()),
      m_contextToHand(m_context),
      m_accessToHand(std::make_shared<CHostSubsystemAccess>(m_slot, m_product)),
      m_connectionToHand(m_connection) {
    if (!m_knobOptions.areApplied) {
        return;
    }
    const interception::CInterception interception(m_knobSwitch);
    m_contextToHand = interception.Wrap(m_contextToHand);
    m_accessToHand = interception.Wrap(m_accessToHand);
    m_connectionToHand = interception.Wrap(m_connectionToHand);
}

CHost::~CHost() = default;

void CHost::InsertDevice(std::shared_ptr<CDevice> device) {
    if (m_knobOptions.areApplied) {
        m_knobs = CKnobs::Create(device, m_slot, m_connection, m_knobOptions.sleep);
    }
    m_knobSwitch->Select(m_knobs);
    m_slot->Insert(std::move(device));
}

void CHost::RemoveDevice() {
    m_knobs.reset();
    m_knobSwitch->Select(nullptr);
    m_slot->Insert(nullptr);
}

std::shared_ptr<CDevice> CHost::Device() const { return m_slot->Device(); }

void CHost::BringBackLostDevice() {
    if (const auto knobs = m_knobs) {
        knobs->BringBack();
    }
}

void CHost::RaiseConnectionState(contract::Status status, std::int32_t state) {
    m_connection->RaiseState(status, state);
}

void CHost::RaiseConnectionEvent2(std::int32_t first, std::int32_t second) {
    m_connection->Events().RaiseToAll([&](auto& sink) { return sink.Event2(first, second); });
}

void CHost::SetHostViewControl(std::shared_ptr<contract::IHostViewControl> control) {
    m_context->SetHostViewControl(std::move(control));
}

void CHost::SetMessageService(std::shared_ptr<contract::IMessageService> service) {
    m_context->SetMessageService(std::move(service));
}

bool CHost::PollingEnabled() const { return m_product->IsPollingEnabled(); }

void CHost::SetPollingEnabled(bool enabled) {
    static_cast<void>(m_product->SetPollingEnabled(enabled));
}

std::size_t CHost::ContextMemberCount() const { return m_context->MemberCount(); }

std::size_t CHost::DeviceSubscriberCount() const { return m_slot->Events()->SubscriberCount(); }

std::size_t CHost::ConnectionSubscriberCount() const {
    return m_connection->Events().SubscriberCount();
}

}
