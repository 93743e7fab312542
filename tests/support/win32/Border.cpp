#include "tests/support/Border.h"

#include "component/win32/com/Identifiers.h"
#include "tests/support/win32/MessageServiceClass.h"

namespace support {

struct CBorder::Bridge {
    template <class Interface>
    std::shared_ptr<Interface> Cross(const std::shared_ptr<Interface>& object) {
        return com->Import<Interface>(com->Export(object).Get());
    }

    const std::shared_ptr<component::CBridge> com = std::make_shared<component::CBridge>();
    CMessageServices services{com};
};

CBorder::CBorder() : m_bridge(std::make_unique<Bridge>()) {}

CBorder::~CBorder() = default;

std::shared_ptr<contract::IContext>
CBorder::Cross(const std::shared_ptr<contract::IContext>& object) {
    m_bridge->services.SetContext(object);
    return m_bridge->Cross(object);
}

std::shared_ptr<contract::ISubsystemAccess>
CBorder::Cross(const std::shared_ptr<contract::ISubsystemAccess>& object) {
    return m_bridge->Cross(object);
}

std::shared_ptr<contract::IConnection>
CBorder::Cross(const std::shared_ptr<contract::IConnection>& object) {
    return m_bridge->Cross(object);
}

// COM knows no connection point that is null.
bool CBorder::RefusesNull(std::string_view operation) {
    return operation.ends_with(".FindEventSource");
}

std::size_t CBorder::LiveObjects() const {
    return m_bridge->com->LiveImports() + m_bridge->com->LiveExports();
}

}
