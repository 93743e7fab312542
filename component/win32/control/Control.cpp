#include "component/win32/control/Control.h"

#include "component/win32/control/Extent.h"
#include "component/win32/control/OwnContext.h"
#include "frontend/win32/Win32Toolkit.h"

#include <utility>

namespace component {

namespace {

/// The panel owns its toolkit, so the library is in use until the panel ends, however long handlers
/// of its own keep that alive.
class CCountedToolkit : public win32::CWin32Toolkit {
public:
    using CWin32Toolkit::CWin32Toolkit;

private:
    const CUse m_use{Module()};
};

// The keyboard is the container's until it has made the control active for the user.
win32::FocusRule OnlyForUser(std::shared_ptr<const Stage> stage) {
    return [stage = std::move(stage)] { return *stage == Stage::ForUser; };
}

SIZEL NaturalExtent(const contract::IPanel& panel) {
    const contract::PixelSize size = panel.GetNaturalSize();
    return ToHimetric({size.width, size.height});
}

/// The interface of the host's that `identifier` names, as a part of the control; null when it is
/// another one.
template <class Interface>
bool ServesHost(const std::shared_ptr<CBridge>& bridge, std::shared_ptr<Interface> panel,
                IUnknown& control, REFIID identifier, void** result) {
    if (identifier != __uuidof(ComOf<Interface>)) {
        return false;
    }
    *result = MakeExport(bridge, std::move(panel), &control).Detach();
    return true;
}

}

ComPtr<IUnknown> CControl::Create() { return TakeOver(new CControl()); }

CControl::CControl()
    : m_panel(
          panel::CKRX8Maintenance::Create(std::make_unique<CCountedToolkit>(OnlyForUser(m_stage)))),
      m_site(NaturalExtent(*m_panel)),
      m_activeObject(*this, m_site, m_activation),
      m_activation(*m_panel, m_activeObject, *m_stage),
      m_oleObject(*this, m_site, m_activation),
      m_oleControl(*this, m_activation),
      m_inPlaceObject(*this, m_site, m_activation),
      m_viewObject(*this, m_site, m_activation),
      m_persistStreamInit(*this, m_site),
      m_persistStorage(*this, m_site),
      m_automation(*this, m_panel->State()),
      m_classInfo(*this),
      m_errorInfoSupport(*this) {
    m_bridge->SetFace(*m_panel, *this);
    static_cast<void>(m_panel->SetContext(std::make_shared<COwnContext>(m_bridge)));
}

CControl::~CControl() {
    m_activation.Close();
    // The panel may live on for a moment, inside one of its handlers.
    m_bridge->RemoveFaces();
}

HRESULT CControl::QueryInterface(REFIID identifier, void** result) {
    if (!result) {
        return E_POINTER;
    }
    *result = FindPart(identifier);
    if (*result) {
        AddRef();
        return S_OK;
    }
    return Guarded(identifier, [&] { return QueryHostInterface(identifier, result); });
}

IUnknown* CControl::FindPart(REFIID identifier) {
    struct Entry {
        const IID& identifier;
        IUnknown* part;
    };
    const Entry entries[] = {
        {IID_IUnknown, static_cast<IUnknown*>(this)},
        {IID_IDispatch, &m_automation},
        {__uuidof(IKRX8Maintenance), &m_automation},
        {IID_IOleObject, &m_oleObject},
        {IID_IOleControl, &m_oleControl},
        {IID_IOleWindow, &m_inPlaceObject},
        {IID_IOleInPlaceObject, &m_inPlaceObject},
        {IID_IOleInPlaceActiveObject, &m_activeObject},
        {IID_IViewObject, &m_viewObject},
        {IID_IViewObject2, &m_viewObject},
        {IID_IPersist, &m_persistStreamInit},
        {IID_IPersistStreamInit, &m_persistStreamInit},
        {IID_IPersistStorage, &m_persistStorage},
        {IID_IProvideClassInfo, &m_classInfo},
        {IID_IProvideClassInfo2, &m_classInfo},
        {IID_ISupportErrorInfo, &m_errorInfoSupport},
    };
    for (const Entry& entry : entries) {
        if (entry.identifier == identifier) {
            return entry.part;
        }
    }
    return nullptr;
}

HRESULT CControl::QueryHostInterface(REFIID identifier, void** result) {
    const auto serves = [&](auto panel) {
        return ServesHost(m_bridge, std::move(panel), *this, identifier, result);
    };
    const bool isServed = serves(std::shared_ptr<contract::IContextMember>(m_panel)) ||
                          serves(std::shared_ptr<contract::IConnectionClient>(m_panel)) ||
                          serves(std::shared_ptr<contract::ISetSubsystemAccess>(m_panel)) ||
                          serves(std::shared_ptr<contract::IGoClient>(m_panel));
    return isServed ? S_OK : E_NOINTERFACE;
}

}
