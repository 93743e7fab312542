#include "panel/device/ProductDetectionDisabler.h"

#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/Trace.h"
#include "panel/device/DeviceConnection.h"

namespace panel {

using contract::IProductDetection;
using contract::IProductDetectionControl;
using contract::Status;

namespace {

constexpr const char* kInitializing = "Product Detection disabler initializing";
constexpr const char* kDisabling = "Disabling Product Detection";
constexpr const char* kEnabling = "Enabling Product Detection";
constexpr const char* kQueryFailed = "Query of IProductDetectionControl interface failed";

Status ObtainProductInformation(const std::shared_ptr<contract::ISubsystemAccess>& access,
                                std::shared_ptr<contract::IProductInformation>& information) {
    std::shared_ptr<contract::ISubsystem> subsystem;
    const Status status = Obtain(access, &contract::ISubsystemAccess::GetSubsystem,
                                 contract::kProductInformationSubsystem, subsystem);
    return status.IsFailure()
               ? status
               : Query(subsystem, &contract::ISubsystem::QueryProductInformation, information);
}

}

CProductDetectionDisabler::CProductDetectionDisabler(PanelServices& services, bool suspendNow)
    : m_services(services) {
    Initialize();
    if (suspendNow && m_detection) {
        Suspend();
    }
}

CProductDetectionDisabler::~CProductDetectionDisabler() { Restore(); }

void CProductDetectionDisabler::Initialize() {
    std::shared_ptr<contract::IProductInformation> information;
    if (Passes(ObtainProductInformation(m_services.device.Access(), information),
               "IProductInformation instance retrieving failed", kInitializing)) {
        Passes(
            Obtain(information, &contract::IProductInformation::GetProductDetection, m_detection),
            "IProductDetection getting failed", kInitializing);
    }
}

void CProductDetectionDisabler::Suspend() {
    Control control;
    bool isPollingOn = false;
    const bool isKnown =
        Passes(QueryControl(control), kQueryFailed, kDisabling) &&
        Passes(Call(control, &IProductDetectionControl::GetPollingEnabled, isPollingOn),
               "Product Communication state getting failed", kDisabling);
    // Noted before polling is switched off: should that fail half-way, it is switched on again.
    m_wasPollingOn = isKnown && isPollingOn;
    if (m_wasPollingOn && Passes(Call(control, &IProductDetectionControl::SetPollingEnabled, false),
                                 "Disabling of product polling failed", kDisabling)) {
        Trace(m_services.toolkit, "Product polling disabled\n");
    }
}

void CProductDetectionDisabler::Restore() {
    Control control;
    if (Passes(QueryControl(control), kQueryFailed, kEnabling) && m_wasPollingOn &&
        Passes(Call(control, &IProductDetectionControl::SetPollingEnabled, true),
               "Enabling of product polling failed", kEnabling)) {
        Trace(m_services.toolkit, "Product polling restored\n");
    }
}

Status CProductDetectionDisabler::QueryControl(Control& control) const {
    const Status status =
        Query(m_detection, &IProductDetection::QueryProductDetectionControl, control);
    return m_detection ? status : contract::kNoSuchInterface;
}

bool CProductDetectionDisabler::Passes(Status status, const char* failureText,
                                       const char* context) const {
    if (status.IsFailure()) {
        m_services.output.ReportError(failureText, context, status);
    }
    return status.IsSuccess();
}

}
