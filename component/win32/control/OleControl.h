#pragma once

#include "component/win32/control/Activation.h"
#include "component/win32/control/Part.h"

namespace component {

/// The control as an ActiveX control: its mnemonics, for a container whose keys it does not get.
class COleControl final : public CPart<IOleControl> {
public:
    COleControl(IControl& control, CActivation& activation)
        : CPart(control), m_activation(activation) {}
    ~COleControl();
    COleControl(const COleControl&) = delete;
    COleControl& operator=(const COleControl&) = delete;

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

private:
    CActivation& m_activation;
    HACCEL m_mnemonics = nullptr;
};

}
