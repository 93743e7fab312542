#pragma once

#include <memory>

namespace contract {
class IConnection;
class IContext;
class ISubsystemAccess;
}

namespace sweeps {

// Host objects in the place of others: each does what the one given to it does, but is another
// object.

std::shared_ptr<contract::IContext> InPlaceOf(std::shared_ptr<contract::IContext> context);
std::shared_ptr<contract::ISubsystemAccess>
InPlaceOf(std::shared_ptr<contract::ISubsystemAccess> access);
std::shared_ptr<contract::IConnection> InPlaceOf(std::shared_ptr<contract::IConnection> connection);

}
