#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

class IConnection;

/// How a host hands the panel its connection object.
class IConnectionClient {
public:
    virtual ~IConnectionClient() = default;

    /// Replaces the connection: the old one is let go, the new one subscribed to. The object
    /// already held changes nothing; null only lets go. Always succeeds; without a subscription the
    /// panel simply receives no connection events.
    virtual Status SetConnection(const std::shared_ptr<IConnection>& connection) = 0;
};

}
