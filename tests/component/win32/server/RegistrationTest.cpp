#include "tests/component/win32/server/RegistrationFixture.h"

#include "frontend/win32/Text.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace component {

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

std::wstring RegisteredTypeLibrary() {
    BSTR path = nullptr;
    std::wstring text;
    if (SUCCEEDED(QueryPathOfRegTypeLib(kLibrary, 1, 0, LOCALE_NEUTRAL, &path))) {
        text = path;
        SysFreeString(path);
    }
    // The system's own function adds a terminator of its own.
    return text.c_str();
}

/// By the system's own program for it, as an installation does.
class RegistrationTest : public RegistrationFixture {};

TEST_F(RegistrationTest, RegisteringWritesEachKeyAndValueOfTheClass) {
    EXPECT_EQ(RunRegsvr32(), 0u);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
}

TEST_F(RegistrationTest, RegisteringTwiceIsTheSameAsOnce) {
    EXPECT_EQ(RunRegsvr32(), 0u);
    EXPECT_EQ(RunRegsvr32(), 0u);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
    EXPECT_THAT(ListedCategories(), ElementsAreArray(TenCategories()));
}

TEST_F(RegistrationTest, RegisteringOverStaleKeysRenewsTheClassWhole) {
    const std::wstring root = kClassKey;
    WriteText(root + L"\\Stray\\Below", L"", L"stray");
    WriteText(root, L"Stray", L"stray");
    WriteText(root + L"\\InprocServer32", L"", L"C:\\gone.dll");
    WriteText(root + L"\\InprocServer32", L"ThreadingModel", L"Both");
    WriteText(root + L"\\MiscStatus\\2", L"", L"7");
    WriteText(root + L"\\Control\\Stray", L"", L"stray");
    WriteText(kVersionKey, L"", L"An older class");
    WriteText(std::wstring(kProgramKey) + L"\\CurVer", L"", L"QRZ.KRX8Maintenance.0");
    EXPECT_EQ(RunRegsvr32(), 0u);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
}

TEST_F(RegistrationTest, ProgramIdentifierLeadsToTheClassAndBack) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    CLSID found{};
    EXPECT_EQ(CLSIDFromProgID(L"QRZ.KRX8Maintenance", &found), S_OK);
    EXPECT_EQ(found, kClass);
    LPOLESTR name = nullptr;
    ASSERT_EQ(ProgIDFromCLSID(kClass, &name), S_OK);
    EXPECT_STREQ(name, L"QRZ.KRX8Maintenance.1");
    CoTaskMemFree(name);
}

TEST_F(RegistrationTest, ContainersReadTheMiscStatusFromTheRegistry) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    DWORD status = 0;
    EXPECT_EQ(OleRegGetMiscStatus(kClass, DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, DWORD(OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                            OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST));
}

TEST_F(RegistrationTest, RegisteringMakesTheTypeLibraryKnown) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    EXPECT_EQ(RegisteredTypeLibrary(), ComponentFile().wstring());
    ComPtr<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(kLibrary, 1, 0, LOCALE_NEUTRAL, library.GetAddressOf()), S_OK);
    EXPECT_TRUE(HasKey(kInterfaceKey));
}

TEST_F(RegistrationTest, RegisteringListsTheTenCategories) {
    EXPECT_THAT(ListedCategories(), IsEmpty());
    ASSERT_EQ(RunRegsvr32(), 0u);
    EXPECT_THAT(ListedCategories(), ElementsAreArray(TenCategories()));
}

TEST_F(RegistrationTest, UnregisteringTakesClassAndBothProgramIdentifiersWhole) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    WriteText(std::wstring(kVersionKey) + L"\\Stray\\Below", L"", L"stray");
    WriteText(std::wstring(kProgramKey) + L"\\Stray", L"", L"stray");
    WriteText(std::wstring(kClassKey) + L"\\Stray\\Below", L"", L"stray");
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_THAT(DumpClass(), IsEmpty());
    EXPECT_TRUE(HasKey(L"CLSID"));
}

TEST_F(RegistrationTest, UnregisteringForgetsTheTypeLibraryAndItsInterfaces) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_EQ(RegisteredTypeLibrary(), L"");
    EXPECT_THAT(DumpTree(kLibraryKey), IsEmpty());
    EXPECT_FALSE(HasKey(kInterfaceKey));
}

TEST_F(RegistrationTest, UnregisteringKeepsTheCategories) {
    ASSERT_EQ(RunRegsvr32(), 0u);
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_THAT(ListedCategories(), ElementsAreArray(TenCategories()));
}

TEST_F(RegistrationTest, UnregisteringWhatIsNotRegisteredSucceeds) {
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
    EXPECT_THAT(DumpClass(), IsEmpty());
    EXPECT_TRUE(HasKey(L"CLSID"));
}

TEST_F(RegistrationTest, PathWithBlanksAndForeignLettersIsWrittenAndFound) {
    const simulator::CTemporaryFolder temporary;
    const auto folder = temporary.Path() / L"Pr\x00FCf stand \x0416\x4E2D 'a' %b";
    std::filesystem::create_directory(folder);
    const auto file = folder / kComponentName;
    std::filesystem::copy_file(ComponentFile(), file);
    EXPECT_EQ(RunRegsvr32(file), 0u);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(file)));
    EXPECT_EQ(RegisteredTypeLibrary(), file.wstring());
    {
        ComPtr<IKRX8Maintenance> panel;
        EXPECT_EQ(CoCreateInstance(kClass, nullptr, CLSCTX_INPROC_SERVER, IID_IKRX8Maintenance,
                                   reinterpret_cast<void**>(panel.GetAddressOf())),
                  S_OK);
    }
    EXPECT_TRUE(AwaitUnloading());
    EXPECT_EQ(RunRegsvr32ToUnregister(file), 0u);
    EXPECT_THAT(DumpClass(), IsEmpty());
}

}

}
