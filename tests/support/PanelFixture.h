#pragma once

#include "frontend/headless/HeadlessDesktop.h"
#include "frontend/headless/HeadlessView.h"
#include "interception/CallRecorder.h"
#include "interception/FaultInjector.h"
#include "interception/Interception.h"
#include "panel/control/KRX8Maintenance.h"
#include "panel/control/PanelTemplate.h"
#include "simulator/Device.h"
#include "simulator/Host.h"
#include "tests/support/Border.h"
#include "tests/support/HostDoubles.h"
#include "tests/support/SampleDevices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace support {

/// A panel in the headless front end, in a simulated host whose every call is recorded and can be
/// made to fail.
///
/// The host offers a view control and a message service unless a test takes them away before
/// StartPanel. Every test ends with the panel's end and the proof that nothing is left: no prompt
/// unanswered, no wait cursor, no reference, no subscription.
class PanelFixture : public testing::Test {
protected:
    PanelFixture();
    ~PanelFixture() override;
    void TearDown() override;

    /// Context (registering form), view, subsystem access and connection, in that order; no device.
    void StartPanel();
    /// The first half of StartPanel: context and view.
    void StartView();

    /// The door to the host's subsystems that the panel is handed.
    virtual std::shared_ptr<contract::ISubsystemAccess> Access() { return host.SubsystemAccess(); }

    /// `object` of the host as the panel gets it: each call recorded, and across what lies between.
    template <class Interface>
    std::shared_ptr<Interface> HandOver(const std::shared_ptr<Interface>& object) {
        return border.Cross(interception.Wrap(object));
    }

    /// Inserts a device and raises connection state 7.
    void ConnectDevice(const simulator::DeviceDescription& description);
    void ConnectDevice(std::int32_t type) { ConnectDevice(HealthyDevice(type)); }
    /// Raises connection state 5 and takes the device away.
    void DisconnectDevice();
    void RaiseState(std::int32_t state) { RaiseState(contract::kSuccess, state); }
    void RaiseState(contract::Status status, std::int32_t state);

    /// Forgets boxes, log and calls so far; the panel itself stays as it is.
    void ForgetWhatWasSeen();
    /// Ends the panel and checks that it let go of everything.
    void EndPanel();
    /// What of the host's is still held or subscribed to: none once the panel has ended.
    std::size_t LeftBehind() const;

    // The user's hands and eyes

    headless::CHeadlessView& View();
    bool PressButton(panel::ControlId id) { return View().Press(id); }
    std::string Field(panel::ControlId id) { return View().GetText(id); }
    std::vector<std::string> Log() { return View().LogLines(panel::kStatusLog); }
    bool IsEnabled(panel::ControlId id) { return View().IsEnabled(id); }
    /// The cells of one row of the file list.
    std::vector<std::string> Row(int row);
    int RowCount() { return View().GetRowCount(panel::kFileList); }

    /// Messages shown since the start or the last look, each exactly once.
    std::vector<Shown> TakeMessages();
    /// Names of the host and device calls since the start or the last look.
    std::vector<std::string> TakeCalls();

    /// What the panel keeps of the device's network and package.
    const panel::PanelState& State() const { return panel->State(); }

    std::shared_ptr<CMessageServiceDouble> messageService;
    std::shared_ptr<CHostViewControlDouble> viewControl;
    std::shared_ptr<headless::HeadlessDesktop> desktop;
    simulator::CHost host;
    std::shared_ptr<interception::CCallRecorder> recorder;
    std::shared_ptr<interception::CFaultInjector> faults;
    interception::CInterception interception;
    CBorder border;
    std::shared_ptr<panel::CKRX8Maintenance> panel;
};

/// The error box that a failing call leads to.
inline Shown ErrorReport(const std::string& text, const std::string& caption,
                         contract::Status status, const std::string& description = "") {
    return {text, caption, 0x10, status.Code(), description};
}

/// A box that no failing call causes.
inline Shown WarningBox(const std::string& text, const std::string& caption) {
    return {text, caption, 0x30, 0, ""};
}

}
