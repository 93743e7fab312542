#pragma once

#include "component/win32/control/Activation.h"
#include "component/win32/control/ClientSite.h"
#include "component/win32/control/Part.h"

namespace component {

/// The control as a picture, for a container in which it is not active.
class CViewObject final : public CPart<IViewObject2> {
public:
    CViewObject(IControl& control, CClientSite& site, const CActivation& activation)
        : CPart(control), m_site(site), m_activation(activation) {}

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo,
                                   DVTARGETDEVICE* targetDevice, HDC targetContext, HDC context,
                                   LPCRECTL bounds, LPCRECTL windowBounds,
                                   BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                                   ULONG_PTR argument) override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo,
                                          DVTARGETDEVICE* targetDevice, HDC targetContext,
                                          LOGPALETTE** colours) override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectInfo,
                                     DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* targetDevice,
                                        SIZEL* extent) override;

private:
    CClientSite& m_site;
    const CActivation& m_activation;
};

}
