#include "tests/component/win32/server/RegisteredFixture.h"

#include "tests/component/win32/server/Process.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace component {

namespace {

using testing::Eq;
using testing::Ne;
using testing::Optional;

/// What a script ends with that has got to its end. The script host answers 0 for one that fails.
constexpr unsigned long kDone = 9;

/// The component in the hands of the system's script host.
class ScriptTest : public RegisteredFixture {
protected:
    std::optional<unsigned long> RunJavaScript(const std::string& script) {
        return Run("script.js", script);
    }
    std::optional<unsigned long> RunVisualBasic(const std::string& script) {
        return Run("script.vbs", script);
    }

private:
    std::optional<unsigned long> Run(const std::string& name, const std::string& script) {
        m_folder.Write(name, script);
        return RunProcess(L"cscript.exe //nologo \"" + (m_folder.Path() / name).wstring() + L"\"");
    }

    const simulator::CTemporaryFolder m_folder;
};

TEST_F(ScriptTest, JavaScriptReadsTypeAndMode) {
    EXPECT_THAT(RunJavaScript("var panel = new ActiveXObject('QRZ.KRX8Maintenance');\r\n"
                              "if (panel.DeviceType === 3 && panel.DeviceMode === 0) {\r\n"
                              "    WScript.Quit(9);\r\n"
                              "}\r\n"
                              "WScript.Quit(1);\r\n"),
                Optional(Eq(kDone)));
}

TEST_F(ScriptTest, VisualBasicReadsTypeAndMode) {
    EXPECT_THAT(RunVisualBasic("Dim panel\r\n"
                               "Set panel = CreateObject(\"QRZ.KRX8Maintenance\")\r\n"
                               "If panel.DeviceType = 3 And panel.DeviceMode = 0 Then\r\n"
                               "    WScript.Quit 9\r\n"
                               "End If\r\n"
                               "WScript.Quit 1\r\n"),
                Optional(Eq(kDone)));
}

TEST_F(ScriptTest, ScriptsFindTheVersionAndHoldSeveralPanels) {
    EXPECT_THAT(RunJavaScript("var first = new ActiveXObject('QRZ.KRX8Maintenance.1');\r\n"
                              "var second = WScript.CreateObject('QRZ.KRX8Maintenance.1');\r\n"
                              "WScript.Quit(first.DeviceType + 2 * second.devicetype);\r\n"),
                Optional(Eq(kDone)));
}

TEST_F(ScriptTest, ScriptsCannotWriteTheType) {
    EXPECT_THAT(RunJavaScript("var panel = new ActiveXObject('QRZ.KRX8Maintenance');\r\n"
                              "try {\r\n"
                              "    panel.DeviceType = 4;\r\n"
                              "} catch (refusal) {\r\n"
                              "    WScript.Quit(panel.DeviceType === 3 ? 9 : 2);\r\n"
                              "}\r\n"
                              "WScript.Quit(1);\r\n"),
                Optional(Eq(kDone)));
}

TEST_F(ScriptTest, VisualBasicSeesRefusalsAsErrors) {
    EXPECT_THAT(RunVisualBasic("Dim panel\r\n"
                               "Set panel = CreateObject(\"QRZ.KRX8Maintenance\")\r\n"
                               "On Error Resume Next\r\n"
                               "panel.NoSuchMember\r\n"
                               "If Err.Number <> 0 Then WScript.Quit 9\r\n"
                               "WScript.Quit 1\r\n"),
                Optional(Eq(kDone)));
}

// That a script which stops half-way is noticed, in both languages.
TEST_F(ScriptTest, ScriptThatFailsDoesNotGetToItsEnd) {
    EXPECT_THAT(RunJavaScript("var panel = new ActiveXObject('QRZ.KRX8Maintenance');\r\n"
                              "panel.NoSuchMember();\r\n"
                              "WScript.Quit(9);\r\n"),
                Optional(Ne(kDone)));
    EXPECT_THAT(RunVisualBasic("Set panel = CreateObject(\"QRZ.KRX8Maintenance.2\")\r\n"
                               "WScript.Quit 9\r\n"),
                Optional(Ne(kDone)));
}

}

}
