#include "component/loader/ComponentLibrary.h"

#include "contract/host/Context.h"
#include "tests/component/RegistryFile.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <string>

namespace component {

namespace {

using contract::kStillInUse;
using contract::kSuccess;
using contract::Status;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr contract::Guid kClass{
    0x235783FE, 0x1F74, 0x487E, {0x85, 0x61, 0x9E, 0x89, 0x00, 0x47, 0x92, 0x7A}};

class ComponentLibraryTest : public testing::Test {
protected:
    std::string Problem() {
        try {
            CreatePanel("QRZ.KRX8Maintenance");
            return "none";
        } catch (const ComponentUnavailable& problem) {
            return problem.what();
        }
    }

    std::shared_ptr<contract::IPanelFactory> Factory() {
        std::shared_ptr<contract::IPanelFactory> factory;
        EXPECT_EQ(m_library.GetFactory(kClass, factory), kSuccess);
        return factory;
    }

    CRegistryFile m_registry;
    const CComponentLibrary m_library{KRX8_COMPONENT};
};

TEST_F(ComponentLibraryTest, RegisteredComponentMakesAPanelByItsProgramIdentifier) {
    ASSERT_EQ(m_library.Register(), kSuccess);
    const auto panel = CreatePanel("QRZ.KRX8Maintenance");
    EXPECT_GT(panel->GetNaturalSize().width, 300);
    EXPECT_EQ(panel->SetContext(nullptr), Status::FromBits(0x80004003));
    EXPECT_TRUE(CreatePanel("QRZ.KRX8Maintenance.1"));
}

TEST_F(ComponentLibraryTest, UnregisteredComponentIsNotFound) {
    ASSERT_EQ(m_library.Register(), kSuccess);
    ASSERT_EQ(m_library.Unregister(), kSuccess);
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance is not registered in " + m_registry.Path() +
                             "; register the component with: krx8-register "
                             "FOLDER/cmn_krx8maintenanceui.so");
}

TEST_F(ComponentLibraryTest, LibraryThatIsGoneIsNamedWithWhatToDo) {
    m_registry.Register("/nowhere/ui.so");
    EXPECT_THAT(Problem(),
                AllOf(StartsWith("QRZ.KRX8Maintenance: cannot load /nowhere/ui.so: "),
                      HasSubstr("No such file"),
                      HasSubstr("; if the component has been moved, register the component with: "
                                "krx8-register FOLDER/cmn_krx8maintenanceui.so")));
}

TEST_F(ComponentLibraryTest, LibraryThatIsNoComponentIsNamed) {
    m_registry.Register("libm.so.6");
    EXPECT_THAT(Problem(), StartsWith("QRZ.KRX8Maintenance: libm.so.6 is no component: it has no "
                                      "function DllGetClassObject; "));
}

TEST_F(ComponentLibraryTest, ComponentThatDeliversNoFactoryIsNamedWithWhatToDo) {
    m_registry.Register(KRX8_EMPTY_COMPONENT);
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance: " KRX8_EMPTY_COMPONENT
                         " makes no panel (0x00000000); if the component has been moved, register "
                         "the component with: krx8-register FOLDER/cmn_krx8maintenanceui.so");
}

TEST_F(ComponentLibraryTest, ComponentThatDeliversNoPanelIsNamed) {
    m_registry.Register(KRX8_EMPTY_COMPONENT, "{335783FE-1F74-487E-8561-9E890047927A}");
    EXPECT_THAT(Problem(), StartsWith("QRZ.KRX8Maintenance: " KRX8_EMPTY_COMPONENT
                                      " makes no panel (0x00000000); "));
}

TEST_F(ComponentLibraryTest, UnknownClassIsNotAvailable) {
    std::shared_ptr<contract::IPanelFactory> factory;
    EXPECT_EQ(m_library.GetFactory({1, 2, 3, {}}, factory), Status::FromBits(0x80040111));
    EXPECT_EQ(factory, nullptr);
}

TEST_F(ComponentLibraryTest, LibraryIsInUseWhileAFactoryOrAPanelLives) {
    EXPECT_EQ(m_library.CanUnloadNow(), kSuccess);
    auto factory = Factory();
    EXPECT_EQ(m_library.CanUnloadNow(), kStillInUse);
    std::shared_ptr<contract::IPanel> first;
    std::shared_ptr<contract::IPanel> second;
    EXPECT_EQ(factory->CreatePanel(first), kSuccess);
    EXPECT_EQ(factory->CreatePanel(second), kSuccess);
    EXPECT_NE(first, second);
    factory.reset();
    first.reset();
    EXPECT_EQ(m_library.CanUnloadNow(), kStillInUse);
    second.reset();
    EXPECT_EQ(m_library.CanUnloadNow(), kSuccess);
}

TEST_F(ComponentLibraryTest, LocksKeepItInUseUntilEachIsTakenBack) {
    EXPECT_EQ(Factory()->LockServer(true), kSuccess);
    EXPECT_EQ(Factory()->LockServer(true), kSuccess);
    EXPECT_EQ(Factory()->LockServer(false), kSuccess);
    EXPECT_EQ(m_library.CanUnloadNow(), kStillInUse);
    EXPECT_EQ(Factory()->LockServer(false), kSuccess);
    EXPECT_EQ(m_library.CanUnloadNow(), kSuccess);
    EXPECT_EQ(Factory()->LockServer(false), Status::FromBits(0x80004005));
}

TEST(ComponentExportsTest, LibraryExportsTheFourEntryPointsAndNothingElse) {
    std::string exports;
    FILE* const symbols =
        popen("nm -D -g --defined-only -P " KRX8_COMPONENT " | cut -d' ' -f1,2", "r");
    ASSERT_TRUE(symbols);
    char line[512];
    while (std::fgets(line, sizeof line, symbols)) {
        exports += line;
    }
    EXPECT_EQ(pclose(symbols), 0);
    EXPECT_EQ(exports, "DllCanUnloadNow T\nDllGetClassObject T\nDllRegisterServer T\n"
                       "DllUnregisterServer T\n");
}

}

}
