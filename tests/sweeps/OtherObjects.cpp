#include "tests/sweeps/OtherObjects.h"

#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/SubsystemAccess.h"

#include <utility>

namespace sweeps {

namespace {

class COtherContext final : public contract::IContext {
public:
    explicit COtherContext(std::shared_ptr<contract::IContext> context)
        : m_context(std::move(context)) {}

    contract::Status Register(const std::shared_ptr<contract::IContextMember>& member,
                              std::uint32_t& cookie) override {
        return m_context->Register(member, cookie);
    }
    contract::Status Unregister(std::uint32_t cookie) override {
        return m_context->Unregister(cookie);
    }
    contract::Status
    QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) override {
        return m_context->QueryHostViewControl(control);
    }
    contract::Status
    QueryMessageService(std::shared_ptr<contract::IMessageService>& service) override {
        return m_context->QueryMessageService(service);
    }

private:
    const std::shared_ptr<contract::IContext> m_context;
};

class COtherAccess final : public contract::ISubsystemAccess {
public:
    explicit COtherAccess(std::shared_ptr<contract::ISubsystemAccess> access)
        : m_access(std::move(access)) {}

    contract::Status GetSubsystem(const contract::Guid& identifier,
                                  std::shared_ptr<contract::ISubsystem>& subsystem) override {
        return m_access->GetSubsystem(identifier, subsystem);
    }

private:
    const std::shared_ptr<contract::ISubsystemAccess> m_access;
};

class COtherConnection final : public contract::IConnection {
public:
    explicit COtherConnection(std::shared_ptr<contract::IConnection> connection)
        : m_connection(std::move(connection)) {}

    contract::Status
    QueryConnectionState(std::shared_ptr<contract::IConnectionState>& state) override {
        return m_connection->QueryConnectionState(state);
    }
    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IExtConnectionEvents>>& object) override {
        return m_connection->QueryBaseObject(object);
    }

private:
    const std::shared_ptr<contract::IConnection> m_connection;
};

}

std::shared_ptr<contract::IContext> InPlaceOf(std::shared_ptr<contract::IContext> context) {
    return std::make_shared<COtherContext>(std::move(context));
}

std::shared_ptr<contract::ISubsystemAccess>
InPlaceOf(std::shared_ptr<contract::ISubsystemAccess> access) {
    return std::make_shared<COtherAccess>(std::move(access));
}

std::shared_ptr<contract::IConnection>
InPlaceOf(std::shared_ptr<contract::IConnection> connection) {
    return std::make_shared<COtherConnection>(std::move(connection));
}

}
