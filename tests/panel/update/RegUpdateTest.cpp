#include "panel/update/RegUpdate.h"

#include "frontend/headless/HeadlessFileDialog.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/FileDialog.h"
#include "panel/control/Trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

namespace panel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kKey = "SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate";
constexpr const char* kFilter = "Ini files (*.ini)|*.ini|All files (*.*)|*.*|";

class RegUpdateTest : public testing::Test {
protected:
    headless::CMemoryRegistry& Registry() { return toolkit.Desktop()->registry; }
    headless::CPromptQueue& Prompts() { return toolkit.Desktop()->prompts; }
    void PutText(const std::string& name, const std::string& text) {
        Registry().PutText(kKey, name, text);
    }
    /// The bytes of a value as they are stored; nothing when there is none.
    std::optional<std::string> Stored(const std::string& name) {
        const auto& values = Registry().keys[kKey];
        const auto value = values.find(name);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }
    void ExpectTraced(const std::string& line) {
        if (kTraceLines) {
            EXPECT_THAT(toolkit.Desktop()->traceLines, ElementsAre(line));
        } else {
            EXPECT_THAT(toolkit.Desktop()->traceLines, IsEmpty());
        }
    }
    /// Runs it with a key that cannot be made, and with one that cannot be written to.
    void ExpectFailuresTraced(const std::function<void()>& write) {
        Registry().createError = 5;
        write();
        ExpectTraced("CRegUpdate::SetRegValue: Reg. Key opening or creating failed, error 5");
        toolkit.Desktop()->traceLines.clear();
        Registry().createError = 0;
        Registry().writeError = 112;
        write();
        ExpectTraced("CRegUpdate::SetRegValue: Reg. value setting failed, error 112");
        toolkit.Desktop()->traceLines.clear();
        Registry().writeError = 0;
    }
    std::optional<std::string> BrowseInPackageFolder() {
        return settings.BrowseForOpenFile(kFilter, "ini", true);
    }

    headless::CHeadlessToolkit toolkit;
    CRegUpdate settings{toolkit};
};

// Reading

TEST_F(RegUpdateTest, TextIsReadFromTheSettingsKey) {
    PutText("FlashDir", "C:\\Packages");
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), "C:\\Packages");
    EXPECT_THAT(toolkit.Desktop()->traceLines, IsEmpty());
}

TEST_F(RegUpdateTest, WithoutKeyTextsAreEmptyAndNumbersZero) {
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), "");
    ExpectTraced("CRegUpdate::GetRegSzValue: Reg.Key open failed, error 2");
    toolkit.Desktop()->traceLines.clear();
    EXPECT_EQ(settings.GetRegDwValue("FlashUpdated"), 0u);
    ExpectTraced("CRegUpdate::GetRegDwValue: Reg.Key open failed, error 2");
}

TEST_F(RegUpdateTest, MissingValueIsTracedAndReadAsNothing) {
    PutText("FlashVersion", "1.2");
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), "");
    ExpectTraced("CRegUpdate::GetRegSzValue: Reg. value reading failed, error 2");
    toolkit.Desktop()->traceLines.clear();
    EXPECT_EQ(settings.GetRegDwValue("FlashUpdated"), 0u);
    ExpectTraced("CRegUpdate::GetRegDwValue: Reg. value reading failed, error 2");
}

TEST_F(RegUpdateTest, TextOf259BytesIsTheLongestWithItsTerminator) {
    PutText("FlashDir", std::string(259, 'x'));
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), std::string(259, 'x'));
    PutText("FlashDir", std::string(260, 'x'));
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), "");
    ExpectTraced("CRegUpdate::GetRegSzValue: Reg. value reading failed, error 234");
}

TEST_F(RegUpdateTest, TextStoredWithoutTerminatorIsReadWhole) {
    Registry().keys[kKey]["FlashDir"] = std::string(260, 'x');
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), std::string(260, 'x'));
    Registry().keys[kKey]["FlashDir"] = std::string(261, 'x');
    EXPECT_EQ(settings.GetRegSzValue("FlashDir"), "");
}

