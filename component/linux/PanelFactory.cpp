#include "component/linux/PanelFactory.h"

#include "frontend/qt/QtToolkit.h"
#include "panel/control/KRX8Maintenance.h"

namespace component {

using contract::Status;

namespace {

/// The panel owns its toolkit, so the use ends when the panel does, however long handlers of its
/// own keep it alive.
class CCountedToolkit : public qt::CQtToolkit {
public:
    explicit CCountedToolkit(CModuleUse& module) : m_use(module) {}

private:
    const CUse m_use;
};

}

Status CPanelFactory::CreatePanel(std::shared_ptr<contract::IPanel>& panel) {
    panel = panel::CKRX8Maintenance::Create(std::make_unique<CCountedToolkit>(m_module));
    return contract::kSuccess;
}

Status CPanelFactory::LockServer(bool lock) {
    if (lock) {
        m_module.Lock();
        return contract::kSuccess;
    }
    return m_module.Unlock() ? contract::kSuccess : contract::kUnspecifiedFailure;
}

}
