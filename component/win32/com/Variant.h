#pragma once

#include "component/win32/com/Bstr.h"
#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace component {

/// A value of any type, owned.
class CVariant {
public:
    CVariant() { VariantInit(&m_value); }
    ~CVariant() { VariantClear(&m_value); }
    CVariant(const CVariant&) = delete;
    CVariant& operator=(const CVariant&) = delete;
    CVariant(CVariant&& other) noexcept : m_value(other.m_value) { VariantInit(&other.m_value); }
    CVariant& operator=(CVariant&&) = delete;

    explicit CVariant(std::int32_t value) {
        V_VT(&m_value) = VT_I4;
        V_I4(&m_value) = value;
    }
    explicit CVariant(std::uint32_t value) {
        V_VT(&m_value) = VT_UI4;
        V_UI4(&m_value) = value;
    }
    explicit CVariant(contract::Status status) : CVariant(status.Code()) {}
    explicit CVariant(const std::string& text) {
        V_VT(&m_value) = VT_BSTR;
        V_BSTR(&m_value) = CBstr(text).Release();
    }

    VARIANT* Receive() { return &m_value; }
    const VARIANT& Get() const { return m_value; }

private:
    VARIANT m_value;
};

/// The value of a variant that has the right type already.
template <class Parameter>
Parameter ValueOf(const VARIANT& value);
template <>
inline std::int32_t ValueOf(const VARIANT& value) {
    return V_I4(&value);
}
template <>
inline std::uint32_t ValueOf(const VARIANT& value) {
    return V_UI4(&value);
}
template <>
inline contract::Status ValueOf(const VARIANT& value) {
    return contract::Status(V_I4(&value));
}
template <>
inline std::string ValueOf(const VARIANT& value) {
    return FromBstr(V_BSTR(&value));
}

}