TEST_F(RegUpdateTest, StoredTypeIsNotChecked) {
    settings.SetRegValue("Number", 0x00434241u);
    EXPECT_EQ(settings.GetRegSzValue("Number"), "ABC");
    PutText("Text", "ABC");
    EXPECT_EQ(settings.GetRegDwValue("Text"), 0x00434241u);
    PutText("Text", "ABCD");
    EXPECT_EQ(settings.GetRegDwValue("Text"), 0u);
}

TEST_F(RegUpdateTest, FailedReadingEmptiesWhatWasReadBefore) {
    PutText("FlashDir", "C:\\Packages");
    const std::string& text = settings.GetRegSzValue("FlashDir");
    EXPECT_EQ(text, "C:\\Packages");
    settings.GetRegSzValue("Missing");
    EXPECT_EQ(text, "");
}

// Writing

TEST_F(RegUpdateTest, WrittenValuesReadBack) {
    settings.SetRegValue("FlashVersion", std::string("2.10.4"));
    settings.SetRegValue("FlashUpdated", 4000000000u);
    EXPECT_EQ(settings.GetRegSzValue("FlashVersion"), "2.10.4");
    EXPECT_EQ(settings.GetRegDwValue("FlashUpdated"), 4000000000u);
    EXPECT_EQ(Stored("FlashVersion"), std::string("2.10.4\0", 7));
}

TEST_F(RegUpdateTest, EmptyNameIsTheDefaultValueForATextOnly) {
    settings.SetRegValue("", std::string("default"));
    EXPECT_EQ(settings.GetRegSzValue(""), "default");
    settings.SetRegValue("", 7u);
    EXPECT_EQ(settings.GetRegSzValue(""), "default");
    ExpectTraced("CRegUpdate::SetRegValue: The value name for DWORD value cannot be empty or NULL");
}

TEST_F(RegUpdateTest, FailuresOfWritingAreTracedOnly) {
    ExpectFailuresTraced([this] { settings.SetRegValue("FlashDir", std::string("x")); });
    ExpectFailuresTraced([this] { settings.SetRegValue("FlashDir", 1u); });
    EXPECT_EQ(Stored("FlashDir"), std::nullopt);
}

TEST_F(RegUpdateTest, NumberWithoutNameDoesNotMakeTheKey) {
    settings.SetRegValue("", 7u);
    EXPECT_THAT(Registry().keys, IsEmpty());
}

TEST_F(RegUpdateTest, EveryOperationClosesItsKey) {
    PutText("FlashDir", "C:\\Packages");
    std::unique_ptr<IRegistryKey> key;
    EXPECT_EQ(Registry().OpenKey(kKey, key), 0);
    EXPECT_EQ(Registry().openKeys, 1);
    key.reset();
    for (const char* name : {"FlashDir", "Missing"}) {
        settings.GetRegSzValue(name);
        EXPECT_EQ(Registry().openKeys, 0);
        settings.GetRegDwValue(name);
        EXPECT_EQ(Registry().openKeys, 0);
    }
    settings.SetRegValue("FlashVersion", std::string("1"));
    EXPECT_EQ(Registry().openKeys, 0);
    settings.SetRegValue("FlashUpdated", 1u);
    EXPECT_EQ(Registry().openKeys, 0);
}

// Browsing

TEST_F(RegUpdateTest, ChosenPathIsReturned) {
    Prompts().ChooseFile("C:\\Packages\\Flash\\a.ini");
    EXPECT_EQ(settings.BrowseForOpenFile(kFilter, "ini", false), "C:\\Packages\\Flash\\a.ini");
    const FileDialog& dialog = Prompts().FileDialogs().front().dialog;
    EXPECT_EQ(dialog.owner, Owner::None);
    EXPECT_EQ(dialog.title, "");
    EXPECT_EQ(dialog.fileName, "");
    EXPECT_EQ(dialog.startFolder, "");
    EXPECT_EQ(dialog.defaultExtension, "ini");
    EXPECT_EQ(dialog.pathCapacity, 261u);
    EXPECT_THAT(dialog.filters, ElementsAre(FileFilter{"Ini files (*.ini)", "*.ini"},
                                            FileFilter{"All files (*.*)", "*.*"}));
}

