#include "panel/registration/RegistrySteps.h"

#include "contract/GuidText.h"
#include "panel/registration/ComponentIdentity.h"
#include "panel/registration/RegistrationScript.h"

#include <gmock/gmock.h>

namespace panel {

namespace {

using testing::ElementsAre;
using Kind = RegistryStep::Kind;

ScriptKey Script() { return ParseRegistryScript(kRegistrationScript).value_or(ScriptKey{}); }

RegistryStep Remove(const char* key) { return {Kind::RemoveKey, key}; }
RegistryStep Create(const char* key) { return {Kind::CreateKey, key}; }
RegistryStep Write(const char* key, const char* text) { return {Kind::WriteText, key, "", text}; }

TEST(RegistryStepsTest, RegistrationWritesEachKeyOfTheClass) {
    EXPECT_THAT(
        RegistrationSteps(Script(), "C:\\Panel\\ui.dll"),
        ElementsAre(
            Write("QRZ.KRX8Maintenance.1", "KRX8Maintenance Class"),
            Write("QRZ.KRX8Maintenance.1\\CLSID", "{235783FE-1F74-487E-8561-9E890047927A}"),
            Write("QRZ.KRX8Maintenance", "KRX8Maintenance Class"),
            Write("QRZ.KRX8Maintenance\\CLSID", "{235783FE-1F74-487E-8561-9E890047927A}"),
            Write("QRZ.KRX8Maintenance\\CurVer", "QRZ.KRX8Maintenance.1"), Create("CLSID"),
            Remove("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}", "KRX8Maintenance Class"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\ProgID", "QRZ.KRX8Maintenance.1"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\VersionIndependentProgID",
                  "QRZ.KRX8Maintenance"),
            Remove("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Programmable"),
            Create("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Programmable"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\InprocServer32",
                  "C:\\Panel\\ui.dll"),
            RegistryStep{Kind::WriteText,
                         "CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\InprocServer32",
                         "ThreadingModel", "Apartment"},
            Remove("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Control"),
            Create("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Control"),
            Remove("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Insertable"),
            Create("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Insertable"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\ToolboxBitmap32",
                  "C:\\Panel\\ui.dll, 101"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\MiscStatus", "0"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\MiscStatus\\1", "131473"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\TypeLib",
                  "{315D7CB4-B70F-454D-8520-D76BBCAB99AD}"),
            Write("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}\\Version", "1.0")));
}

TEST(RegistryStepsTest, UnregistrationRemovesProgramIdentifiersAndClassButNotTheClasses) {
    EXPECT_THAT(UnregistrationSteps(Script()),
                ElementsAre(Remove("QRZ.KRX8Maintenance.1"), Remove("QRZ.KRX8Maintenance"),
                            Remove("CLSID\\{235783FE-1F74-487E-8561-9E890047927A}")));
}

TEST(RegistryStepsTest, ScriptNamesTheIdentifiersThatHostsUse) {
    EXPECT_EQ(FormatGuid(kMaintenanceClass), "{235783FE-1F74-487E-8561-9E890047927A}");
    EXPECT_EQ(FormatGuid(kTypeLibrary), "{315D7CB4-B70F-454D-8520-D76BBCAB99AD}");
    EXPECT_STREQ(kProgramIdentifier, "QRZ.KRX8Maintenance");
}

TEST(RegistryStepsTest, ModuleIsTakenAsItIsWhateverItsName) {
    const auto root = ParseRegistryScript("HKCR { A = s '%MODULE%, 101' }");
    EXPECT_THAT(RegistrationSteps(*root, "/it's {here} = %MODULE%"),
                ElementsAre(Write("A", "/it's {here} = %MODULE%, 101")));
}

}

}
