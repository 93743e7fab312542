#pragma once

#include "tests/component/win32/server/RegistrationFixture.h"

namespace component {

inline constexpr CLSID kRegisteredClass = {
    0x235783FE, 0x1F74, 0x487E, {0x85, 0x61, 0x9E, 0x89, 0x00, 0x47, 0x92, 0x7A}};

/// A system on which the component is registered, once for all tests of a suite. Every test leaves
/// the process without the component in it.
class RegisteredFixture : public testing::Test {
protected:
    static void SetUpTestSuite() {
        ForgetRegistration();
        ASSERT_EQ(RunRegsvr32(), 0u);
    }
    static void TearDownTestSuite() {
        EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
        ForgetRegistration();
    }

    ~RegisteredFixture() override { EXPECT_TRUE(AwaitUnloading()); }

    static ComPtr<IKRX8Maintenance> CreatePanel() {
        ComPtr<IKRX8Maintenance> panel;
        EXPECT_EQ(CoCreateInstance(kRegisteredClass, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IKRX8Maintenance,
                                   reinterpret_cast<void**>(panel.GetAddressOf())),
                  S_OK);
        return panel;
    }
};

}
