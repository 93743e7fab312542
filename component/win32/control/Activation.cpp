#include "component/win32/control/Activation.h"

#include <utility>

namespace component {

namespace {

/// True while something goes on inside which a second one of its kind makes no sense.
class CChange {
public:
    explicit CChange(bool& flag) : m_flag(flag) { m_flag = true; }
    ~CChange() { m_flag = false; }
    CChange(const CChange&) = delete;
    CChange& operator=(const CChange&) = delete;

private:
    bool& m_flag;
};

}

/// What a site says of the place that it has for the control.
struct CActivation::Context {
    HWND parent = nullptr;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    RECT place{};
    RECT clip{};
};

HRESULT CActivation::Activate(IOleClientSite* site, bool forUser) {
    if (m_isChanging || !site) {
        return E_UNEXPECTED;
    }
    if (!IsActive()) {
        const CChange change(m_isChanging);
        const HRESULT result = Enter(*site);
        if (FAILED(result)) {
            return result;
        }
    }
    if (forUser) {
        ActivateForUser();
    }
    return S_OK;
}

HRESULT CActivation::Enter(IOleClientSite& clientSite) {
    ComPtr<IOleInPlaceSite> site;
    HRESULT result = clientSite.QueryInterface(IID_PPV_ARGS(site.GetAddressOf()));
    if (FAILED(result)) {
        return result;
    }
    result = site->CanInPlaceActivate();
    if (result != S_OK) {
        return FAILED(result) ? result : E_FAIL;
    }
    result = site->OnInPlaceActivate();
    if (FAILED(result)) {
        return result;
    }
    m_site = std::move(site);
    Context context;
    result = FindContext(context);
    if (SUCCEEDED(result)) {
        result = ShowAt(context);
    }
    if (FAILED(result)) {
        Deactivate();
        return result;
    }
    clientSite.ShowObject();
    return S_OK;
}

HRESULT CActivation::FindContext(Context& context) const {
    HRESULT result = m_site->GetWindow(&context.parent);
    if (FAILED(result)) {
        return result;
    }
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    result = m_site->GetWindowContext(context.frame.GetAddressOf(), context.document.GetAddressOf(),
                                      &context.place, &context.clip, &info);
    return SUCCEEDED(result) && !IsWindow(context.parent) ? E_UNEXPECTED : result;
}

HRESULT CActivation::ShowAt(const Context& context) {
    const HRESULT result = MakeWindow(context.parent);
    if (FAILED(result)) {
        return result;
    }
    m_frame = context.frame;
    m_document = context.document;
    m_window->Place(context.place, context.clip);
    m_window->ShowIn(context.parent);
    return S_OK;
}

HRESULT CActivation::MakeWindow(HWND parent) {
    if (m_window && m_window->Get()) {
        return S_OK;
    }
    if (m_hadView) {
        return E_UNEXPECTED;
    }
    m_window = CControlWindow::Create(parent, {[this](SIZE client) {
                                                   m_panel.Resize({client.cx, client.cy});
                                               },
                                               [this] {
                                                   if (IsActive()) {
                                                       ActivateForUser();
                                                   }
                                               },
                                               {}});
    if (!m_window) {
        return HRESULT_FROM_WIN32(GetLastError());
    }
    const contract::Status status = m_panel.CreateView(m_window->Get());
    if (status.IsFailure()) {
        m_window.reset();
        return status.Code();
    }
    m_hadView = true;
    return S_OK;
}

void CActivation::ActivateForUser() {
    if (!m_isForUser) {
        m_isForUser = true;
        if (FAILED(m_site->OnUIActivate())) {
            m_isForUser = false;
            return;
        }
        if (m_frame) {
            m_frame->SetActiveObject(&m_activeObject, nullptr);
            // It has no tools of its own to be put around the container's window.
            m_frame->SetBorderSpace(nullptr);
        }
        if (m_document) {
            m_document->SetActiveObject(&m_activeObject, nullptr);
            m_document->SetBorderSpace(nullptr);
        }
    }
    if (m_window) {
        m_window->TakeFocus();
    }
}

void CActivation::DeactivateForUser() {
    if (!std::exchange(m_isForUser, false)) {
        return;
    }
    if (m_frame) {
        m_frame->SetActiveObject(nullptr, nullptr);
    }
    if (m_document) {
        m_document->SetActiveObject(nullptr, nullptr);
    }
    if (m_site) {
        m_site->OnUIDeactivate(FALSE);
    }
}

void CActivation::Deactivate() {
    if (!m_site) {
        return;
    }
    DeactivateForUser();
    if (m_window && m_window->Get()) {
        m_window->Park();
    }
    m_frame.Reset();
    m_document.Reset();
    // The site may ask for the same again.
    if (const ComPtr<IOleInPlaceSite> site = std::move(m_site)) {
        site->OnInPlaceDeactivate();
    }
}

void CActivation::Close() {
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

HWND CActivation::GetWindow() const { return IsActive() && m_window ? m_window->Get() : nullptr; }

HWND CActivation::GetView() const { return m_window ? m_window->GetView() : nullptr; }

}
