#include "component/win32/com/EventDescription.h"

namespace component {

namespace {

/// The description of one function, which belongs to its type information.
class CFunction {
public:
    CFunction(ITypeInfo& info, UINT index) : m_info(info) { info.GetFuncDesc(index, &m_function); }
    ~CFunction() {
        if (m_function) {
            m_info.ReleaseFuncDesc(m_function);
        }
    }
    CFunction(const CFunction&) = delete;
    CFunction& operator=(const CFunction&) = delete;

    explicit operator bool() const { return m_function != nullptr; }
    const FUNCDESC* operator->() const { return m_function; }

private:
    ITypeInfo& m_info;
    FUNCDESC* m_function = nullptr;
};

VARTYPE CarrierOf(VARTYPE type) {
    return type == VT_USERDEFINED ? static_cast<VARTYPE>(VT_I4) : type;
}

}

std::optional<std::vector<VARTYPE>> DescribeEvent(ITypeInfo& events, DISPID number) {
    for (UINT index = 0;; ++index) {
        const CFunction function(events, index);
        if (!function) {
            return std::nullopt;
        }
        if (function->memid != number) {
            continue;
        }
        std::vector<VARTYPE> types;
        for (SHORT parameter = 0; parameter < function->cParams; ++parameter) {
            types.push_back(CarrierOf(function->lprgelemdescParam[parameter].tdesc.vt));
        }
        return types;
    }
}

}
