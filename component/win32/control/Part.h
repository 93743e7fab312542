#pragma once

#include "component/win32/com/ComCall.h"

#include <utility>

namespace component {

/// The object that the parts of the control belong to, as far as they all have to know it.
class IControl {
public:
    /// The control's own, which counts the references of all its parts.
    virtual IUnknown& Identity() = 0;
    /// False on any thread but the one that the control was made on.
    virtual bool IsOnItsThread() const = 0;

protected:
    ~IControl() = default;
};

/// Base of a part of the control: one of the interfaces that a container asks it for.
///
/// A method that does more than answer goes through Enter: it fails on another thread, the control
/// lives until it has returned, and no exception comes out of it.
template <class Interface>
class CPart : public Interface {
public:
    explicit CPart(IControl& control) : m_control(control) {}
    CPart(const CPart&) = delete;
    CPart& operator=(const CPart&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        return m_control.Identity().QueryInterface(identifier, result);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return m_control.Identity().AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_control.Identity().Release(); }

protected:
    ~CPart() = default;

    template <class Operation>
    HRESULT Enter(Operation operation) {
        if (!m_control.IsOnItsThread()) {
            return RPC_E_WRONG_THREAD;
        }
        const ComPtr<IUnknown> self(&m_control.Identity());
        return Guarded(__uuidof(Interface), std::move(operation));
    }

private:
    IControl& m_control;
};

}
