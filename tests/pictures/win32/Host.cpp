#include "tests/pictures/win32/Host.h"

#include "contract/host/HostViewControl.h"
#include "frontend/win32/Text.h"
#include "simulator/host/HostConnection.h"
#include "tests/frontend/win32/Input.h"
#include "tests/pictures/win32/Site.h"

#include <stdexcept>
#include <utility>

namespace pictures {

namespace {

constexpr int kHimetricPerInch = 2540;
constexpr int kPlace = 40; // of the window's corner on the screen
constexpr DWORD kStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

void Require(HRESULT result, const char* what) {
    if (FAILED(result)) {
        throw std::runtime_error(std::string("the control refuses: ") + what);
    }
}

/// Nobody presses Close here.
class CViewControl final : public contract::IHostViewControl {
public:
    contract::Status ClosePanel() override { return contract::kSuccess; }
};

component::ComPtr<IOleObject> MakeControl(const support::CLoadedComponent& component) {
    component::ComPtr<IOleObject> control;
    Require(component.CreateControl().As(&control), "IOleObject");
    return control;
}

HWND MakeWindow(const std::string& title) {
    return CreateWindowExW(0, L"STATIC", win32::ToWide(title).c_str(), kStyle, kPlace, kPlace, 0, 0,
                           nullptr, nullptr, nullptr, nullptr);
}

SIZE NaturalSizeOf(IOleObject& control) {
    SIZEL extent{};
    Require(control.GetExtent(DVASPECT_CONTENT, &extent), "its natural size");
    const HDC screen = GetDC(nullptr);
    const SIZE pixels{MulDiv(extent.cx, GetDeviceCaps(screen, LOGPIXELSX), kHimetricPerInch),
                      MulDiv(extent.cy, GetDeviceCaps(screen, LOGPIXELSY), kHimetricPerInch)};
    ReleaseDC(nullptr, screen);
    return pixels;
}

void ResizeClient(HWND window, SIZE client) {
    RECT outer{0, 0, client.cx, client.cy};
    AdjustWindowRectEx(&outer, kStyle, FALSE, 0);
    SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
                 SWP_NOMOVE | SWP_NOZORDER);
}

}

CHost::CHost(const support::CLoadedComponent& component, std::shared_ptr<simulator::CDevice> device,
             const std::string& title)
    : m_control(MakeControl(component)), m_window(MakeWindow(title)) {
    m_simulated.SetHostViewControl(std::make_shared<CViewControl>());
    m_simulated.InsertDevice(std::move(device));
    Hand<IContextMember>([this](IContextMember& control) {
        return control.SetContextAndRegister(m_bridge->Export(m_simulated.Context()).Get());
    });
    Show();
    Hand<ISetSubsystemAccess>([this](ISetSubsystemAccess& control) {
        return control.SetSubsystemAccess(m_bridge->Export(m_simulated.SubsystemAccess()).Get());
    });
    Hand<IConnectionClient>([this](IConnectionClient& control) {
        return control.SetConnection(m_bridge->Export(m_simulated.Connection()).Get());
    });
}

CHost::~CHost() {
    m_control->Close(OLECLOSE_NOSAVE);
    m_control->SetClientSite(nullptr);
    DestroyWindow(m_window);
    win32tests::Pump();
}

void CHost::Show() {
    ResizeClient(m_window, NaturalSizeOf(*m_control.Get()));
    ShowWindow(m_window, SW_SHOW);
    SetForegroundWindow(m_window);
    const auto site = component::MakeCom<CSite>(m_window);
    Require(m_control->SetClientSite(site.Get()), "its site");
    RECT place{};
    GetClientRect(m_window, &place);
    Require(m_control->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site.Get(), 0, m_window, &place),
            "being activated");
    m_view = ::GetWindow(::GetWindow(m_window, GW_CHILD), GW_CHILD);
    win32tests::Pump();
}

void CHost::Resize(SIZE client) {
    ResizeClient(m_window, client);
    const RECT place{0, 0, client.cx, client.cy};
    Hand<IOleInPlaceObject>(
        [&](IOleInPlaceObject& control) { return control.SetObjectRects(&place, &place); });
    win32tests::Pump();
}

void CHost::Go() {
    Hand<IGoClient>([](IGoClient& control) { return control.Go(); });
}

template <class Interface, class Give>
void CHost::Hand(Give give) const {
    component::ComPtr<Interface> face;
    Require(m_control.Get()->QueryInterface(IID_PPV_ARGS(face.GetAddressOf())), "an interface");
    Require(give(*face.Get()), "what it is handed");
}

}
