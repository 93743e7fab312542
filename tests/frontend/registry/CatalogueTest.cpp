#include "frontend/registry/Catalogue.h"

#include "tests/frontend/registry/RegistryFixture.h"

namespace registry {

namespace {

constexpr const char* kProgram = "QRZ.KRX8Maintenance";

class CatalogueTest : public RegistryFixture {
protected:
    void WriteText(const std::string& key, const std::string& text) {
        std::unique_ptr<panel::IRegistryKey> opened;
        ASSERT_EQ(registry.CreateKey("SOFTWARE\\Classes\\" + key, opened), 0);
        ASSERT_EQ(opened->WriteText("", text), 0);
    }

    std::string Problem() {
        const auto found = FindComponent(Path(), kProgram);
        const auto* problem = std::get_if<std::string>(&found);
        return problem ? *problem : "none";
    }
};

TEST_F(CatalogueTest, ComponentIsFoundByItsProgramIdentifier) {
    WriteText("QRZ.KRX8Maintenance\\CLSID", "{235783FE-1F74-487E-8561-9E890047927A}");
    WriteText("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\InprocServer32", "/opt/ui.so");
    const auto found = FindComponent(Path(), kProgram);
    const auto* entry = std::get_if<CatalogueEntry>(&found);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->library, "/opt/ui.so");
    EXPECT_EQ(entry->classIdentifier,
              (contract::Guid{
                  0x235783FE, 0x1F74, 0x487E, {0x85, 0x61, 0x9E, 0x89, 0x00, 0x47, 0x92, 0x7A}}));
}

TEST_F(CatalogueTest, MissingFileRegistersNothing) {
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance is not registered in " + Path());
}

TEST_F(CatalogueTest, SettingsAloneRegisterNothing) {
    WriteFile(R"({ "SOFTWARE/Programs": { "FlashDir": "/srv" } })");
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance is not registered in " + Path());
}

TEST_F(CatalogueTest, ClassWithoutLibraryIsNamed) {
    WriteText("QRZ.KRX8Maintenance\\CLSID", "{235783FE-1F74-487E-8561-9E890047927A}");
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance is registered in " + Path() +
                             ", but its class {235783FE-1F74-487E-8561-9E890047927A} names no "
                             "library");
}

TEST_F(CatalogueTest, ClassThatIsNoIdentifierIsNamed) {
    WriteText("QRZ.KRX8Maintenance\\CLSID", "nonsense");
    WriteText("CLSID\\nonsense\\InprocServer32", "/opt/ui.so");
    EXPECT_EQ(Problem(), "QRZ.KRX8Maintenance is registered in " + Path() +
                             ", but its class nonsense names no library");
}

TEST_F(CatalogueTest, DamagedFileIsNamed) {
    WriteFile("{");
    EXPECT_EQ(Problem(), Path() + " is damaged; mend it, or remove it and register anew");
}

TEST_F(CatalogueTest, FileThatIsBelowAFileIsNamedWithTheError) {
    WriteFile("{}");
    const auto found = FindComponent(Path() + "/inner.json", kProgram);
    EXPECT_EQ(std::get<std::string>(found), Path() + "/inner.json cannot be read (error 3)");
}

}

}
