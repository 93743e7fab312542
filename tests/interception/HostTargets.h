#pragma once

#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/HostViewControl.h"
#include "contract/host/MessageService.h"
#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "contract/panel/ContextMember.h"
#include "tests/interception/Target.h"

namespace interception {

template <>
class CTarget<contract::ISubsystemAccess> final
    : public CRecordingTarget<contract::ISubsystemAccess> {
public:
    contract::Status GetSubsystem(const contract::Guid& identifier,
                                  std::shared_ptr<contract::ISubsystem>& subsystem) override {
        return Receive<&Target::GetSubsystem>(identifier, subsystem);
    }
};

template <>
class CTarget<contract::ISubsystem> final : public CRecordingTarget<contract::ISubsystem> {
public:
    contract::Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) override {
        return Receive<&Target::QueryProgrammingDeviceSubsystem>(subsystem);
    }
    contract::Status
    QueryProductInformation(std::shared_ptr<contract::IProductInformation>& information) override {
        return Receive<&Target::QueryProductInformation>(information);
    }
};

template <>
class CTarget<contract::IProductInformation> final
    : public CRecordingTarget<contract::IProductInformation> {
public:
    contract::Status
    GetProductDetection(std::shared_ptr<contract::IProductDetection>& detection) override {
        return Receive<&Target::GetProductDetection>(detection);
    }
};

template <>
class CTarget<contract::IProductDetection> final
    : public CRecordingTarget<contract::IProductDetection> {
public:
    contract::Status QueryProductDetectionControl(
        std::shared_ptr<contract::IProductDetectionControl>& control) override {
        return Receive<&Target::QueryProductDetectionControl>(control);
    }
};

template <>
class CTarget<contract::IProductDetectionControl> final
    : public CRecordingTarget<contract::IProductDetectionControl> {
public:
    contract::Status GetPollingEnabled(bool& enabled) override {
        return Receive<&Target::GetPollingEnabled>(enabled);
    }
    contract::Status SetPollingEnabled(bool enabled) override {
        return Receive<&Target::SetPollingEnabled>(enabled);
    }
};

template <>
class CTarget<contract::IConnection> final : public CRecordingTarget<contract::IConnection> {
public:
    contract::Status
    QueryConnectionState(std::shared_ptr<contract::IConnectionState>& state) override {
        return Receive<&Target::QueryConnectionState>(state);
    }
    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IExtConnectionEvents>>& object) override {
        return Receive<&Target::QueryBaseObject>(object);
    }
};

template <>
class CTarget<contract::IConnectionState> final
    : public CRecordingTarget<contract::IConnectionState> {
public:
    contract::Status IsConnected(bool& connected) override {
        return Receive<&Target::IsConnected>(connected);
    }
};

template <>
class CTarget<contract::IContext> final : public CRecordingTarget<contract::IContext> {
public:
    contract::Status Register(const std::shared_ptr<contract::IContextMember>& member,
                              std::uint32_t& cookie) override {
        return Receive<&Target::Register>(member, cookie);
    }
    contract::Status Unregister(std::uint32_t cookie) override {
        return Receive<&Target::Unregister>(cookie);
    }
    contract::Status
    QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) override {
        return Receive<&Target::QueryHostViewControl>(control);
    }
    contract::Status
    QueryMessageService(std::shared_ptr<contract::IMessageService>& service) override {
        return Receive<&Target::QueryMessageService>(service);
    }
};

template <>
class CTarget<contract::IHostViewControl> final
    : public CRecordingTarget<contract::IHostViewControl> {
public:
    contract::Status ClosePanel() override { return Receive<&Target::ClosePanel>(); }
};

template <>
class CTarget<contract::IMessageService> final
    : public CRecordingTarget<contract::IMessageService> {
public:
    contract::Status ShowMessage(const contract::Message& message, std::int32_t& button) override {
        return Receive<&Target::ShowMessage>(message, button);
    }
};

template <>
class CTarget<contract::_IExtConnectionEvents> final
    : public CRecordingTarget<contract::_IExtConnectionEvents> {
public:
    contract::Status ConnectionStateChanged(contract::Status status, std::int32_t state) override {
        return Receive<&Target::ConnectionStateChanged>(status, state);
    }
    contract::Status Event2(std::int32_t first, std::int32_t second) override {
        return Receive<&Target::Event2>(first, second);
    }
};

template <>
class CTarget<contract::IContextMember> final : public CRecordingTarget<contract::IContextMember> {
public:
    contract::Status
    SetContextAndRegister(const std::shared_ptr<contract::IContext>& context) override {
        return Receive<&Target::SetContextAndRegister>(context);
    }
    contract::Status SetContext(const std::shared_ptr<contract::IContext>& context) override {
        return Receive<&Target::SetContext>(context);
    }
};

}
