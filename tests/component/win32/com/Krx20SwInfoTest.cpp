#include "component/win32/com/Export.h"
#include "component/win32/com/Import.h"

#include "tests/component/win32/com/BridgeFixture.h"

namespace component {

namespace {

using contract::Status;

class CTypeInformation final : public contract::ITypeInformation {};

/// A device's answer about its software, and what it was asked.
class CVersions final : public contract::IKrx20SwInfo {
public:
    Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                       std::shared_ptr<contract::ITypeInformation>& delivered) override {
        askedIndex = index;
        askedLocale = locale;
        if (status.IsSuccess()) {
            delivered = information;
        } else {
            contract::SetErrorInfo("no description");
        }
        return status;
    }
    Status GetBootLoaderVersion(std::string& version) override {
        if (status.IsSuccess()) {
            version = "2.0 ß";
        } else {
            contract::SetErrorInfo("unreadable 🔌");
        }
        return status;
    }
    Status GetServiceFpgaVersion(std::string& version) override {
        version = "7";
        return contract::kSuccess;
    }

    std::uint32_t askedIndex = 99;
    std::uint32_t askedLocale = 99;
    std::shared_ptr<contract::ITypeInformation> information = std::make_shared<CTypeInformation>();
    Status status;
};

class Krx20SwInfoTest : public BridgeFixture {
protected:
    HRESULT GetTypeInfo(ComPtr<ITypeInfo>& info) {
        return m_exported->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.GetAddressOf());
    }
    /// Calls by number, as a script does.
    HRESULT Invoke(DISPID number, CBstr& version, EXCEPINFO* exception = nullptr) {
        VARIANT place{};
        V_VT(&place) = VT_BSTR | VT_BYREF;
        V_BSTRREF(&place) = version.Receive();
        DISPPARAMS parameters{&place, nullptr, 1, 0};
        return m_exported->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                  &parameters, nullptr, exception, nullptr);
    }

    std::shared_ptr<CVersions> m_versions = std::make_shared<CVersions>();
    ComPtr<::IKrx20SwInfo> m_exported = Export<contract::IKrx20SwInfo>(m_versions);
};

TEST_F(Krx20SwInfoTest, TypeInfoDescribesTheInterface) {
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(GetTypeInfo(info), S_OK);
    EXPECT_EQ(m_versions->askedIndex, 1u);
    EXPECT_EQ(m_versions->askedLocale, 0x0400u);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, __uuidof(::IKrx20SwInfo));
    info->ReleaseTypeAttr(attributes);
}

TEST_F(Krx20SwInfoTest, OtherSuccessOfTypeInfoPasses) {
    m_versions->status = Status(7);
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(GetTypeInfo(info), 7);
    EXPECT_TRUE(info);
}

TEST_F(Krx20SwInfoTest, FailureOfTypeInfoPassesStatusAndDescription) {
    m_versions->status = Status(-77);
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(GetTypeInfo(info), -77);
    EXPECT_FALSE(info);
    EXPECT_EQ(TakeDescription(), L"no description");
}

TEST_F(Krx20SwInfoTest, NullForTypeInfoIsDeliveredAsNull) {
    m_versions->information = nullptr;
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(GetTypeInfo(info), S_OK);
    EXPECT_FALSE(info);
    EXPECT_EQ(m_exported->GetTypeInfo(1, LOCALE_USER_DEFAULT, nullptr), E_POINTER);
}

TEST_F(Krx20SwInfoTest, RoundTripOfTypeInfoBehavesAsTheOriginal) {
    const auto imported = m_bridge->Import<contract::IKrx20SwInfo>(m_exported.Get());
    std::shared_ptr<contract::ITypeInformation> information;
    EXPECT_EQ(imported->GetTypeInfo(1, contract::kUserDefaultLocale, information),
              contract::kSuccess);
    EXPECT_NE(information, nullptr);
    information = nullptr;
    m_versions->information = nullptr;
    EXPECT_EQ(imported->GetTypeInfo(0xFFFFFFFF, 0, information), contract::kSuccess);
    EXPECT_EQ(information, nullptr);
    EXPECT_EQ(m_versions->askedIndex, 0xFFFFFFFFu);
    m_versions->status = Status(-77);
    EXPECT_EQ(imported->GetTypeInfo(1, 0, information), Status(-77));
    EXPECT_EQ(contract::TakeErrorInfo(), "no description");
}

