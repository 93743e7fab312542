#include "tests/component/win32/control/SmallHost.h"

namespace controltests {

using contract::Status;

namespace {

constexpr std::uint32_t kCookie = 17;

}

void CSmallHost::RaiseState(std::int32_t state) {
    m_events->RaiseToAll(
        [&](Events& sink) { return sink.ConnectionStateChanged(contract::kSuccess, state); });
}

Status CSmallHost::Register(const std::shared_ptr<contract::IContextMember>& member,
                            std::uint32_t& cookie) {
    if (!member) {
        return contract::kInvalidPointer;
    }
    ++memberCount;
    cookie = kCookie;
    return contract::kSuccess;
}

Status CSmallHost::Unregister(std::uint32_t cookie) {
    if (cookie != kCookie || memberCount == 0) {
        return contract::kUnspecifiedFailure;
    }
    --memberCount;
    return contract::kSuccess;
}

Status CSmallHost::QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) {
    control = viewControl;
    return contract::kSuccess;
}

Status CSmallHost::QueryMessageService(std::shared_ptr<contract::IMessageService>& service) {
    service = messageService;
    return service ? contract::kSuccess : contract::kNoSuchInterface;
}

Status CSmallHost::GetSubsystem(const contract::Guid& identifier,
                                std::shared_ptr<contract::ISubsystem>& subsystem) {
    if (identifier != contract::kProgrammingDeviceSubsystem &&
        identifier != contract::kProductInformationSubsystem) {
        return contract::kUnspecifiedFailure;
    }
    subsystem = shared_from_this();
    return contract::kSuccess;
}

Status CSmallHost::QueryProgrammingDeviceSubsystem(
    std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) {
    subsystem = device;
    return contract::kSuccess;
}

Status
CSmallHost::QueryProductInformation(std::shared_ptr<contract::IProductInformation>& information) {
    information = shared_from_this();
    return contract::kSuccess;
}

Status CSmallHost::GetProductDetection(std::shared_ptr<contract::IProductDetection>& detection) {
    detection = shared_from_this();
    return contract::kSuccess;
}

Status CSmallHost::QueryProductDetectionControl(
    std::shared_ptr<contract::IProductDetectionControl>& control) {
    control = shared_from_this();
    return contract::kSuccess;
}

Status CSmallHost::GetPollingEnabled(bool& enabled) {
    enabled = isPolling;
    return contract::kSuccess;
}

Status CSmallHost::SetPollingEnabled(bool enabled) {
    isPolling = enabled;
    return contract::kSuccess;
}

Status CSmallHost::QueryConnectionState(std::shared_ptr<contract::IConnectionState>& state) {
    state = shared_from_this();
    return contract::kSuccess;
}

Status CSmallHost::QueryBaseObject(std::shared_ptr<contract::IBaseObject<Events>>& object) {
    object = m_events;
    return contract::kSuccess;
}

Status CSmallHost::IsConnected(bool& connected) {
    connected = isConnected;
    return contract::kSuccess;
}

}
