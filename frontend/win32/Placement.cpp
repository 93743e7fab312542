#include "frontend/win32/Placement.h"

#include "frontend/win32/Font.h"

#include <algorithm>

namespace win32 {

namespace {

constexpr UINT kKeepOrder = SWP_NOZORDER | SWP_NOACTIVATE;
constexpr int kDroppedListPixels = 120;
constexpr WPARAM kClosedPart = static_cast<WPARAM>(-1);

int HeightOf(HWND window) { return RectangleOf(window).height; }

// Closed, the list is as high as the text in it with its frame, whatever height it is given; that
// is the one that it opens to. How high the frame is shows only afterwards.
void PlaceDropDownList(HWND list, const panel::Rectangle& rectangle) {
    SetWindowPos(list, nullptr, rectangle.x, rectangle.y, rectangle.width,
                 rectangle.height + kDroppedListPixels, kKeepOrder | SWP_FRAMECHANGED);
    SendMessageW(list, CB_SETITEMHEIGHT, kClosedPart, std::max(1, rectangle.height));
    const int frame = HeightOf(list) - rectangle.height;
    SendMessageW(list, CB_SETITEMHEIGHT, kClosedPart, std::max(1, rectangle.height - frame));
}

void Resize(HWND dialog, panel::Size client) {
    RECT outer{0, 0, client.width, client.height};
    AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongPtrW(dialog, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(dialog, GWL_EXSTYLE)));
    SetWindowPos(dialog, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
                 kKeepOrder | SWP_NOMOVE);
}

int CentreIn(int begin, int end, int length, int screenBegin, int screenEnd) {
    const int centred = begin + (end - begin - length) / 2;
    return std::max(screenBegin, std::min(centred, screenEnd - length));
}

}

panel::Rectangle RectangleOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetAncestor(control, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    return {static_cast<int>(place.left), static_cast<int>(place.top),
            static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top)};
}

void Place(HWND control, panel::ControlKind kind, const panel::Rectangle& rectangle) {
    if (kind == panel::ControlKind::DropDownList) {
        PlaceDropDownList(control, rectangle);
        return;
    }
    SetWindowPos(control, nullptr, rectangle.x, rectangle.y, rectangle.width, rectangle.height,
                 kKeepOrder | SWP_FRAMECHANGED);
    InvalidateRect(control, nullptr, TRUE);
}

void PlaceControls(HWND dialog, const panel::DialogTemplate& dialogTemplate) {
    const panel::FontMetrics font = MeasureFont();
    Resize(dialog, ToPixels(dialogTemplate.size, font));
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        const HWND window = GetDlgItem(dialog, control.id);
        Place(window, control.kind, ToPixels(control.rectangle, font));
        if (control.kind == panel::ControlKind::GroupBox) {
            SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
    }
}

void Centre(HWND dialog, HWND owner) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(owner ? owner : dialog, MONITOR_DEFAULTTONEAREST), &screen);
    RECT around = screen.rcWork;
    if (owner) {
        GetWindowRect(owner, &around);
    }
    RECT own{};
    GetWindowRect(dialog, &own);
    const RECT& work = screen.rcWork;
    SetWindowPos(dialog, nullptr,
                 CentreIn(around.left, around.right, own.right - own.left, work.left, work.right),
                 CentreIn(around.top, around.bottom, own.bottom - own.top, work.top, work.bottom),
                 0, 0, kKeepOrder | SWP_NOSIZE);
}

}
