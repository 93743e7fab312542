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
using panel::InitialState;

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

    void Write(RECT area, const std::wstring& text, UINT format, int colour = COLOR_BTNTEXT) const {
        SetTextColor(m_context, GetSysColor(colour));
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

/// A control as the view shows it; without a view as the template has it.
class CShownControl {
public:
    CShownControl(const ControlTemplate& control, HWND view)
        : m_control(control), m_window(view ? GetDlgItem(view, control.id) : nullptr) {}

    ControlKind Kind() const { return m_control.kind; }
    std::wstring Text() const {
        return m_window ? win32::WideTextOf(m_window) : win32::ToWide(m_control.text);
    }
    // The view itself may be hidden.
    bool IsShown() const {
        return m_window ? Has(WS_VISIBLE) : m_control.state != InitialState::Hidden;
    }
    bool IsDisabled() const {
        return m_window ? Has(WS_DISABLED) : m_control.state == InitialState::Disabled;
    }

private:
    bool Has(LONG_PTR style) const { return (GetWindowLongPtrW(m_window, GWL_STYLE) & style) != 0; }

    const ControlTemplate& m_control;
    const HWND m_window;
};

void Draw(const CDrawing& drawing, const CShownControl& control, RECT area) {
    switch (control.Kind()) {
    case ControlKind::GroupBox:
        drawing.Frame(area, control.Text());
        break;
    case ControlKind::Label:
        drawing.Write(area, control.Text(), DT_LEFT);
        break;
    case ControlKind::CentredLabel:
        drawing.Write(area, control.Text(), DT_CENTER);
        break;
    case ControlKind::TextField:
    case ControlKind::NumberField: {
        drawing.Box(area, COLOR_BTNFACE, EDGE_SUNKEN);
        InflateRect(&area, -4, 0);
        drawing.Write(area, control.Text(), DT_VCENTER | DT_NOPREFIX);
        break;
    }
    case ControlKind::ProgressBar:
        drawing.Box(area, COLOR_BTNFACE, EDGE_SUNKEN);
        break;
    case ControlKind::MultiSelectList:
    case ControlKind::Log:
        drawing.Box(area, COLOR_WINDOW, EDGE_SUNKEN);
        break;
    case ControlKind::Button:
        drawing.Box(area, COLOR_BTNFACE, EDGE_RAISED);
        drawing.Write(area, control.Text(), DT_CENTER | DT_VCENTER,
                      control.IsDisabled() ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
        break;
    default:
        break;
    }
}

RECT ToRect(const panel::Rectangle& rectangle) {
    return {rectangle.x, rectangle.y, rectangle.Right(), rectangle.Bottom()};
}

void DrawControls(HDC context, const RECT& place, const panel::FontMetrics& font, HWND view) {
    const panel::DialogTemplate& dialog = panel::kPanelTemplate;
    const panel::Size size = ToPixels(dialog.size, font);
    const CDrawing drawing(context, place, size);
    drawing.Fill({0, 0, size.width, size.height}, COLOR_BTNFACE);
    for (const ControlTemplate& control : dialog.controls) {
        const CShownControl shown(control, view);
        if (shown.IsShown()) {
            Draw(drawing, shown, ToRect(ToPixels(control.rectangle, font)));
        }
    }
}

/// A picture in memory. Empty when the system has no memory for it.
class CBitmap {
public:
    explicit CBitmap(panel::Size size) {
        m_info.bmiHeader = {
            sizeof m_info.bmiHeader, size.width, size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        // It may be left out, but Wine 8 then takes a picture in a metafile for empty.
        m_info.bmiHeader.biSizeImage = static_cast<DWORD>(size.width * size.height * 4);
        m_bitmap = CreateDIBSection(nullptr, &m_info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_before = SelectObject(m_context, m_bitmap);
    }
    ~CBitmap() {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }
    CBitmap(const CBitmap&) = delete;
    CBitmap& operator=(const CBitmap&) = delete;

    HDC Context() const { return m_context; }

    void DrawTo(HDC context, const RECT& place) const {
        if (!m_bits) {
            return;
        }
        GdiFlush();
        StretchDIBits(context, place.left, place.top, place.right - place.left,
                      place.bottom - place.top, 0, 0, m_info.bmiHeader.biWidth,
                      m_info.bmiHeader.biHeight, m_bits, &m_info, DIB_RGB_COLORS, SRCCOPY);
    }

private:
    const HDC m_context = CreateCompatibleDC(nullptr);
    BITMAPINFO m_info{};
    void* m_bits = nullptr;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

}

void DrawPanel(HDC context, const RECT& place, HWND view) {
    const panel::FontMetrics font = win32::MeasureFont();
    if (GetObjectType(context) != OBJ_METADC) {
        DrawControls(context, place, font, view);
        return;
    }
    // Such a metafile knows no device to measure with, and is placed by whoever plays it.
    const panel::Size size = ToPixels(panel::kPanelTemplate.size, font);
    const CBitmap bitmap(size);
    DrawControls(bitmap.Context(), {0, 0, size.width, size.height}, font, view);
    bitmap.DrawTo(context, place);
}

}
