#pragma once

#include "contract/panel/ConnectionClient.h"
#include "contract/panel/GoClient.h"
#include "contract/panel/SetSubsystemAccess.h"
#include "tests/interception/Target.h"

namespace interception {

template <>
class CTarget<contract::IConnectionClient> final
    : public CRecordingTarget<contract::IConnectionClient> {
public:
    contract::Status
    SetConnection(const std::shared_ptr<contract::IConnection>& connection) override {
        return Receive<&Target::SetConnection>(connection);
    }
};

template <>
class CTarget<contract::ISetSubsystemAccess> final
    : public CRecordingTarget<contract::ISetSubsystemAccess> {
public:
    contract::Status
    SetSubsystemAccess(const std::shared_ptr<contract::ISubsystemAccess>& access) override {
        return Receive<&Target::SetSubsystemAccess>(access);
    }
};

template <>
class CTarget<contract::IGoClient> final : public CRecordingTarget<contract::IGoClient> {
public:
    contract::Status Go() override { return Receive<&Target::Go>(); }
};

}
