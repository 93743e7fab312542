#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"

#include <memory>

namespace contract {
class IProductDetection;
class IProductDetectionControl;
}

namespace panel {

/// Keeps the host from polling for phones for the length of a scope, and leaves polling as it was
/// found: what was off before stays off.
///
/// Every failure is reported once where it happens and concerns nobody else: the operation that
/// owns the scope goes on. Its end calls the host and may report too. User-interface thread only.
class CProductDetectionDisabler {
public:
    /// Obtains the host's product detection and, with `suspendNow`, suspends polling.
    CProductDetectionDisabler(PanelServices& services, bool suspendNow);
    /// Resumes polling if this object has suspended it.
    ~CProductDetectionDisabler();
    CProductDetectionDisabler(const CProductDetectionDisabler&) = delete;
    CProductDetectionDisabler& operator=(const CProductDetectionDisabler&) = delete;

    /// Suspends polling if it is on.
    void Suspend();

private:
    using Control = std::shared_ptr<contract::IProductDetectionControl>;

    void Initialize();
    void Restore();
    contract::Status QueryControl(Control& control) const;
    /// True for a success; a failure has been reported.
    bool Passes(contract::Status status, const char* failureText, const char* context) const;

    PanelServices& m_services;
    std::shared_ptr<contract::IProductDetection> m_detection;
    bool m_wasPollingOn = false;
};

}
