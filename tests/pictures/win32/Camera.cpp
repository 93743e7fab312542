#include "tests/pictures/win32/Camera.h"

#include "tests/frontend/win32/Input.h"

#include <objidl.h>

#include <gdiplus.h>

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace pictures {

namespace {

constexpr CLSID kPng{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr WORD kBitsPerPixel = 24;

struct BitmapEnd {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapEnd>;

/// The whole screen.
class CScreen {
public:
    CScreen() = default;
    ~CScreen() { ReleaseDC(nullptr, m_context); }
    CScreen(const CScreen&) = delete;
    CScreen& operator=(const CScreen&) = delete;

    OwnedBitmap Copy(const RECT& place) const {
        const int width = static_cast<int>(place.right - place.left);
        const int height = static_cast<int>(place.bottom - place.top);
        BITMAPINFO format{};
        format.bmiHeader = {.biSize = sizeof format.bmiHeader,
                            .biWidth = width,
                            .biHeight = height,
                            .biPlanes = 1,
                            .biBitCount = kBitsPerPixel,
                            .biCompression = BI_RGB,
                            .biSizeImage = 0,
                            .biXPelsPerMeter = 0,
                            .biYPelsPerMeter = 0,
                            .biClrUsed = 0,
                            .biClrImportant = 0};
        void* pixels = nullptr;
        OwnedBitmap bitmap(
            CreateDIBSection(m_context, &format, DIB_RGB_COLORS, &pixels, nullptr, 0));
        const HDC memory = CreateCompatibleDC(m_context);
        const HGDIOBJ previous = SelectObject(memory, bitmap.get());
        const BOOL isCopied =
            BitBlt(memory, 0, 0, width, height, m_context, static_cast<int>(place.left),
                   static_cast<int>(place.top), SRCCOPY);
        SelectObject(memory, previous);
        DeleteDC(memory);
        return isCopied ? std::move(bitmap) : nullptr;
    }

private:
    const HDC m_context = GetDC(nullptr);
};

bool IsOnScreen(const RECT& place) {
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    RECT seen{};
    return IntersectRect(&seen, &place, &screen) && EqualRect(&seen, &place);
}

void Require(bool condition, const std::string& name, const char* fault) {
    if (!condition) {
        throw std::runtime_error(name + ": " + fault);
    }
}

}

CCamera::CCamera(std::filesystem::path folder) : m_folder(std::move(folder)) {
    const Gdiplus::GdiplusStartupInput input;
    Require(Gdiplus::GdiplusStartup(&m_encoders, &input, nullptr) == Gdiplus::Ok, "camera",
            "no encoders");
}

CCamera::~CCamera() { Gdiplus::GdiplusShutdown(m_encoders); }

void CCamera::Take(HWND window, const std::string& name) const {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    win32tests::Pump(); // what was drawn is on the screen when no message is left
    RECT place{};
    GetWindowRect(window, &place);
    Require(IsOnScreen(place), name, "not on the screen as a whole");
    const OwnedBitmap copy = CScreen().Copy(place);
    Require(copy != nullptr, name, "cannot be copied from the screen");
    Gdiplus::Bitmap picture(copy.get(), nullptr);
    const std::filesystem::path file = m_folder / (name + ".png");
    Require(picture.Save(file.c_str(), &kPng, nullptr) == Gdiplus::Ok, file.string(),
            "cannot be written");
}

}
