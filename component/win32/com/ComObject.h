#pragma once

#include "component/common/ModuleUse.h"
#include "component/win32/com/ComApi.h"

#include <atomic>
#include <type_traits>
#include <utility>

namespace component {

/// What keeps the program or library with this code in use.
CModuleUse& Module();

/// The count of references of an object in COM. It is born with one reference, ends with the last
/// one, and keeps the module in use until then.
template <class Object>
class CReferenceCount {
public:
    ULONG Add() { return ++m_references; }
    ULONG Take(Object* object) {
        const ULONG left = --m_references;
        if (left == 0) {
            // A reference that comes and goes while the object ends must not end it again.
            m_references = kEnding;
            delete object;
        }
        return left;
    }

private:
    static constexpr ULONG kEnding = 0x40000000;

    std::atomic<ULONG> m_references = 1;
    const CUse m_use{Module()};
};

/// What a class with one interface of COM has to say of itself.
#define KRX8_COUNTED_REFERENCES(Class)                                                             \
public:                                                                                            \
    ULONG STDMETHODCALLTYPE AddRef() override { return m_references.Add(); }                       \
    ULONG STDMETHODCALLTYPE Release() override { return m_references.Take(this); }                 \
                                                                                                   \
private:                                                                                           \
    ::component::CReferenceCount<Class> m_references;

/// Takes over the reference that an object is born with. Not by ComPtr's Attach: the one that comes
/// with mingw-w64 adds a reference.
template <class Object>
ComPtr<Object> TakeOver(Object* born) {
    ComPtr<Object> object;
    *object.GetAddressOf() = born;
    return object;
}

template <class Object, class... Arguments>
ComPtr<Object> MakeCom(Arguments&&... arguments) {
    return TakeOver(new Object(std::forward<Arguments>(arguments)...));
}

/// Whether a pointer to `Interface` is the answer to a query for `identifier`.
template <class Interface>
bool IsAnsweredBy(REFIID identifier) {
    return identifier == __uuidof(Interface) ||
           (std::is_base_of_v<IDispatch, Interface> && identifier == IID_IDispatch);
}

/// QueryInterface of an object with a single interface.
template <class Interface>
HRESULT AnswerQuery(Interface* object, REFIID identifier, void** result) {
    if (!result) {
        return E_POINTER;
    }
    const bool isAnswered = identifier == IID_IUnknown || IsAnsweredBy<Interface>(identifier);
    *result = isAnswered ? object : nullptr;
    if (!isAnswered) {
        return E_NOINTERFACE;
    }
    object->AddRef();
    return S_OK;
}

}
