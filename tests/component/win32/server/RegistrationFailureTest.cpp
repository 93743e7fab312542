#include "tests/component/win32/server/RegistrationFixture.h"

#include "tests/simulator/TemporaryFolder.h"
#include "tests/support/win32/LoadedComponent.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <thread>

namespace component {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// What the system says of a lasting key below one that does not last.
constexpr HRESULT kRefused = HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE);

/// The name of a type of resources, as it stands in a library's directory of them: its length, then
/// its letters, each as 16 bits.
std::string NameInDirectory(std::string_view name) {
    std::string bytes{static_cast<char>(name.size()), '\0'};
    for (const char letter : name) {
        bytes += letter;
        bytes += '\0';
    }
    return bytes;
}

/// A copy of the component in which nobody finds the resources of that type.
class CCopyWithout {
public:
    explicit CCopyWithout(std::string_view type) {
        std::ifstream original(ComponentFile(), std::ios::binary);
        std::string bytes{std::istreambuf_iterator<char>(original), {}};
        const std::string name = NameInDirectory(type);
        const std::size_t place = bytes.find(name);
        EXPECT_NE(place, std::string::npos);
        EXPECT_EQ(bytes.find(name, place + 1), std::string::npos);
        // The last letter but one: the names stay in their order.
        bytes[place + name.size() - 4] -= 1;
        m_folder.Write("cmn_krx8maintenanceui.dll", bytes);
    }

    std::filesystem::path File() const { return m_folder.Path() / kComponentName; }

private:
    const simulator::CTemporaryFolder m_folder;
};

class RegistrationFailureTest : public RegistrationFixture {
protected:
    HRESULT Register() { return support::CLoadedComponent(ComponentFile()).Register(); }

    /// What the system says when it is told to register that library's type library; systems
    /// disagree.
    static HRESULT RegisterTypeLibraryOf(const std::filesystem::path& file) {
        ComPtr<ITypeLib> library;
        EXPECT_EQ(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.GetAddressOf()), S_OK);
        std::wstring path = file.wstring();
        return RegisterTypeLib(library.Get(), path.data(), nullptr);
    }

    static void ExpectNoCategories() { EXPECT_THAT(ListedCategories(), IsEmpty()); }
    static void ExpectNoTypeLibrary() {
        EXPECT_THAT(DumpTree(kLibraryKey), IsEmpty());
        EXPECT_FALSE(HasKey(kInterfaceKey));
    }
};

TEST_F(RegistrationFailureTest, ClassThatIsRefusedEndsItWithTheStatus) {
    MakeRefusingKey(kVersionKey);
    EXPECT_EQ(Register(), kRefused);
    EXPECT_THAT(DumpClass(), ElementsAre("QRZ.KRX8Maintenance.1 = KRX8Maintenance Class"));
    ExpectNoTypeLibrary();
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, ClassKeyThatCannotBeMadeEndsItWithTheStatus) {
    const CDeadKey dead(kClassKey);
    EXPECT_EQ(Register(), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    ExpectNoTypeLibrary();
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, RegistrationProgramTellsTheFailure) {
    MakeRefusingKey(kVersionKey);
    const auto status = RunRegsvr32();
    ASSERT_TRUE(status);
    EXPECT_NE(*status, 0u);
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, TypeLibraryThatIsRefusedEndsItWithTheStatus) {
    MakeRefusingKey(kLibraryKey);
    const HRESULT refused = RegisterTypeLibraryOf(ComponentFile());
    EXPECT_TRUE(FAILED(refused));
    EXPECT_EQ(Register(), refused);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, CategoryThatIsRefusedStopsNeitherTheOthersNorTheRegistration) {
    const CDeadKey dead(L"Component Categories\\{A17A3B62-97BE-4310-AAA9-6B0E8C0FA36B}");
    EXPECT_EQ(Register(), S_OK);
    auto others = TenCategories();
    others.erase(others.begin() + 2);
    EXPECT_THAT(ListedCategories(), ElementsAreArray(others));
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
}

TEST_F(RegistrationFailureTest, CopyWithoutScriptRegistersNothing) {
    const CCopyWithout copy("REGISTRY");
    EXPECT_EQ(support::CLoadedComponent(copy.File()).Register(), E_FAIL);
    EXPECT_THAT(DumpClass(), IsEmpty());
    ExpectNoTypeLibrary();
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, CopyWithoutScriptUnregistersTheTypeLibraryOnly) {
    ASSERT_EQ(Register(), S_OK);
    const CCopyWithout copy("REGISTRY");
    EXPECT_EQ(support::CLoadedComponent(copy.File()).Unregister(), E_FAIL);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(ComponentFile())));
    ExpectNoTypeLibrary();
}

TEST_F(RegistrationFailureTest, CopyWithoutTypeLibraryRegistersTheClassOnly) {
    const CCopyWithout copy("TYPELIB");
    EXPECT_EQ(support::CLoadedComponent(copy.File()).Register(), TYPE_E_CANTLOADLIBRARY);
    EXPECT_THAT(DumpClass(), ElementsAreArray(KeysOfClass(copy.File())));
    ExpectNoTypeLibrary();
    ExpectNoCategories();
}

TEST_F(RegistrationFailureTest, ThreadsThatHaveNotPreparedComRegisterAllTheSame) {
    HRESULT registered = E_UNEXPECTED;
    std::thread([&] { registered = support::CLoadedComponent(ComponentFile()).Register(); }).join();
    EXPECT_EQ(registered, S_OK);
    EXPECT_THAT(ListedCategories(), ElementsAreArray(TenCategories()));
}

TEST_F(RegistrationFailureTest, ThreadsOfTheOtherApartmentRegisterAllTheSame) {
    HRESULT registered = E_UNEXPECTED;
    std::thread([&] {
        ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
        registered = support::CLoadedComponent(ComponentFile()).Register();
        CoUninitialize();
    }).join();
    EXPECT_EQ(registered, S_OK);
    EXPECT_THAT(ListedCategories(), ElementsAreArray(TenCategories()));
}

}

}
