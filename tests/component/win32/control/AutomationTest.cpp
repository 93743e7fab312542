#include "tests/component/win32/control/ControlFixture.h"

#include "component/win32/com/Variant.h"

namespace controltests {

namespace {

class AutomationTest : public ControlFixture {
protected:
    ComPtr<IDispatch> Dispatch() { return container.As<IDispatch>(); }

    LONG Get(const wchar_t* name) {
        DISPID number = 0;
        auto text = const_cast<LPOLESTR>(name);
        EXPECT_EQ(Dispatch()->GetIDsOfNames(IID_NULL, &text, 1, 0, &number), S_OK);
        DISPPARAMS none{};
        component::CVariant value;
        EXPECT_EQ(Dispatch()->Invoke(number, IID_NULL, 0, DISPATCH_PROPERTYGET, &none,
                                     value.Receive(), nullptr, nullptr),
                  S_OK);
        EXPECT_EQ(V_VT(&value.Get()), VT_I4);
        return V_I4(&value.Get());
    }
};

TEST_F(AutomationTest, TypeAndModeBeforeADeviceIsRead) {
    LONG value = 0;
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceType(&value), S_OK);
    EXPECT_EQ(value, 3);
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceMode(&value), S_OK);
    EXPECT_EQ(value, 0);
    EXPECT_EQ(Get(L"DeviceType"), 3);
    EXPECT_EQ(Get(L"DeviceMode"), 0);
}

TEST_F(AutomationTest, TypeAndModeOfTheDeviceRead) {
    StartConnected();
    LONG value = 0;
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceType(&value), S_OK);
    EXPECT_EQ(value, 4);
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceMode(&value), S_OK);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(Get(L"devicetype"), 4);
    EXPECT_EQ(Get(L"DeviceMode"), 1);
    host->RaiseState(5);
    EXPECT_EQ(Get(L"DeviceMode"), 0);
}

TEST_F(AutomationTest, UnknownNamesAndNumbersAreRefused) {
    DISPID number = 0;
    auto name = const_cast<LPOLESTR>(L"SerialNumber");
    EXPECT_EQ(Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, 0, &number), DISP_E_UNKNOWNNAME);
    DISPPARAMS none{};
    component::CVariant value;
    EXPECT_EQ(Dispatch()->Invoke(99, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.Receive(),
                                 nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationTest, ReservedIdentifierOtherThanNullIsRefused) {
    DISPID number = 0;
    auto name = const_cast<LPOLESTR>(L"DeviceType");
    EXPECT_EQ(Dispatch()->GetIDsOfNames(IID_IDispatch, &name, 1, 0, &number),
              DISP_E_UNKNOWNINTERFACE);
    DISPPARAMS none{};
    component::CVariant value;
    EXPECT_EQ(Dispatch()->Invoke(1, IID_IDispatch, 0, DISPATCH_PROPERTYGET, &none, value.Receive(),
                                 nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

TEST_F(AutomationTest, TypeInformationDescribesTheDualInterface) {
    UINT count = 0;
    EXPECT_EQ(Dispatch()->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1u);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(Dispatch()->GetTypeInfo(0, 0, info.GetAddressOf()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, __uuidof(IKRX8Maintenance));
    info->ReleaseTypeAttr(attributes);
    EXPECT_EQ(Dispatch()->GetTypeInfo(1, 0, info.GetAddressOf()), DISP_E_BADINDEX);
}

TEST_F(AutomationTest, ClassInformationDescribesTheClass) {
    const auto provider = container.As<IProvideClassInfo2>();
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(provider->GetClassInfo(info.GetAddressOf()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, __uuidof(KRX8Maintenance));
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    info->ReleaseTypeAttr(attributes);
    GUID source = __uuidof(KRX8Maintenance);
    EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source), E_FAIL);
    EXPECT_EQ(source, GUID_NULL);
}

TEST_F(AutomationTest, ErrorInformationIsSupportedForTheHostsInterfaces) {
    const auto support = container.As<ISupportErrorInfo>();
    for (const IID* identifier :
         {&__uuidof(IKRX8Maintenance), &__uuidof(IContextMember), &__uuidof(IConnectionClient),
          &__uuidof(ISetSubsystemAccess), &__uuidof(IGoClient)}) {
        EXPECT_EQ(support->InterfaceSupportsErrorInfo(*identifier), S_OK);
    }
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
}

}

}
