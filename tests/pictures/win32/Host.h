#pragma once

#include "component/win32/com/Bridge.h"
#include "simulator/Host.h"
#include "tests/support/win32/LoadedComponent.h"

#include <memory>
#include <string>

namespace pictures {

/// A host with one simulated device: a window filled by the control, which is handed all that it
/// works with by the interfaces of COM alone.
class CHost {
public:
    /// Shows the control in a window with that title, without the device's data as yet. Throws
    /// std::runtime_error when the control refuses anything.
    CHost(const support::CLoadedComponent& component, std::shared_ptr<simulator::CDevice> device,
          const std::string& title);
    ~CHost();
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;

    /// Has the control read the device.
    void Go();

    /// Gives the window another client area, which the control fills again.
    void Resize(SIZE client);

    HWND GetWindow() const { return m_window; }
    /// The panel's view in the control.
    HWND GetView() const { return m_view; }

private:
    void Show();
    /// Hands the control what it works with, by one of its interfaces.
    template <class Interface, class Give>
    void Hand(Give give) const;

    simulator::CHost m_simulated;
    const std::shared_ptr<component::CBridge> m_bridge = std::make_shared<component::CBridge>();
    const component::ComPtr<IOleObject> m_control;
    const HWND m_window;
    HWND m_view = nullptr;
};

}
