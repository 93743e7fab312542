#include "frontend/win32/ActivationContext.h"

#include "frontend/win32/Module.h"

#include <atomic>

namespace win32 {

namespace {

// What the loader itself looks for in a library.
constexpr WORD kManifestResource = 2;

HANDLE MakeContext() {
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = OwnModule();
    context.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
    return CreateActCtxW(&context);
}

std::atomic<HANDLE> g_context{nullptr};

void Release(HANDLE context) {
    if (context && context != INVALID_HANDLE_VALUE) {
        ReleaseActCtx(context);
    }
}

// Made once for the life of the component: making it reads files. Of two threads that make it at a
// time the second one gives its own back.
HANDLE OwnContext() {
    if (const HANDLE context = g_context) {
        return context;
    }
    const HANDLE made = MakeContext();
    HANDLE earlier = nullptr;
    if (g_context.compare_exchange_strong(earlier, made)) {
        return made;
    }
    Release(made);
    return earlier;
}

}

CActivationContext::CActivationContext() {
    const HANDLE context = OwnContext();
    m_isActive = context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &m_cookie);
}

CActivationContext::~CActivationContext() {
    if (m_isActive) {
        DeactivateActCtx(0, m_cookie);
    }
}

void ForgetActivationContext() { Release(g_context.exchange(nullptr)); }

void RegisterControlClasses() {
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES |
                    ICC_PROGRESS_CLASS | ICC_INTERNET_CLASSES;
    InitCommonControlsEx(&classes);
}

}
