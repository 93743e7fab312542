#include "tests/component/win32/server/RegistrationFixture.h"

#include <gmock/gmock.h>

namespace component {

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr CLSID kRegistrar = {
    0x44EC053A, 0x400F, 0x11D0, {0x9D, 0xCD, 0x00, 0xA0, 0xC9, 0x03, 0x91, 0xD3}};
constexpr IID kRegistrarInterface = {
    0x44EC053B, 0x400F, 0x11D0, {0x9D, 0xCD, 0x00, 0xA0, 0xC9, 0x03, 0x91, 0xD3}};
constexpr UINT kScript = 102;

/// The system's own object that runs registry scripts; no header of this compiler has it.
struct ISystemRegistrar : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE AddReplacement(LPCOLESTR name, LPCOLESTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearReplacements() = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegisterSz(LPCOLESTR file, LPCOLESTR name,
                                                         LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregisterSz(LPCOLESTR file, LPCOLESTR name,
                                                           LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileRegister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileUnregister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringRegister(LPCOLESTR script) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringUnregister(LPCOLESTR script) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegister(LPCOLESTR file, UINT number,
                                                       LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregister(LPCOLESTR file, UINT number,
                                                         LPCOLESTR type) = 0;
};

/// Whether the system reads the component's registry script as the component does.
class RegistrarTest : public RegistrationFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(CoCreateInstance(kRegistrar, nullptr, CLSCTX_INPROC_SERVER, kRegistrarInterface,
                                   reinterpret_cast<void**>(m_registrar.GetAddressOf())),
                  S_OK);
        ASSERT_EQ(m_registrar->AddReplacement(L"MODULE", ComponentFile().c_str()), S_OK);
    }

    HRESULT RegisterBySystem() {
        return m_registrar->ResourceRegister(ComponentFile().c_str(), kScript, L"REGISTRY");
    }
    HRESULT UnregisterBySystem() {
        return m_registrar->ResourceUnregister(ComponentFile().c_str(), kScript, L"REGISTRY");
    }

    static void LeaveStaleKeys() {
        for (const std::wstring root : {kVersionKey, kProgramKey, kClassKey}) {
            WriteText(root, L"Stray", L"stray");
            WriteText(root + L"\\Stray\\Below", L"", L"stray");
            WriteText(root + L"\\CLSID", L"Stray", L"stray");
        }
    }

    ComPtr<ISystemRegistrar> m_registrar;
};

TEST_F(RegistrarTest, SystemWritesTheSameKeysAsTheComponent) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    const auto ofComponent = DumpClass();
    ForgetRegistration();
    EXPECT_EQ(RegisterBySystem(), S_OK);
    EXPECT_THAT(DumpClass(), ElementsAreArray(ofComponent));
    EXPECT_FALSE(ofComponent.empty());
}

TEST_F(RegistrarTest, SystemLeavesTheSameOverStaleKeys) {
    LeaveStaleKeys();
    ASSERT_EQ(RunRegsvr32(), 0u);
    const auto ofComponent = DumpClass();
    ForgetRegistration();
    LeaveStaleKeys();
    EXPECT_EQ(RegisterBySystem(), S_OK);
    EXPECT_THAT(DumpClass(), ElementsAreArray(ofComponent));
    EXPECT_GT(ofComponent.size(), KeysOfClass(ComponentFile()).size());
}

TEST_F(RegistrarTest, SystemTakesBackWhatTheComponentWrote) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    EXPECT_EQ(UnregisterBySystem(), S_OK);
    EXPECT_THAT(DumpClass(), IsEmpty());
    EXPECT_TRUE(HasKey(L"CLSID"));
}

TEST_F(RegistrarTest, ComponentTakesBackWhatTheSystemWrote) {
    ASSERT_EQ(RegisterBySystem(), S_OK);
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_THAT(DumpClass(), IsEmpty());
    EXPECT_TRUE(HasKey(L"CLSID"));
}

}

}
