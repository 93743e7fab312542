#include "component/win32/control/OleControl.h"

#include "component/win32/control/Keys.h"

namespace component {

COleControl::~COleControl() { DestroyAcceleratorTable(m_mnemonics); }

// The table belongs to the control; containers copy it.
HRESULT COleControl::GetControlInfo(CONTROLINFO* info) {
    if (!info) {
        return E_POINTER;
    }
    if (info->cb < sizeof *info) {
        return E_INVALIDARG;
    }
    return Enter([&]() -> HRESULT {
        std::vector<ACCEL> mnemonics = Mnemonics();
        if (!m_mnemonics) {
            m_mnemonics =
                CreateAcceleratorTableW(mnemonics.data(), static_cast<int>(mnemonics.size()));
        }
        info->hAccel = m_mnemonics;
        info->cAccel = static_cast<USHORT>(mnemonics.size());
        info->dwFlags = 0;
        return m_mnemonics ? S_OK : E_OUTOFMEMORY;
    });
}

// Containers pass on the key that they have found in the table.
HRESULT COleControl::OnMnemonic(MSG* message) {
    if (!message) {
        return E_POINTER;
    }
    return Enter([&] {
        if (!FindButton(m_activation.GetView(), *message)) {
            return S_OK;
        }
        // As with a click. The container may end the view inside.
        static_cast<void>(m_activation.ActivateForUser());
        if (const HWND button = FindButton(m_activation.GetView(), *message)) {
            SendMessageW(button, BM_CLICK, 0, 0);
        }
        return S_OK;
    });
}

// Its fonts and colours are the system's, whatever the container's are.
HRESULT COleControl::OnAmbientPropertyChange(DISPID) { return S_OK; }

// It raises none.
HRESULT COleControl::FreezeEvents(BOOL) { return S_OK; }

}
