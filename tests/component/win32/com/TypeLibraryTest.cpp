#include "component/win32/com/TypeLibrary.h"

#include "component/win32/com/Bstr.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace component {

namespace {

using testing::ElementsAre;

/// What the type library, a resource of this program, says of the interfaces.
class TypeLibraryTest : public testing::Test {
protected:
    TypeLibraryTest() { EXPECT_EQ(LoadTypeLibrary(m_library.GetAddressOf()), S_OK); }

    static ComPtr<ITypeInfo> Find(REFGUID identifier) {
        ComPtr<ITypeInfo> info;
        EXPECT_EQ(FindTypeInfo(identifier, info.GetAddressOf()), S_OK);
        return info;
    }
    static std::string NameOf(ITypeInfo* info, MEMBERID member) {
        CBstr name;
        EXPECT_EQ(info->GetDocumentation(member, name.Receive(), nullptr, nullptr, nullptr), S_OK);
        return name.ToText();
    }
    /// Names of the methods in the order of the description, with their places among the methods.
    static std::vector<std::string> MethodsOf(ITypeInfo* info) {
        std::vector<std::string> methods;
        FUNCDESC* function = nullptr;
        for (UINT index = 0; SUCCEEDED(info->GetFuncDesc(index, &function)); ++index) {
            const auto place = function->oVft / static_cast<SHORT>(sizeof(void*));
            methods.push_back(NameOf(info, function->memid) + '@' + std::to_string(place));
            info->ReleaseFuncDesc(function);
        }
        return methods;
    }
    static std::vector<std::string> EventsOf(ITypeInfo* info) {
        std::vector<std::string> events;
        FUNCDESC* function = nullptr;
        for (UINT index = 0; SUCCEEDED(info->GetFuncDesc(index, &function)); ++index) {
            events.push_back(NameOf(info, function->memid) + '=' + std::to_string(function->memid));
            info->ReleaseFuncDesc(function);
        }
        return events;
    }

    /// What stands there in the library; of a dual interface the half that is called directly.
    ComPtr<ITypeInfo> InterfaceAt(UINT index) const {
        ComPtr<ITypeInfo> info;
        ComPtr<ITypeInfo> half;
        HREFTYPE reference = 0;
        EXPECT_EQ(m_library->GetTypeInfo(index, info.GetAddressOf()), S_OK);
        const bool isDual =
            SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) &&
            SUCCEEDED(info->GetRefTypeInfo(reference, half.GetAddressOf()));
        return isDual ? half : info;
    }
    /// Nothing for what is no interface, or one for dispatch only.
    static std::optional<WORD> FlagsOfInterface(ITypeInfo* info) {
        TYPEATTR* attributes = nullptr;
        EXPECT_EQ(info->GetTypeAttr(&attributes), S_OK);
        const bool isInterface = attributes->typekind == TKIND_INTERFACE;
        const WORD flags = attributes->wTypeFlags;
        info->ReleaseTypeAttr(attributes);
        return isInterface ? std::optional(flags) : std::nullopt;
    }

    ComPtr<ITypeLib> m_library;
};

TEST_F(TypeLibraryTest, EveryInterfaceOfTheBoundaryIsDescribed) {
    for (const IID& identifier : {IID_IHostViewControl,
                                  IID_IHostContext,
                                  IID_ISubsystemAccess,
                                  IID_IProductDetectionControl,
                                  IID_IProductDetection,
                                  IID_IProductInformation,
                                  IID_IConnectionState,
                                  IID_IMessageService,
                                  IID_IHardwareInfo,
                                  IID_IKrx20SwInfo,
                                  IID_ISoftwareInfo,
                                  IID_IFreeResources,
                                  IID_ISelfTestResults,
                                  IID_IFileInfo,
                                  IID_IFileListing,
                                  IID_IExternalStorages,
                                  IID_IProgrammingDeviceControl,
                                  IID_IKrx10CommunicationConfiguration2,
                                  IID_IKrx10CommunicationConfiguration,
                                  IID_IKrx10Control,
                                  IID_IProgrammingDeviceSubsystem,
                                  IID_IContextMember,
                                  IID_IConnectionClient,
                                  IID_ISetSubsystemAccess,
                                  IID_IGoClient,
                                  IID_IKRX8Maintenance,
                                  DIID__IProgrammingDeviceControlEvents,
                                  DIID__IExtConnectionEvents}) {
        EXPECT_TRUE(Find(identifier));
    }
}

