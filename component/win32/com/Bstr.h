#pragma once

#include "component/win32/com/ComApi.h"

#include <string>
#include <string_view>

namespace component {

/// A text as COM hands it over, owned.
class CBstr {
public:
    CBstr() = default;
    /// From UTF-8. Throws std::bad_alloc.
    explicit CBstr(std::string_view text);
    ~CBstr() { SysFreeString(m_text); }
    CBstr(const CBstr&) = delete;
    CBstr& operator=(const CBstr&) = delete;

    BSTR Get() const { return m_text; }
    /// Where a callee puts a text of its own.
    BSTR* Receive() { return &m_text; }
    /// Hands the text over.
    BSTR Release();
    std::string ToText() const;

private:
    BSTR m_text = nullptr;
};

/// UTF-8; empty for null, which is how COM writes an empty text too.
std::string FromBstr(BSTR text);

}