TEST_F(Krx20SwInfoTest, InterfaceHasTypeInformation) {
    UINT count = 9;
    EXPECT_EQ(m_exported->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(m_exported->GetTypeInfoCount(nullptr), E_POINTER);
}

TEST_F(Krx20SwInfoTest, ScriptFindsMethodAndCallsIt) {
    OLECHAR text[] = L"getBootLoaderVersion";
    LPOLESTR name = text;
    DISPID number = -1;
    ASSERT_EQ(m_exported->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &number), S_OK);
    CBstr version;
    EXPECT_EQ(Invoke(number, version), S_OK);
    EXPECT_EQ(version.ToText(), "2.0 ß");
    CBstr fpga;
    EXPECT_EQ(Invoke(2, fpga), S_OK);
    EXPECT_EQ(fpga.ToText(), "7");
}

TEST_F(Krx20SwInfoTest, FailingCallOfScriptIsAnExceptionWithDescription) {
    m_versions->status = Status(-77);
    CBstr version;
    EXCEPINFO exception{};
    EXPECT_EQ(Invoke(1, version, &exception), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, -77);
    EXPECT_EQ(FromBstr(exception.bstrDescription), "unreadable 🔌");
    EXPECT_EQ(version.Get(), nullptr);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrHelpFile);
}

TEST_F(Krx20SwInfoTest, CallByUnknownNumberIsRefused) {
    CBstr version;
    EXPECT_EQ(Invoke(3, version), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Krx20SwInfoTest, NullPointersForDispatchAreRefused) {
    OLECHAR text[] = L"GetBootLoaderVersion";
    LPOLESTR name = text;
    DISPID number = -5;
    EXPECT_EQ(m_exported->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &number), E_POINTER);
    EXPECT_EQ(m_exported->GetIDsOfNames(IID_NULL, &name, 1, 0, nullptr), E_POINTER);
    EXPECT_EQ(
        m_exported->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
        E_POINTER);
}

TEST_F(Krx20SwInfoTest, ReservedIdentifierOtherThanNullIsRefused) {
    OLECHAR text[] = L"GetBootLoaderVersion";
    LPOLESTR name = text;
    DISPID number = -5;
    EXPECT_EQ(m_exported->GetIDsOfNames(IID_IDispatch, &name, 1, 0, &number),
              DISP_E_UNKNOWNINTERFACE);
    DISPPARAMS none{};
    EXPECT_EQ(
        m_exported->Invoke(1, IID_IDispatch, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
        DISP_E_UNKNOWNINTERFACE);
}

TEST_F(Krx20SwInfoTest, ObjectAnswersForDispatch) {
    EXPECT_TRUE(Ask<IDispatch>(m_exported.Get()));
    EXPECT_TRUE(AreOne(Ask<IDispatch>(m_exported.Get()).Get(), m_exported.Get()));
}

TEST_F(Krx20SwInfoTest, DispatchOnAnotherThreadIsRefused) {
    OLECHAR text[] = L"GetBootLoaderVersion";
    LPOLESTR name = text;
    DISPID number = -5;
    ComPtr<ITypeInfo> info;
    CBstr version;
    EXPECT_EQ(OnAnotherThread([&] { return GetTypeInfo(info); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(OnAnotherThread([&] {
                  return m_exported->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT,
                                                   &number);
              }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(OnAnotherThread([&] { return Invoke(1, version); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(number, -5);
    EXPECT_EQ(version.Get(), nullptr);
}

}

}
