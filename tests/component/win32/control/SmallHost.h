#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/Contract.h"
#include "tests/component/win32/control/SmallDevice.h"
#include "tests/support/HostDoubles.h"

#include <memory>

namespace controltests {

/// A host of the contract with one device: context, subsystem access and connection.
class CSmallHost final : public contract::IContext,
                         public contract::ISubsystemAccess,
                         public contract::ISubsystem,
                         public contract::IConnection,
                         public contract::IConnectionState,
                         public contract::IProductInformation,
                         public contract::IProductDetection,
                         public contract::IProductDetectionControl,
                         public std::enable_shared_from_this<CSmallHost> {
public:
    using Status = contract::Status;
    using Events = contract::_IExtConnectionEvents;

    const std::shared_ptr<CSmallDevice> device = std::make_shared<CSmallDevice>();
    const std::shared_ptr<support::CHostViewControlDouble> viewControl =
        std::make_shared<support::CHostViewControlDouble>();
    /// Null: the host has none.
    std::shared_ptr<contract::IMessageService> messageService;
    int memberCount = 0;
    bool isConnected = true;
    bool isPolling = true;

    void RaiseState(std::int32_t state);
    std::size_t SubscriberCount() const { return m_events->SubscriberCount(); }

    // contract::IContext
    Status Register(const std::shared_ptr<contract::IContextMember>& member,
                    std::uint32_t& cookie) override;
    Status Unregister(std::uint32_t cookie) override;
    Status QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) override;
    Status QueryMessageService(std::shared_ptr<contract::IMessageService>& service) override;

    // contract::ISubsystemAccess and ISubsystem
    Status GetSubsystem(const contract::Guid& identifier,
                        std::shared_ptr<contract::ISubsystem>& subsystem) override;
    Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) override;
    Status
    QueryProductInformation(std::shared_ptr<contract::IProductInformation>& information) override;

    // contract::IProductInformation, IProductDetection and IProductDetectionControl
    Status GetProductDetection(std::shared_ptr<contract::IProductDetection>& detection) override;
    Status QueryProductDetectionControl(
        std::shared_ptr<contract::IProductDetectionControl>& control) override;
    Status GetPollingEnabled(bool& enabled) override;
    Status SetPollingEnabled(bool enabled) override;

    // contract::IConnection and IConnectionState
    Status QueryConnectionState(std::shared_ptr<contract::IConnectionState>& state) override;
    Status QueryBaseObject(std::shared_ptr<contract::IBaseObject<Events>>& object) override;
    Status IsConnected(bool& connected) override;

private:
    const std::shared_ptr<simulator::CEventSource<Events>> m_events =
        std::make_shared<simulator::CEventSource<Events>>();
};

}
