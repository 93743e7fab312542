#include "component/win32/com/Bstr.h"

#include "frontend/win32/Text.h"

#include <new>
#include <utility>

namespace component {

CBstr::CBstr(std::string_view text) {
    const std::wstring wide = win32::ToWide(text);
    m_text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!m_text) {
        throw std::bad_alloc();
    }
}

BSTR CBstr::Release() { return std::exchange(m_text, nullptr); }

std::string CBstr::ToText() const { return FromBstr(m_text); }

std::string FromBstr(BSTR text) { return win32::FromWide({text ? text : L"", SysStringLen(text)}); }

}
