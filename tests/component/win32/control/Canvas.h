#pragma once

#include "component/win32/com/ComApi.h"

#include <set>
#include <vector>

namespace controltests {

/// A picture in memory, of one colour at first.
class CCanvas {
public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 600;
    /// As 0xRRGGBB.
    static constexpr DWORD kBackground = 0xFF00FF;

    CCanvas() {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<const DWORD*>(bits);
        m_before = SelectObject(m_context, m_bitmap);
        const RECT whole{0, 0, kWidth, kHeight};
        const HBRUSH brush = CreateSolidBrush(RGB(255, 0, 255));
        FillRect(m_context, &whole, brush);
        DeleteObject(brush);
    }
    ~CCanvas() {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }
    CCanvas(const CCanvas&) = delete;
    CCanvas& operator=(const CCanvas&) = delete;

    HDC Context() const { return m_context; }
    std::vector<DWORD> Pixels() const { return {m_pixels, m_pixels + kWidth * kHeight}; }

    /// As 0xRRGGBB.
    std::set<DWORD> ColoursIn(const RECT& area, bool isInside = true) const {
        std::set<DWORD> colours;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                if ((PtInRect(&area, {x, y}) != FALSE) == isInside) {
                    colours.insert(m_pixels[y * kWidth + x] & 0xFFFFFF);
                }
            }
        }
        return colours;
    }

private:
    const HDC m_context = CreateCompatibleDC(nullptr);
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
    const DWORD* m_pixels;
};

}
