#include "interception/Forwarders.h"

#include "interception/Forwarder.h"

#include <utility>

namespace interception {

using namespace contract;

namespace {

class CSubsystemAccessForwarder final : public CForwarder<ISubsystemAccess> {
public:
    using CForwarder::CForwarder;

    Status GetSubsystem(const Guid& identifier, std::shared_ptr<ISubsystem>& subsystem) override {
        return CallForObject<&Target::GetSubsystem>("SubsystemAccess.GetSubsystem", subsystem,
                                                    identifier);
    }
};

class CSubsystemForwarder final : public CForwarder<ISubsystem> {
public:
    using CForwarder::CForwarder;

    Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<IProgrammingDeviceSubsystem>& subsystem) override {
        return CallForObject<&Target::QueryProgrammingDeviceSubsystem>(
            "Subsystem.QueryProgrammingDeviceSubsystem", subsystem);
    }
    Status QueryProductInformation(std::shared_ptr<IProductInformation>& information) override {
        return CallForObject<&Target::QueryProductInformation>("Subsystem.QueryProductInformation",
                                                               information);
    }
};

class CProductInformationForwarder final : public CForwarder<IProductInformation> {
public:
    using CForwarder::CForwarder;

    Status GetProductDetection(std::shared_ptr<IProductDetection>& detection) override {
        return CallForObject<&Target::GetProductDetection>("ProductInformation.GetProductDetection",
                                                           detection);
    }
};

class CProductDetectionForwarder final : public CForwarder<IProductDetection> {
public:
    using CForwarder::CForwarder;

    Status
    QueryProductDetectionControl(std::shared_ptr<IProductDetectionControl>& control) override {
        return CallForObject<&Target::QueryProductDetectionControl>(
            "ProductDetection.QueryProductDetectionControl", control);
    }
};

class CProductDetectionControlForwarder final : public CForwarder<IProductDetectionControl> {
public:
    using CForwarder::CForwarder;

    Status GetPollingEnabled(bool& enabled) override {
        return Call<&Target::GetPollingEnabled>("ProductDetectionControl.GetPollingEnabled",
                                                enabled);
    }
    Status SetPollingEnabled(bool enabled) override {
        return Call<&Target::SetPollingEnabled>("ProductDetectionControl.SetPollingEnabled",
                                                enabled);
    }
};

class CConnectionForwarder final : public CForwarder<IConnection> {
public:
    using CForwarder::CForwarder;

    Status QueryConnectionState(std::shared_ptr<IConnectionState>& state) override {
        return CallForObject<&Target::QueryConnectionState>("Connection.QueryConnectionState",
                                                            state);
    }
    Status QueryBaseObject(std::shared_ptr<IBaseObject<_IExtConnectionEvents>>& object) override {
        return CallForObject<&Target::QueryBaseObject>("Connection.QueryBaseObject", object);
    }
};

class CConnectionStateForwarder final : public CForwarder<IConnectionState> {
public:
    using CForwarder::CForwarder;

    Status IsConnected(bool& connected) override {
        return Call<&Target::IsConnected>("ConnectionState.IsConnected", connected);
    }
};

class CContextForwarder final : public CForwarder<IContext> {
public:
    using CForwarder::CForwarder;

    Status Register(const std::shared_ptr<IContextMember>& member, std::uint32_t& cookie) override {
        return Call<&Target::Register>("Context.Register", member, cookie);
    }
    Status Unregister(std::uint32_t cookie) override {
        return Call<&Target::Unregister>("Context.Unregister", cookie);
    }
    Status QueryHostViewControl(std::shared_ptr<IHostViewControl>& control) override {
        return CallForObject<&Target::QueryHostViewControl>("Context.QueryHostViewControl",
                                                            control);
    }
    Status QueryMessageService(std::shared_ptr<IMessageService>& service) override {
        return CallForObject<&Target::QueryMessageService>("Context.QueryMessageService", service);
    }
};

class CHostViewControlForwarder final : public CForwarder<IHostViewControl> {
public:
    using CForwarder::CForwarder;

    Status ClosePanel() override { return Call<&Target::ClosePanel>("HostViewControl.ClosePanel"); }
};

class CMessageServiceForwarder final : public CForwarder<IMessageService> {
public:
    using CForwarder::CForwarder;

    Status ShowMessage(const Message& message, std::int32_t& button) override {
        return Call<&Target::ShowMessage>("MessageService.ShowMessage", message, button);
    }
};

}

Reference<ISubsystemAccess> MakeForwarder(RegistryReference registry,
                                          Reference<ISubsystemAccess> target) {
    return std::make_shared<CSubsystemAccessForwarder>(std::move(registry), std::move(target));
}

Reference<ISubsystem> MakeForwarder(RegistryReference registry, Reference<ISubsystem> target) {
    return std::make_shared<CSubsystemForwarder>(std::move(registry), std::move(target));
}

Reference<IProductInformation> MakeForwarder(RegistryReference registry,
                                             Reference<IProductInformation> target) {
    return std::make_shared<CProductInformationForwarder>(std::move(registry), std::move(target));
}

Reference<IProductDetection> MakeForwarder(RegistryReference registry,
                                           Reference<IProductDetection> target) {
    return std::make_shared<CProductDetectionForwarder>(std::move(registry), std::move(target));
}

Reference<IProductDetectionControl> MakeForwarder(RegistryReference registry,
                                                  Reference<IProductDetectionControl> target) {
    return std::make_shared<CProductDetectionControlForwarder>(std::move(registry),
                                                               std::move(target));
}

Reference<IConnection> MakeForwarder(RegistryReference registry, Reference<IConnection> target) {
    return std::make_shared<CConnectionForwarder>(std::move(registry), std::move(target));
}

Reference<IConnectionState> MakeForwarder(RegistryReference registry,
                                          Reference<IConnectionState> target) {
    return std::make_shared<CConnectionStateForwarder>(std::move(registry), std::move(target));
}

Reference<IContext> MakeForwarder(RegistryReference registry, Reference<IContext> target) {
    return std::make_shared<CContextForwarder>(std::move(registry), std::move(target));
}

Reference<IHostViewControl> MakeForwarder(RegistryReference registry,
                                          Reference<IHostViewControl> target) {
    return std::make_shared<CHostViewControlForwarder>(std::move(registry), std::move(target));
}

Reference<IMessageService> MakeForwarder(RegistryReference registry,
                                         Reference<IMessageService> target) {
    return std::make_shared<CMessageServiceForwarder>(std::move(registry), std::move(target));
}

}
