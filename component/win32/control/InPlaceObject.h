#pragma once

#include "component/win32/control/Activation.h"
#include "component/win32/control/ClientSite.h"
#include "component/win32/control/Part.h"

namespace component {

/// The control in its place in a container.
class CInPlaceObject final : public CPart<IOleInPlaceObject> {
public:
    CInPlaceObject(IControl& control, CClientSite& site, CActivation& activation)
        : CPart(control), m_site(site), m_activation(activation) {}

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override;

private:
    CClientSite& m_site;
    CActivation& m_activation;
};

/// The control towards the frame that it is active in: takes its keys before the frame does.
class CInPlaceActiveObject final : public CPart<IOleInPlaceActiveObject> {
public:
    CInPlaceActiveObject(IControl& control, const CClientSite& site, CActivation& activation)
        : CPart(control), m_site(site), m_activation(activation) {}

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL isActive) override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL isActive) override;
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window,
                                           BOOL isFrame) override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override;

private:
    const CClientSite& m_site;
    CActivation& m_activation;
};

}
