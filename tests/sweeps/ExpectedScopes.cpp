#include "tests/sweeps/ExpectedScopes.h"

#include "tests/sweeps/Expectation.h"

namespace sweeps {

namespace {

constexpr const char* kNoControl = "Query of IProductDetectionControl interface failed";
constexpr const char* kSwitch = "ProductDetectionControl.SetPollingEnabled";

}

CExpectedCursor::CExpectedCursor(CExpectation& panel) : m_panel(panel) { ++panel.waitCursors; }

CExpectedCursor::~CExpectedCursor() { --m_panel.waitCursors; }

CPartOfRefresh::CPartOfRefresh(CExpectation& panel) : m_panel(panel) { ++panel.refreshes; }

CPartOfRefresh::~CPartOfRefresh() { --m_panel.refreshes; }

CExpectedPolling::CExpectedPolling(CExpectation& panel, Suspended suspended) : m_panel(panel) {
    constexpr const char* kCaption = "Product Detection disabler initializing";
    if (!panel.CallInTurn({"SubsystemAccess.GetSubsystem", "Subsystem.QueryProductInformation"})) {
        panel.Report("IProductInformation instance retrieving failed", kCaption);
    } else if (!panel.Call("ProductInformation.GetProductDetection")) {
        panel.Report("IProductDetection getting failed", kCaption);
    } else {
        m_hasDetection = true;
        if (suspended == Suspended::AtOnce) {
            Suspend();
        }
    }
}

void CExpectedPolling::Suspend() {
    constexpr const char* kCaption = "Disabling Product Detection";
    const auto note = [this] { m_wasPolling = m_panel.isPolling; };
    if (!QueryControl()) {
        m_panel.Report(kNoControl, kCaption);
    } else if (!m_panel.Call("ProductDetectionControl.GetPollingEnabled", note)) {
        m_panel.Report("Product Communication state getting failed", kCaption);
    } else if (m_wasPolling && !m_panel.Call(kSwitch, [this] { m_panel.isPolling = false; })) {
        m_panel.Report("Disabling of product polling failed", kCaption);
    }
}

CExpectedPolling::~CExpectedPolling() {
    constexpr const char* kCaption = "Enabling Product Detection";
    if (!QueryControl()) {
        m_panel.Report(kNoControl, kCaption);
    } else if (m_wasPolling && !m_panel.Call(kSwitch, [this] { m_panel.isPolling = true; })) {
        m_panel.Report("Enabling of product polling failed", kCaption);
    }
}

bool CExpectedPolling::QueryControl() {
    if (!m_hasDetection) {
        m_panel.FailWithoutCall(contract::Status::FromBits(0x80004002));
        return false;
    }
    return m_panel.Call("ProductDetection.QueryProductDetectionControl");
}

}