TEST_F(TypeLibraryTest, EveryInterfaceIsFitForAutomation) {
    int interfaceCount = 0;
    for (UINT index = 0; index < m_library->GetTypeInfoCount(); ++index) {
        const ComPtr<ITypeInfo> info = InterfaceAt(index);
        if (const auto flags = FlagsOfInterface(info.Get())) {
            EXPECT_TRUE(*flags & TYPEFLAG_FOLEAUTOMATION) << NameOf(info.Get(), MEMBERID_NIL);
            ++interfaceCount;
        }
    }
    EXPECT_EQ(interfaceCount, 26);
}

TEST_F(TypeLibraryTest, IdentifierOfNothingIsNotFound) {
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(FindTypeInfo(IID_IStream, info.GetAddressOf()), TYPE_E_ELEMENTNOTFOUND);
    EXPECT_FALSE(info);
}

TEST_F(TypeLibraryTest, SelfTestsStandInTheOrderOfTheirNumbers) {
    EXPECT_THAT(MethodsOf(Find(IID_ISelfTestResults).Get()),
                ElementsAre("GetFpgaCode@3", "GetFpgaLoad@4", "GetApplicationSw@5", "GetBootCode@6",
                            "GetRam@7", "GetExternalRam@8", "GetExternalFlash@9",
                            "GetPagedFlash@10", "GetEeprom@11", "GetSecondaryAndAlgorithmFiles@12",
                            "GetMcusw@13", "GetFlash@14", "GetPagedRam@15", "GetMmcrDriver@16",
                            "GetUsbDeviceFunction@17", "GetUsbHostController@18",
                            "GetZtwcdcDriver@19", "GetEthernet@20", "GetUsb@21", "GetRs232@22",
                            "GetFpga@23"));
}

TEST_F(TypeLibraryTest, DeviceOperationsKeepTheirPlaces) {
    EXPECT_THAT(MethodsOf(Find(IID_IProgrammingDeviceControl).Get()),
                ElementsAre("GetHardwareInfo@3", "GetSoftwareInfo@4", "GetFreeResources@5",
                            "GetSelfTestResults@6", "GetFileListing@7", "GetExternalStorages@8",
                            "RequestMode@9", "UploadPhoneFile@10", "MoveFile@11", "DeleteFile@12",
                            "UploadCode@13", "UpdateFromIniFile@14", "RerunMediaTests@15"));
}

TEST_F(TypeLibraryTest, EventsHaveTheirNumbers) {
    EXPECT_THAT(EventsOf(Find(DIID__IProgrammingDeviceControlEvents).Get()),
                ElementsAre("ModeChanged=1", "DeviceMessage=2", "Event3=3"));
    EXPECT_THAT(EventsOf(Find(DIID__IExtConnectionEvents).Get()),
                ElementsAre("ConnectionStateChanged=1", "Event2=2"));
}

TEST_F(TypeLibraryTest, NamesOfDualInterfaceHaveTheirNumbers) {
    OLECHAR bootLoader[] = L"GetBootLoaderVersion";
    OLECHAR mode[] = L"DeviceMode";
    OLECHAR other[] = L"GetOther";
    LPOLESTR name = bootLoader;
    DISPID number = -1;
    EXPECT_EQ(FindNames(IID_IKrx20SwInfo, IID_NULL, &name, 1, &number), S_OK);
    EXPECT_EQ(number, 1);
    name = mode;
    EXPECT_EQ(FindNames(IID_IKRX8Maintenance, IID_NULL, &name, 1, &number), S_OK);
    EXPECT_EQ(number, 2);
    name = other;
    EXPECT_EQ(FindNames(IID_IKrx20SwInfo, IID_NULL, &name, 1, &number), DISP_E_UNKNOWNNAME);
}

}

}
