#include "component/linux/CatalogueRegistrar.h"

#include "panel/registration/RegistrationScript.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>

namespace component {

namespace {

using contract::kSuccess;
using Json = nlohmann::json;

constexpr const char* kClass = "SOFTWARE/Classes/CLSID/{235783FE-1F74-487E-8561-9E890047927A}";

class CatalogueRegistrarTest : public testing::Test {
protected:
    std::string Path() const { return (m_folder.Path() / "registry.json").string(); }
    contract::Status Register() {
        return panel::RegisterComponent(m_registrar, panel::kRegistrationScript, "/opt/ui.so");
    }
    contract::Status Unregister() {
        return panel::UnregisterComponent(m_registrar, panel::kRegistrationScript);
    }
    Json Read() const { return Json::parse(std::ifstream(Path())); }
    void Write(const char* text) const { m_folder.Write("registry.json", text); }

    simulator::CTemporaryFolder m_folder;
    CCatalogueRegistrar m_registrar{Path(), [](const std::string&) {}};
};

TEST_F(CatalogueRegistrarTest, RegistrationWritesTheClassAndTheCategories) {
    ASSERT_EQ(Register(), kSuccess);
    const Json file = Read();
    EXPECT_EQ(file["SOFTWARE/Classes/QRZ.KRX8Maintenance/CurVer"][""], "QRZ.KRX8Maintenance.1");
    EXPECT_EQ(file["SOFTWARE/Classes/QRZ.KRX8Maintenance.1/CLSID"][""],
              "{235783FE-1F74-487E-8561-9E890047927A}");
    const std::string server = std::string(kClass) + "/InprocServer32";
    EXPECT_EQ(file[server], Json({{"", "/opt/ui.so"}, {"ThreadingModel", "Apartment"}}));
    EXPECT_EQ(file[std::string(kClass) + "/Control"], Json::object());
    EXPECT_EQ(file["SOFTWARE/Classes/Component "
                   "Categories/{A17A3B66-97BE-4310-AAA9-6B0E8C0FA36B}"],
              Json({{"409", "QRZ OPQ BaseComponent"}}));
}

TEST_F(CatalogueRegistrarTest, RegisteringAgainLeavesTheFileAsItIs) {
    ASSERT_EQ(Register(), kSuccess);
    const Json once = Read();
    ASSERT_EQ(Register(), kSuccess);
    EXPECT_EQ(Read(), once);
}

TEST_F(CatalogueRegistrarTest, RegisteringAgainRenewsTheClassWhole) {
    ASSERT_EQ(Register(), kSuccess);
    Json file = Read();
    file[std::string(kClass) + "/Stray"] = {{"", "left over"}};
    Write(file.dump().c_str());
    ASSERT_EQ(Register(), kSuccess);
    EXPECT_FALSE(Read().contains(std::string(kClass) + "/Stray"));
}

TEST_F(CatalogueRegistrarTest, UnregisteringLeavesSettingsOtherClassesAndCategories) {
    Write(R"({ "SOFTWARE/Settings": { "FlashVersion": "5" },
               "SOFTWARE/Classes/QRZ.KRX8Maintenance.12": { "": "another one" },
               "SOFTWARE/Classes/CLSID/{1}": { "": "another class" } })");
    ASSERT_EQ(Register(), kSuccess);
    ASSERT_EQ(Unregister(), kSuccess);
    const Json file = Read();
    EXPECT_EQ(file["SOFTWARE/Settings"], Json({{"FlashVersion", "5"}}));
    EXPECT_TRUE(file.contains("SOFTWARE/Classes/QRZ.KRX8Maintenance.12"));
    EXPECT_TRUE(file.contains("SOFTWARE/Classes/CLSID/{1}"));
    EXPECT_TRUE(file.contains("SOFTWARE/Classes/CLSID"));
    EXPECT_EQ(file.size(), 4u + 10u);
}

TEST_F(CatalogueRegistrarTest, UnregisteringWhatIsNotRegisteredSucceeds) {
    EXPECT_EQ(Unregister(), kSuccess);
}

TEST_F(CatalogueRegistrarTest, DamagedFileRefusesTheRegistrationAndStaysAsItIs) {
    Write("{ damaged");
    EXPECT_EQ(Register(), contract::Status::FromBits(0x8007000D));
    std::string text;
    std::getline(std::ifstream(Path()), text, '\0');
    EXPECT_EQ(text, "{ damaged");
}

}

}
