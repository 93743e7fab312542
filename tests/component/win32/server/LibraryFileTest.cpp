#include "tests/component/win32/server/BuiltComponent.h"

#include "frontend/win32/Text.h"

#include <gmock/gmock.h>

namespace component {

namespace {

using testing::ElementsAre;

std::string Take(BSTR text) {
    const std::string taken = win32::FromWide(text ? text : L"");
    SysFreeString(text);
    return taken;
}

std::string NameOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL) {
    BSTR name = nullptr;
    EXPECT_EQ(info.GetDocumentation(member, &name, nullptr, nullptr, nullptr), S_OK);
    return Take(name);
}

/// The type library as a programming tool reads it from the file of the component, which is not
/// registered.
class LibraryFileTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(LoadTypeLibEx(ComponentFile().c_str(), REGKIND_NONE, m_library.GetAddressOf()),
                  S_OK);
    }

    ComPtr<ITypeInfo> Find(const GUID& identifier) {
        ComPtr<ITypeInfo> info;
        EXPECT_EQ(m_library->GetTypeInfoOfGuid(identifier, info.GetAddressOf()), S_OK);
        return info;
    }

    ComPtr<ITypeLib> m_library;
};

TEST_F(LibraryFileTest, LibraryHasItsIdentifierVersionAndLocale) {
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(m_library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, kLibrary);
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_EQ(attributes->lcid, LCID(LOCALE_NEUTRAL));
    EXPECT_EQ(attributes->syskind, SYS_WIN64);
    m_library->ReleaseTLibAttr(attributes);
}

TEST_F(LibraryFileTest, LibraryHasItsNames) {
    BSTR name = nullptr;
    BSTR help = nullptr;
    ASSERT_EQ(m_library->GetDocumentation(-1, &name, &help, nullptr, nullptr), S_OK);
    EXPECT_EQ(Take(name), "KRX8MaintenanceLib");
    EXPECT_EQ(Take(help), "KRX8Maintenance 1.0 Type Library");
}

TEST_F(LibraryFileTest, ClassListsItsInterfaces) {
    const auto info = Find(kClass);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    std::vector<std::string> names = {NameOf(*info.Get())};
    for (UINT i = 0; i < attributes->cImplTypes; ++i) {
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> implemented;
        ASSERT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
        ASSERT_EQ(info->GetRefTypeInfo(reference, implemented.GetAddressOf()), S_OK);
        names.push_back(NameOf(*implemented.Get()));
    }
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCONTROL);
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE);
    info->ReleaseTypeAttr(attributes);
    EXPECT_THAT(names, ElementsAre("KRX8Maintenance", "IKRX8Maintenance", "IContextMember",
                                   "IConnectionClient", "ISetSubsystemAccess", "IGoClient"));
}

TEST_F(LibraryFileTest, DefaultInterfaceOfTheClassIsTheDualOne) {
    const auto info = Find(kClass);
    INT flags = 0;
    ASSERT_EQ(info->GetImplTypeFlags(0, &flags), S_OK);
    EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT);
    const auto dual = Find(IID_IKRX8Maintenance);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(dual->GetTypeAttr(&attributes), S_OK);
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
    dual->ReleaseTypeAttr(attributes);
    HREFTYPE reference = 0;
    ASSERT_EQ(dual->GetRefTypeOfImplType(UINT(-1), &reference), S_OK);
    ComPtr<ITypeInfo> table;
    ASSERT_EQ(dual->GetRefTypeInfo(reference, table.GetAddressOf()), S_OK);
    ASSERT_EQ(table->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_INTERFACE);
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FOLEAUTOMATION);
    table->ReleaseTypeAttr(attributes);
}

TEST_F(LibraryFileTest, PropertiesHaveTheirNamesAndNumbers) {
    const auto dual = Find(IID_IKRX8Maintenance);
    EXPECT_EQ(NameOf(*dual.Get(), 1), "DeviceType");
    EXPECT_EQ(NameOf(*dual.Get(), 2), "DeviceMode");
}

TEST_F(LibraryFileTest, EveryTypeHasANameAndIsFoundByIt) {
    EXPECT_GT(m_library->GetTypeInfoCount(), 30u);
    for (UINT i = 0; i < m_library->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        ASSERT_EQ(m_library->GetTypeInfo(i, info.GetAddressOf()), S_OK);
        std::wstring name = win32::ToWide(NameOf(*info.Get()));
        BOOL isThere = FALSE;
        EXPECT_EQ(m_library->IsName(name.data(), 0, &isThere), S_OK);
        EXPECT_TRUE(isThere) << i;
    }
}

}

}
