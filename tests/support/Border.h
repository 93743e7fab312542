#pragma once

#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/SubsystemAccess.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace support {

/// What lies between a host and the panel: on Windows COM, which a call passes on its way to the
/// host and an event on its way back; nothing elsewhere.
class CBorder {
public:
    CBorder();
    ~CBorder();
    CBorder(const CBorder&) = delete;
    CBorder& operator=(const CBorder&) = delete;

    /// `object` as it looks from the panel's side.
    std::shared_ptr<contract::IContext> Cross(const std::shared_ptr<contract::IContext>& object);
    std::shared_ptr<contract::ISubsystemAccess>
    Cross(const std::shared_ptr<contract::ISubsystemAccess>& object);
    std::shared_ptr<contract::IConnection>
    Cross(const std::shared_ptr<contract::IConnection>& object);

    /// Whether a null object that `operation` delivers with success arrives as "no such interface".
    static bool RefusesNull(std::string_view operation);

    /// What still stands for an object of the other side: none when nobody holds one any more.
    std::size_t LiveObjects() const;

private:
    struct Bridge;

    const std::unique_ptr<Bridge> m_bridge;
};

}
