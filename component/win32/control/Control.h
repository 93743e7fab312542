#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/ComObject.h"
#include "component/win32/control/Activation.h"
#include "component/win32/control/Automation.h"
#include "component/win32/control/ClientSite.h"
#include "component/win32/control/InPlaceObject.h"
#include "component/win32/control/OleControl.h"
#include "component/win32/control/OleObject.h"
#include "component/win32/control/Part.h"
#include "component/win32/control/Persistence.h"
#include "component/win32/control/ViewObject.h"
#include "panel/control/KRX8Maintenance.h"

#include <memory>

namespace component {

/// The ActiveX control around the panel: the object that its parts are the interfaces of, with
/// those by which a host hands the panel what it works with. Ends with its last reference, from
/// wherever that is released on its thread.
class CControl final : public IUnknown, public IControl {
public:
    CControl(const CControl&) = delete;
    CControl& operator=(const CControl&) = delete;

    /// Throws std::bad_alloc.
    static ComPtr<IUnknown> Create();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override;

    IUnknown& Identity() override { return *this; }
    bool IsOnItsThread() const override { return m_bridge->IsOnItsThread(); }

private:
    template <class Object>
    friend class CReferenceCount;

    CControl();
    ~CControl();

    /// The part that answers for an interface; null when none does.
    IUnknown* FindPart(REFIID identifier);
    HRESULT QueryHostInterface(REFIID identifier, void** result);

    const std::shared_ptr<CBridge> m_bridge = std::make_shared<CBridge>();
    /// Outlives the control with its panel, whose views ask for it.
    const std::shared_ptr<Stage> m_stage = std::make_shared<Stage>(Stage::Outside);
    const std::shared_ptr<panel::CKRX8Maintenance> m_panel;
    CClientSite m_site;
    CInPlaceActiveObject m_activeObject;
    CActivation m_activation;
    COleObject m_oleObject;
    COleControl m_oleControl;
    CInPlaceObject m_inPlaceObject;
    CViewObject m_viewObject;
    CPersistStreamInit m_persistStreamInit;
    CPersistStorage m_persistStorage;
    CAutomation m_automation;
    CClassInfo m_classInfo;
    CErrorInfoSupport m_errorInfoSupport;

    KRX8_COUNTED_REFERENCES(CControl)
};

}
