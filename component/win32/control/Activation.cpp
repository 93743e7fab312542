#include "component/win32/control/Activation.h"

#include "frontend/win32/Counted.h"

#include <utility>

namespace component {

namespace {

// For containers that move the keyboard about among their controls.
void TellFocus(IUnknown& site, BOOL hasFocus) {
    ComPtr<IOleControlSite> controlSite;
    if (SUCCEEDED(site.QueryInterface(IID_PPV_ARGS(controlSite.GetAddressOf())))) {
        controlSite->OnFocus(hasFocus);
    }
}

HRESULT AskForEntry(IOleInPlaceSite& site) {
    const HRESULT result = site.CanInPlaceActivate();
    if (result != S_OK) {
        return FAILED(result) ? result : E_FAIL;
    }
    return site.OnInPlaceActivate();
}

}

/// What a site says of the place that it has for the control.
struct CActivation::Context {
    static HRESULT Find(IOleInPlaceSite& site, Context& context);

    HWND parent = nullptr;
    Frames frames;
    RECT place{};
    RECT clip{};
};

HRESULT CActivation::Context::Find(IOleInPlaceSite& site, Context& context) {
    HRESULT result = site.GetWindow(&context.parent);
    if (FAILED(result)) {
        return result;
    }
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    result = site.GetWindowContext(frame.GetAddressOf(), document.GetAddressOf(), &context.place,
                                   &context.clip, &info);
    context.frames = {frame, document};
    return SUCCEEDED(result) && !IsWindow(context.parent) ? E_UNEXPECTED : result;
}

HRESULT CActivation::Activate(IOleClientSite* site, bool forUser) {
    if (m_stage == Stage::Moving || !site) {
        return E_UNEXPECTED;
    }
    if (!GetWindow()) {
        // Its window may have gone with the container's.
        Deactivate();
        const HRESULT result = HasEnded() ? E_UNEXPECTED : Enter(*site);
        if (FAILED(result)) {
            return result;
        }
    }
    return forUser ? ActivateForUser() : S_OK;
}

HRESULT CActivation::Enter(IOleClientSite& clientSite) {
    ComPtr<IOleInPlaceSite> site;
    HRESULT result = clientSite.QueryInterface(IID_PPV_ARGS(site.GetAddressOf()));
    if (FAILED(result)) {
        return result;
    }
    m_stage = Stage::Moving;
    result = AskForEntry(*site.Get());
    if (SUCCEEDED(result)) {
        m_site = site;
        result = TakePlace(*site.Get());
    }
    if (FAILED(result)) {
        Deactivate();
        return result;
    }
    clientSite.ShowObject();
    return S_OK;
}

HRESULT CActivation::TakePlace(IOleInPlaceSite& site) {
    Context context;
    HRESULT result = Context::Find(site, context);
    if (SUCCEEDED(result) && m_stage == Stage::Moving) {
        result = MakeWindow(context.parent);
    }
    if (FAILED(result) || m_stage != Stage::Moving) {
        return FAILED(result) ? result : E_UNEXPECTED;
    }
    m_stage = Stage::InPlace;
    m_frames = context.frames;
    m_window->Place(context.place, context.clip);
    m_window->ShowIn(context.parent);
    return S_OK;
}

HRESULT CActivation::MakeWindow(HWND parent) {
    if (m_window && m_window->Get()) {
        return S_OK;
    }
    // Each holds the control, which the container may let go of inside.
    CControlWindow::Events events;
    events.onResized = [this](SIZE client) {
        const ComPtr<IUnknown> self(&m_activeObject);
        m_panel.Resize({client.cx, client.cy});
    };
    events.onActivated = [this] {
        const ComPtr<IUnknown> self(&m_activeObject);
        static_cast<void>(ActivateForUser());
    };
    m_window = CControlWindow::Create(parent, std::move(events));
    if (!m_window) {
        // A hook that refuses a window need not say why.
        const DWORD error = GetLastError();
        return error ? HRESULT_FROM_WIN32(error) : E_FAIL;
    }
    const contract::Status status = m_panel.CreateView(m_window->Get());
    if (status.IsFailure()) {
        m_window.reset();
    } else {
        m_window->WatchView();
    }
    return status.Code();
}

HRESULT CActivation::ActivateForUser() {
    if (m_leaveDepth > 0) {
        return E_UNEXPECTED;
    }
    const HRESULT result = m_stage == Stage::InPlace ? TakeFrames() : S_OK;
    if (m_stage == Stage::ForUser) {
        m_window->TakeFocus();
    }
    return result;
}

HRESULT CActivation::TakeFrames() {
    const ComPtr<IOleInPlaceSite> site = m_site;
    m_stage = Stage::ForUser;
    const HRESULT result = site->OnUIActivate();
    if (m_stage == Stage::ForUser && FAILED(result)) {
        m_stage = Stage::InPlace;
    }
    for (const auto& frame : Frames(m_frames)) {
        if (frame && m_stage == Stage::ForUser) {
            frame->SetActiveObject(&m_activeObject, nullptr);
            // It has no tools of its own to be put around the container's window.
            frame->SetBorderSpace(nullptr);
        }
    }
    if (m_stage == Stage::ForUser) {
        TellFocus(*site.Get(), TRUE);
    }
    return result;
}

void CActivation::DeactivateForUser() {
    if (m_stage != Stage::ForUser) {
        return;
    }
    m_stage = Stage::InPlace;
    LeaveFrames();
}

void CActivation::LeaveFrames() {
    // Those of now: the container may end the activation altogether inside the first call.
    const ComPtr<IOleInPlaceSite> site = m_site;
    const Frames frames = m_frames;
    const win32::CCounted depth(m_leaveDepth);
    TellFocus(*site.Get(), FALSE);
    for (const auto& frame : frames) {
        if (frame) {
            frame->SetActiveObject(nullptr, nullptr);
        }
    }
    site->OnUIDeactivate(FALSE);
}

void CActivation::Deactivate() {
    if (std::exchange(m_stage, Stage::Moving) == Stage::ForUser) {
        LeaveFrames();
    }
    m_stage = Stage::Moving;
    if (m_window && m_window->Get()) {
        m_window->Park();
    }
    m_stage = Stage::Outside;
    m_frames = {};
    // The site may ask for the same again.
    if (const ComPtr<IOleInPlaceSite> site = std::move(m_site)) {
        site->OnInPlaceDeactivate();
    }
}

void CActivation::Close() {
    m_isClosed = true;
    Deactivate();
    m_panel.DestroyView();
    m_window.reset();
}

HRESULT CActivation::SetPlace(const RECT& place, const RECT& clip) {
    if (!GetWindow()) {
        return E_UNEXPECTED;
    }
    m_window->Place(place, clip);
    return S_OK;
}

HWND CActivation::GetWindow() const {
    return m_stage >= Stage::InPlace && m_window ? m_window->Get() : nullptr;
}

HWND CActivation::GetView() const { return m_window ? m_window->GetView() : nullptr; }

}
