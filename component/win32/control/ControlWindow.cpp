#include "component/win32/control/ControlWindow.h"

#include "frontend/win32/Barrier.h"
#include "frontend/win32/Counted.h"
#include "frontend/win32/Module.h"

#include <commctrl.h>

#include <utility>

namespace component {

namespace {

constexpr wchar_t kClassName[] = L"KRX8Maintenance";
constexpr UINT kEndMessage = WM_APP + 1;
// A window in the view has got the focus, from the window of the first parameter.
constexpr UINT kFocusMessage = WM_APP + 2;
constexpr UINT_PTR kSubclass = 1;

LRESULT CALLBACK TellFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR control) {
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, TellFocus, kSubclass);
    } else if (message == WM_SETFOCUS) {
        SendMessageW(reinterpret_cast<HWND>(control), kFocusMessage, wParam, 0);
    }
    return result;
}

BOOL CALLBACK LetTellFocus(HWND window, LPARAM control) {
    SetWindowSubclass(window, TellFocus, kSubclass, static_cast<DWORD_PTR>(control));
    return TRUE;
}

}

/// The window itself: shared by its owner and the system, whichever lives longer.
class CControlWindow::CProcedure : public std::enable_shared_from_this<CProcedure> {
public:
    explicit CProcedure(Events events) : m_events(std::move(events)) {}

    bool Create(HWND parent) {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.style = CS_DBLCLKS;
        windowClass.lpfnWndProc = Handle;
        windowClass.hInstance = win32::OwnModule();
        windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        windowClass.lpszClassName = kClassName;
        // Fails from the second window on, when the class is there.
        RegisterClassExW(&windowClass);
        return CreateWindowExW(WS_EX_CONTROLPARENT, kClassName, L"",
                               WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent,
                               nullptr, win32::OwnModule(), this) != nullptr;
    }

    HWND Get() const { return m_window; }

    bool Holds(HWND window) const {
        return window && (window == m_window || IsChild(m_window, window));
    }

    void LeaveOwner() {
        m_events = {};
        if (!m_window) {
            return;
        }
        const bool hasView = GetWindow(m_window, GW_CHILD) != nullptr;
        if (m_depth == 0 && !hasView) {
            DestroyWindow(m_window);
            return;
        }
        ShowWindow(m_window, SW_HIDE);
        SetParent(m_window, HWND_MESSAGE);
        // A view that is there still is in the middle of a notification, and ends after that.
        if (!hasView) {
            End();
        } else {
            m_endsWithView = true;
        }
    }

private:
    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            auto& procedure = *static_cast<CProcedure*>(
                reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
            procedure.m_window = window;
            procedure.m_self = procedure.shared_from_this();
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&procedure));
        }
        auto* const procedure =
            reinterpret_cast<CProcedure*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (!procedure) {
            return DefWindowProcW(window, message, wParam, lParam);
        }
        const auto self = procedure->shared_from_this();
        return self->HandleOwn(message, wParam, lParam);
    }

    LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
        const HWND window = m_window;
        switch (message) {
        case kEndMessage:
            DestroyWindow(window);
            return 0;
        case WM_SIZE:
            Call(m_events.onResized, SIZE{LOWORD(lParam), HIWORD(lParam)});
            return 0;
        case WM_SETFOCUS:
            SetFocus(GetWindow(window, GW_CHILD));
            Call(m_events.onActivated);
            return 0;
        case kFocusMessage:
            if (!Holds(reinterpret_cast<HWND>(wParam))) {
                Call(m_events.onActivated);
            }
            return 0;
        case WM_PARENTNOTIFY:
            if (LOWORD(wParam) == WM_DESTROY && m_endsWithView) {
                End();
            }
            break;
        case WM_MOUSEACTIVATE:
            Call(m_events.onActivated);
            break;
        case WM_NCDESTROY:
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            m_window = nullptr;
            m_self = nullptr;
            break;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    void End() { PostMessageW(m_window, kEndMessage, 0, 0); }

    // A copy, since the owner may end inside.
    template <class Event, class... Arguments>
    void Call(const Event& event, Arguments... arguments) {
        const win32::CCounted depth(m_depth);
        win32::Contained([&] {
            if (const Event own = event) {
                own(arguments...);
            }
        });
    }

    Events m_events;
    HWND m_window = nullptr;
    std::shared_ptr<CProcedure> m_self;
    int m_depth = 0;
    bool m_endsWithView = false;
    const CUse m_use{Module()};
};

std::unique_ptr<CControlWindow> CControlWindow::Create(HWND parent, Events events) {
    auto procedure = std::make_shared<CProcedure>(std::move(events));
    if (!procedure->Create(parent)) {
        return nullptr;
    }
    return std::unique_ptr<CControlWindow>(new CControlWindow(std::move(procedure)));
}

CControlWindow::CControlWindow(std::shared_ptr<CProcedure> procedure)
    : m_procedure(std::move(procedure)) {}

CControlWindow::~CControlWindow() { m_procedure->LeaveOwner(); }

HWND CControlWindow::Get() const { return m_procedure->Get(); }

HWND CControlWindow::GetView() const { return Get() ? GetWindow(Get(), GW_CHILD) : nullptr; }

// The system tells a window around another nothing of the other's focus.
void CControlWindow::WatchView() {
    EnumChildWindows(Get(), LetTellFocus, reinterpret_cast<LPARAM>(Get()));
}

void CControlWindow::ShowIn(HWND parent) {
    if (GetAncestor(Get(), GA_PARENT) != parent) {
        SetParent(Get(), parent);
    }
    ShowWindow(Get(), SW_SHOW);
}

// Its owner may end it as the container's window hears of the focus.
void CControlWindow::Park() {
    const auto procedure = m_procedure;
    if (HasFocus()) {
        SetFocus(GetAncestor(Get(), GA_PARENT));
    }
    if (const HWND window = procedure->Get()) {
        ShowWindow(window, SW_HIDE);
        SetParent(window, HWND_MESSAGE);
    }
}

void CControlWindow::Place(const RECT& place, const RECT& clip) {
    RECT visible{};
    IntersectRect(&visible, &place, &clip);
    if (EqualRect(&visible, &place)) {
        SetWindowRgn(Get(), nullptr, TRUE);
    } else {
        OffsetRect(&visible, -place.left, -place.top);
        // The system keeps the region.
        SetWindowRgn(Get(), CreateRectRgnIndirect(&visible), TRUE);
    }
    SetWindowPos(Get(), nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CControlWindow::TakeFocus() {
    if (!HasFocus()) {
        SetFocus(GetView() ? GetView() : Get());
    }
}

bool CControlWindow::HasFocus() const { return m_procedure->Holds(GetFocus()); }

void ForgetControlWindows() { UnregisterClassW(kClassName, win32::OwnModule()); }

}
