#pragma once

#include "frontend/win32/WinApi.h"

namespace win32 {

/// While it lives, windows are made with version 6 of the common controls, whatever the program
/// around the component asks for: with the manifest that the component carries as resource 2. Does
/// nothing in a component without it.
class CActivationContext {
public:
    CActivationContext();
    ~CActivationContext();
    CActivationContext(const CActivationContext&) = delete;
    CActivationContext& operator=(const CActivationContext&) = delete;

    bool IsActive() const { return m_isActive; }

private:
    ULONG_PTR m_cookie = 0;
    bool m_isActive = false;
};

/// Gives back what the contexts share; for the end of the component. A later one makes it again.
void ForgetActivationContext();

/// Makes the classes of all controls that views are made of known. Call inside a context.
void RegisterControlClasses();

}
