#include "tests/support/Border.h"

namespace support {

struct CBorder::Bridge {};

CBorder::CBorder() = default;

CBorder::~CBorder() = default;

std::shared_ptr<contract::IContext>
CBorder::Cross(const std::shared_ptr<contract::IContext>& object) {
    return object;
}

std::shared_ptr<contract::ISubsystemAccess>
CBorder::Cross(const std::shared_ptr<contract::ISubsystemAccess>& object) {
    return object;
}

std::shared_ptr<contract::IConnection>
CBorder::Cross(const std::shared_ptr<contract::IConnection>& object) {
    return object;
}

bool CBorder::RefusesNull(std::string_view) { return false; }

std::size_t CBorder::LiveObjects() const { return 0; }

}
