#include "frontend/win32/Text.h"
#include "tests/component/win32/server/Process.h"
#include "tests/component/win32/server/RegisteredFixture.h"
#include "tests/component/win32/server/SystemContainer.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Input.h"
#include "tests/support/win32/LoadedComponent.h"

#include <optional>

namespace component {

namespace {

using win32tests::Pump;

constexpr int kFileList = 224;
constexpr int kStatusLog = 259;
constexpr int kCloseButton = 230;
constexpr int kHelpButton = 9;

SIZE SizeOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

/// The control in a container that knows nothing of it.
class ContainerTest : public RegisteredFixture {
protected:
    void SetUp() override {
        PrepareContainers();
        m_host.emplace();
        m_container = OpenContainer(m_host->Get());
        Pump();
        ASSERT_NE(ControlWindowIn(m_container), nullptr);
    }

    // Before the fixture looks whether the component has gone.
    void TearDown() override {
        m_host.reset();
        Pump();
    }

    static void ExpectGone(HWND window) {
        Pump();
        EXPECT_FALSE(IsWindow(window));
    }

    void ResizeTo(int width, int height) {
        SetWindowPos(m_container, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        Pump();
    }

    void ExpectControlFillsContainer() {
        const SIZE container = SizeOf(m_container);
        const SIZE control = SizeOf(ControlWindowIn(m_container));
        EXPECT_EQ(control.cx, container.cx);
        EXPECT_EQ(control.cy, container.cy);
        const SIZE view = SizeOf(ControlWindowIn(ControlWindowIn(m_container)));
        EXPECT_EQ(view.cx, container.cx);
        EXPECT_EQ(view.cy, container.cy);
    }

    std::optional<win32tests::CHostWindow> m_host;
    HWND m_container = nullptr;
};

TEST_F(ContainerTest, ContainerShowsThePanelInItsWindow) {
    EXPECT_EQ(win32tests::ClassOf(ControlWindowIn(m_container)), L"KRX8Maintenance");
    EXPECT_TRUE(IsWindowVisible(ControlWindowIn(m_container)));
    EXPECT_TRUE(IsWindowVisible(PartIn(m_container, kFileList)));
    EXPECT_TRUE(IsWindowVisible(PartIn(m_container, kHelpButton)));
    EXPECT_EQ(win32tests::TextOf(PartIn(m_container, kHelpButton)), L"&Help");
    ExpectControlFillsContainer();
}

TEST_F(ContainerTest, WithoutContextTheViewIsBare) {
    ASSERT_NE(PartIn(m_container, kCloseButton), nullptr);
    EXPECT_FALSE(IsWindowVisible(PartIn(m_container, kCloseButton)));
    const HWND header =
        reinterpret_cast<HWND>(SendMessageW(PartIn(m_container, kFileList), LVM_GETHEADER, 0, 0));
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 0);
}

TEST_F(ContainerTest, ControlFollowsTheSizeOfItsContainer) {
    for (const auto& [width, height] : {std::pair(900, 650), {450, 300}, {120, 60}, {700, 500}}) {
        ResizeTo(width, height);
        ExpectControlFillsContainer();
    }
}

TEST_F(ContainerTest, PartsOfTheBareViewKeepTheirSize) {
    const SIZE before = SizeOf(PartIn(m_container, kStatusLog));
    ResizeTo(1000, 650);
    const SIZE after = SizeOf(PartIn(m_container, kStatusLog));
    EXPECT_EQ(after.cx, before.cx);
    EXPECT_EQ(after.cy, before.cy);
}

TEST_F(ContainerTest, ContainerHandsOutTheControl) {
    ComPtr<IKRX8Maintenance> panel;
    ASSERT_EQ(ControlIn(m_container)->QueryInterface(IID_PPV_ARGS(panel.GetAddressOf())), S_OK);
    LONG type = 0;
    EXPECT_EQ(panel->get_DeviceType(&type), S_OK);
    EXPECT_EQ(type, 3);
}

TEST_F(ContainerTest, WindowThatEndsFirstLeavesASoundControl) {
    ComPtr<IKRX8Maintenance> panel;
    ASSERT_EQ(ControlIn(m_container)->QueryInterface(IID_PPV_ARGS(panel.GetAddressOf())), S_OK);
    const HWND window = ControlWindowIn(m_container);
    DestroyWindow(m_container);
    ExpectGone(window);
    LONG type = 0;
    EXPECT_EQ(panel->get_DeviceType(&type), S_OK);
    EXPECT_EQ(type, 3);
    EXPECT_EQ(panel.Detach()->Release(), 0u);
}

TEST_F(ContainerTest, ReferenceThatEndsFirstLeavesTheWindow) {
    ComPtr<IUnknown> control = ControlIn(m_container);
    const HWND window = ControlWindowIn(m_container);
    control.Reset();
    Pump();
    EXPECT_TRUE(IsWindowVisible(window));
    DestroyWindow(m_container);
    ExpectGone(window);
}

TEST_F(ContainerTest, ParentThatEndsTakesTheControlAlong) {
    const HWND window = ControlWindowIn(m_container);
    m_host.reset();
    ExpectGone(window);
    ExpectGone(m_container);
}

TEST_F(ContainerTest, SeveralControlsEndInAnyOrder) {
    const HWND second = OpenContainer(m_host->Get());
    const HWND third = OpenContainer(m_host->Get());
    DestroyWindow(second);
    Pump();
    EXPECT_TRUE(IsWindowVisible(ControlWindowIn(m_container)));
    DestroyWindow(m_container);
    Pump();
    EXPECT_TRUE(IsWindowVisible(ControlWindowIn(third)));
}

TEST_F(ContainerTest, ControlInAForeignWindowEndsWithItWhileItIsHeld) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 600, 400,
                                        m_host->Get(), nullptr, nullptr, nullptr);
    ComPtr<IUnknown> holder;
    ComPtr<IUnknown> control;
    ASSERT_EQ(FillWindow(window, holder, control), S_OK);
    Pump();
    const HWND ofControl = ControlWindowIn(window);
    EXPECT_TRUE(IsWindowVisible(ofControl));
    DestroyWindow(window);
    ExpectGone(ofControl);
    ComPtr<IOleObject> object;
    EXPECT_EQ(control->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())), S_OK);
}

TEST_F(ContainerTest, ControlInAForeignWindowEndsWithItAfterTheLastReference) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 600, 400,
                                        m_host->Get(), nullptr, nullptr, nullptr);
    ComPtr<IUnknown> holder;
    ComPtr<IUnknown> control;
    ASSERT_EQ(FillWindow(window, holder, control), S_OK);
    const HWND ofControl = ControlWindowIn(window);
    control.Reset();
    holder.Reset();
    Pump();
    DestroyWindow(window);
    ExpectGone(ofControl);
}

TEST_F(ContainerTest, ClosedContainerLetsTheLibraryGo) {
    const support::CLoadedComponent component(ComponentFile());
    EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
    DestroyWindow(m_container);
    Pump();
    EXPECT_EQ(component.CanUnloadNow(), S_OK);
}

// Each way to end with the control on the screen; 9 says that the host has got there.
TEST_F(ContainerTest, HostsThatEndWithItOpenEndWell) {
    for (const wchar_t* way : {L"quit", L"uninitialize", L"exit"}) {
        const auto status =
            RunProcess(L"\"" + (OwnFolder() / L"win32_quitting_host.exe").wstring() + L"\" " + way);
        ASSERT_TRUE(status) << win32::FromWide(way);
        EXPECT_EQ(*status, 9u) << win32::FromWide(way);
    }
}

}

}
