#include "component/win32/control/PanelPicture.h"

#include "frontend/win32/Font.h"
#include "frontend/win32/Text.h"
#include "frontend/win32/WindowText.h"
#include "panel/control/PanelTemplate.h"

#include <algorithm>
#include <string>

namespace component {

namespace {

using panel::ControlKind;
using panel::ControlTemplate;

/// A context whose state is as before when this ends.
class CDrawing {
public:
    CDrawing(HDC context, const RECT& place, panel::Size size) : m_context(context) {
        POINT corners[] = {{place.left, place.top}, {place.right, place.bottom}};
        LPtoDP(context, corners, 2);
        m_state = SaveDC(context);
        SetMapMode(context, MM_ANISOTROPIC);
        SetWindowOrgEx(context, 0, 0, nullptr);
        SetWindowExtEx(context, size.width, size.height, nullptr);
        SetViewportOrgEx(context, corners[0].x, corners[0].y, nullptr);
        SetViewportExtEx(context, corners[1].x - corners[0].x, corners[1].y - corners[0].y,
                         nullptr);
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, GetSysColor(COLOR_BTNTEXT));
        SelectObject(context, m_font.get());
    }
    ~CDrawing() { RestoreDC(m_context, m_state); }
    CDrawing(const CDrawing&) = delete;
    CDrawing& operator=(const CDrawing&) = delete;

    void Fill(RECT area, int colour) const { FillRect(m_context, &area, GetSysColorBrush(colour)); }

    void Box(RECT area, int colour, UINT edge) const {
        Fill(area, colour);
        DrawEdge(m_context, &area, edge, BF_RECT);
    }

    void Write(RECT area, const std::wstring& text, UINT format) const {
        DrawTextW(m_context, text.c_str(), static_cast<int>(text.size()), &area,
                  format | DT_SINGLELINE);
    }

    /// A frame with its title let into the line above.
    void Frame(RECT area, const std::wstring& title) const {
        constexpr int kIndent = 8;
        SIZE extent{};
        GetTextExtentPoint32W(m_context, title.c_str(), static_cast<int>(title.size()), &extent);
        RECT line = area;
        line.top += extent.cy / 2;
        DrawEdge(m_context, &line, EDGE_ETCHED, BF_RECT);
        RECT behind{area.left + kIndent, area.top, area.left + kIndent + extent.cx,
                    area.top + extent.cy};
        Fill(behind, COLOR_BTNFACE);
        Write(behind, title, DT_NOPREFIX);
    }

private:
    HDC m_context;
    int m_state = 0;
    const win32::OwnedFont m_font = win32::MakeFont();
};

std::wstring TextOf(const ControlTemplate& control, HWND view) {
    const HWND window = view ? GetDlgItem(view, control.id) : nullptr;
    return window ? win32::WideTextOf(window) : win32::ToWide(control.text);
}

void Draw(const CDrawing& drawing, const ControlTemplate& control, RECT area, HWND view) {
    switch (control.kind) {
    case ControlKind::GroupBox:
        drawing.Frame(area, TextOf(control, view));
        break;
    case ControlKind::Label:
        drawing.Write(area, TextOf(control, view), DT_LEFT);
        break;
    case ControlKind::TextField:
    case ControlKind::NumberField: {
        drawing.Box(area, COLOR_BTNFACE, EDGE_SUNKEN);
        InflateRect(&area, -4, 0);
        drawing.Write(area, TextOf(control, view), DT_VCENTER | DT_NOPREFIX);
        break;
    }
    case ControlKind::MultiSelectList:
    case ControlKind::Log:
        drawing.Box(area, COLOR_WINDOW, EDGE_SUNKEN);
        break;
    case ControlKind::Button:
        drawing.Box(area, COLOR_BTNFACE, EDGE_RAISED);
        drawing.Write(area, TextOf(control, view), DT_CENTER | DT_VCENTER);
        break;
    default:
        break;
    }
}

RECT ToRect(const panel::Rectangle& rectangle) {
    return {rectangle.x, rectangle.y, rectangle.Right(), rectangle.Bottom()};
}

}

void DrawPanel(HDC context, const RECT& place, HWND view) {
    const panel::DialogTemplate& dialog = panel::kPanelTemplate;
    const panel::FontMetrics font = win32::MeasureFont();
    const panel::Size size = ToPixels(dialog.size, font);
    const CDrawing drawing(context, place, size);
    drawing.Fill({0, 0, size.width, size.height}, COLOR_BTNFACE);
    for (const ControlTemplate& control : dialog.controls) {
        if (control.state != panel::InitialState::Hidden) {
            Draw(drawing, control, ToRect(ToPixels(control.rectangle, font)), view);
        }
    }
}

}
