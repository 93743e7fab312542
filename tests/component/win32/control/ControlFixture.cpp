#include "tests/component/win32/control/ControlFixture.h"

#include "tests/frontend/win32/Input.h"

namespace controltests {

namespace {

constexpr const wchar_t* kWindowClass = L"KRX8Maintenance";

BOOL CALLBACK CountAmongChildren(HWND window, LPARAM count) {
    *reinterpret_cast<int*>(count) += win32tests::ClassOf(window) == kWindowClass;
    return TRUE;
}

BOOL CALLBACK CountBelow(HWND window, LPARAM count) {
    EnumChildWindows(window, CountAmongChildren, count);
    return TRUE;
}

}

int CountControlWindows() {
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountBelow, reinterpret_cast<LPARAM>(&count));
    HWND parked = nullptr;
    while ((parked = FindWindowExW(HWND_MESSAGE, parked, kWindowClass, nullptr))) {
        ++count;
    }
    return count;
}

void ControlFixture::Embed() {
    const auto member = container.As<IContextMember>();
    ASSERT_EQ(member->SetContextAndRegister(bridge->Export<contract::IContext>(host).Get()), S_OK);
    container.Embed();
}

void ControlFixture::Start() {
    Embed();
    ASSERT_EQ(container.Activate(), S_OK);
    container.Pump();
}

void ControlFixture::Connect() {
    const auto access = container.As<ISetSubsystemAccess>();
    ASSERT_EQ(access->SetSubsystemAccess(bridge->Export<contract::ISubsystemAccess>(host).Get()),
              S_OK);
    const auto client = container.As<IConnectionClient>();
    ASSERT_EQ(client->SetConnection(bridge->Export<contract::IConnection>(host).Get()), S_OK);
    ASSERT_EQ(container.As<IGoClient>()->Go(), S_OK);
    container.Pump();
}

conformance::IViewUser& ControlFixture::User() { return m_user.emplace(container.View()); }

void ControlFixture::TearDown() {
    container.Release();
    container.Pump();
    ExpectNothingLeft();
}

void ControlFixture::ExpectNothingLeft() {
    EXPECT_EQ(CountControlWindows(), 0);
    EXPECT_EQ(container.Site().Outstanding(), 0u);
    EXPECT_EQ(host->memberCount, 0);
    EXPECT_EQ(host->SubscriberCount(), 0u);
    EXPECT_EQ(host->device->SubscriberCount(), 0u);
    EXPECT_EQ(bridge->LiveExports(), 0u);
    EXPECT_EQ(bridge->LiveImports(), 0u);
    EXPECT_EQ(library.CanUnloadNow(), S_OK);
}

}
