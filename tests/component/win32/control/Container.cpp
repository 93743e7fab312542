#include "tests/component/win32/control/Container.h"

#include "tests/frontend/win32/Input.h"

#include <gtest/gtest.h>

namespace controltests {

void CContainer::Embed() {
    EXPECT_EQ(As<IOleObject>()->SetClientSite(&m_site), S_OK);
    EXPECT_EQ(As<IPersistStreamInit>()->InitNew(), S_OK);
}

HRESULT CContainer::DoVerb(LONG verb) {
    return As<IOleObject>()->DoVerb(verb, nullptr, &m_site, 0, m_site.offeredWindow, &m_site.place);
}

void CContainer::Release() {
    m_site.Frame().ForgetActive();
    m_site.Document().ForgetActive();
    m_control.Reset();
}

HWND CContainer::Window() const {
    HWND window = nullptr;
    const auto object = As<IOleInPlaceObject>();
    return object && SUCCEEDED(object->GetWindow(&window)) ? window : nullptr;
}

HWND CContainer::View() const { return Window() ? GetWindow(Window(), GW_CHILD) : nullptr; }

void CContainer::Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!IsTakenByControl(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

bool CContainer::IsTakenByControl(MSG& message) {
    const ComPtr<IOleInPlaceActiveObject> active = m_site.Frame().Active();
    return active && message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST &&
           active->TranslateAccelerator(&message) == S_OK;
}

void CContainer::Press(std::uint16_t virtualKey, std::uint16_t heldKey) {
    win32tests::SendKey(virtualKey, heldKey);
    Pump();
}

}
