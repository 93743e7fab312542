#pragma once

#include "component/common/ModuleUse.h"
#include "contract/panel/PanelFactory.h"

namespace component {

/// Makes panels with a view of Qt widgets.
class CPanelFactory final : public contract::IPanelFactory {
public:
    explicit CPanelFactory(CModuleUse& module) : m_module(module), m_use(module) {}

    contract::Status CreatePanel(std::shared_ptr<contract::IPanel>& panel) override;
    contract::Status LockServer(bool lock) override;

private:
    CModuleUse& m_module;
    const CUse m_use;
};

}
