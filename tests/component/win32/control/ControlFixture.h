#pragma once

#include "tests/component/win32/control/Container.h"
#include "tests/component/win32/control/SmallHost.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Win32ViewUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace controltests {

/// The names of a container's calls, in order.
using Calls = std::vector<std::string>;

/// A control in a container, with a host of the contract behind the edge of COM.
///
/// Every test ends with the control's end, however the test has left it, and the proof that nothing
/// is left: no window, no reference to the container or the host, no use of the library.
class ControlFixture : public testing::Test {
protected:
    /// Embeds the control with the host's context.
    void Embed();
    /// The same, and shows it in its place.
    void Start();
    /// Hands over the host's subsystems and its connection, whose device the control reads.
    void Connect();
    void StartConnected() {
        Start();
        Connect();
    }

    conformance::IViewUser& User();
    /// Presses a button with the mouse.
    bool Press(int button) { return User().Press(static_cast<panel::ControlId>(button)); }

    void TearDown() override;
    void ExpectNothingLeft();

    const support::CLoadedComponent library{KRX8_COMPONENT};
    const std::unique_ptr<conformance::IFrontEndDriver> driver = conformance::MakeDriver();
    conformance::IFrontEndDriver& prompts = *driver;
    std::optional<win32tests::CHostWindow> window{std::in_place};
    std::shared_ptr<component::CBridge> bridge = std::make_shared<component::CBridge>();
    std::shared_ptr<CSmallHost> host = std::make_shared<CSmallHost>();
    CContainer container{library, window->Get()};

private:
    std::optional<win32tests::CWin32ViewUser> m_user;
};

/// How many windows of controls there are, wherever they are.
int CountControlWindows();

}
