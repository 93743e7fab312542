#include "frontend/win32/ActivationContext.h"

#include "frontend/win32/Text.h"

#include <gtest/gtest.h>

namespace win32 {

namespace {

// The library that the system takes for that name just now.
std::wstring FileOfControls() {
    const HMODULE library = LoadLibraryW(L"comctl32.dll");
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(library, path.data(), MAX_PATH));
    FreeLibrary(library);
    return path;
}

TEST(ActivationContextTest, ContextBringsVersionSixOfTheControls) {
    const CActivationContext context;
    ASSERT_TRUE(context.IsActive());
    EXPECT_NE(FileOfControls().find(L"common-controls_6595b64144ccf1df_6.0"), std::wstring::npos)
        << FromWide(FileOfControls());
}

TEST(ActivationContextTest, ContextForgottenIsMadeAgain) {
    HANDLE first = nullptr;
    {
        const CActivationContext context;
        GetCurrentActCtx(&first); // with a reference
    }
    ForgetActivationContext();
    ForgetActivationContext();
    HANDLE second = nullptr;
    {
        const CActivationContext context;
        EXPECT_TRUE(context.IsActive());
        GetCurrentActCtx(&second);
    }
    EXPECT_NE(first, second);
    ReleaseActCtx(first);
    ReleaseActCtx(second);
}

TEST(ActivationContextTest, ContextsNestAndEnd) {
    HANDLE before = nullptr;
    GetCurrentActCtx(&before);
    {
        const CActivationContext outer;
        const CActivationContext inner;
        EXPECT_TRUE(inner.IsActive());
    }
    HANDLE after = nullptr;
    GetCurrentActCtx(&after);
    EXPECT_EQ(before, after);
}

}

}
