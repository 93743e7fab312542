#include "component/win32/control/Extent.h"

namespace component {

namespace {

constexpr int kHimetricPerInch = 2540;

/// The context of the whole screen, for its resolution.
class CScreen {
public:
    CScreen() = default;
    ~CScreen() { ReleaseDC(nullptr, m_context); }
    CScreen(const CScreen&) = delete;
    CScreen& operator=(const CScreen&) = delete;

    int PixelsPerInchAcross() const { return GetDeviceCaps(m_context, LOGPIXELSX); }
    int PixelsPerInchDown() const { return GetDeviceCaps(m_context, LOGPIXELSY); }

private:
    const HDC m_context = GetDC(nullptr);
};

}

SIZEL ToHimetric(SIZE pixels) {
    const CScreen screen;
    return {MulDiv(pixels.cx, kHimetricPerInch, screen.PixelsPerInchAcross()),
            MulDiv(pixels.cy, kHimetricPerInch, screen.PixelsPerInchDown())};
}

}