TEST_F(RegUpdateTest, DialogBelongsToTheOwnerGiven) {
    Prompts().CancelFileDialog();
    CRegUpdate owned(toolkit, Owner::PanelParent);
    EXPECT_EQ(owned.BrowseForOpenFile(kFilter, "ini", false), std::nullopt);
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.owner, Owner::PanelParent);
}

TEST_F(RegUpdateTest, PackageFolderIsWhereTheDialogStarts) {
    PutText("FlashDir", "C:\\Packages");
    Prompts().CancelFileDialog();
    BrowseInPackageFolder();
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.startFolder, "C:\\Packages\\Flash");
}

TEST_F(RegUpdateTest, MissingPackageFolderStartsInItsSubFolderAlone) {
    Prompts().CancelFileDialog();
    BrowseInPackageFolder();
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.startFolder, "\\Flash");
}

TEST_F(RegUpdateTest, PackageFolderIsJoinedAsItStands) {
    PutText("FlashDir", "C:\\Packages\\");
    Prompts().CancelFileDialog();
    BrowseInPackageFolder();
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.startFolder, "C:\\Packages\\\\Flash");
}

TEST_F(RegUpdateTest, PackageFolderOf232CharactersIsTheLongest) {
    PutText("FlashDir", std::string(232, 'p'));
    Prompts().CancelFileDialog();
    BrowseInPackageFolder();
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.startFolder,
              std::string(232, 'p') + "\\Flash");
    PutText("FlashDir", std::string(233, 'p'));
    EXPECT_EQ(BrowseInPackageFolder(), std::nullopt);
    EXPECT_EQ(Prompts().FileDialogs().size(), 1u);
}

TEST_F(RegUpdateTest, PackageFolderTooLongToReadOpensTheDialogAsWithoutOne) {
    PutText("FlashDir", std::string(259, 'p'));
    EXPECT_EQ(BrowseInPackageFolder(), std::nullopt);
    EXPECT_THAT(Prompts().FileDialogs(), IsEmpty());
    PutText("FlashDir", std::string(260, 'p'));
    Prompts().CancelFileDialog();
    EXPECT_EQ(BrowseInPackageFolder(), std::nullopt);
    ASSERT_EQ(Prompts().FileDialogs().size(), 1u);
    EXPECT_EQ(Prompts().FileDialogs().front().dialog.startFolder, "\\Flash");
}

TEST_F(RegUpdateTest, EmptyFilterShowsNoDialog) {
    EXPECT_EQ(settings.BrowseForOpenFile("", "ini", false), std::nullopt);
    EXPECT_THAT(Prompts().FileDialogs(), IsEmpty());
}

TEST_F(RegUpdateTest, FilterWithoutBarIsADescriptionAlone) {
    Prompts().CancelFileDialog();
    settings.BrowseForOpenFile("Everything", "ini", false);
    EXPECT_THAT(Prompts().FileDialogs().front().dialog.filters,
                ElementsAre(FileFilter{"Everything", ""}));
}

TEST_F(RegUpdateTest, LongFilterIsCutTo260Characters) {
    Prompts().CancelFileDialog();
    settings.BrowseForOpenFile(std::string(300, 'f'), "ini", false);
    EXPECT_THAT(Prompts().FileDialogs().front().dialog.filters,
                ElementsAre(FileFilter{std::string(260, 'f'), ""}));
}

TEST_F(RegUpdateTest, CancelAndFailureAreSilent) {
    Prompts().CancelFileDialog();
    EXPECT_EQ(settings.BrowseForOpenFile(kFilter, "ini", false), std::nullopt);
    Prompts().AnswerFileDialog([](headless::CHeadlessFileDialog& dialog) { dialog.Fail(1); });
    EXPECT_EQ(settings.BrowseForOpenFile(kFilter, "ini", false), std::nullopt);
    EXPECT_THAT(Prompts().Boxes(), IsEmpty());
}

TEST_F(RegUpdateTest, ClassCanBeDeletedByItsBase) {
    EXPECT_TRUE(std::has_virtual_destructor_v<CRegUpdate>);
}

}
}
