#include "simulator/device/VersionText.h"
#include "tests/simulator/WritingFixture.h"

namespace simulator {
namespace {

using NameList = std::vector<std::string>;

class IniUpdateTest : public WritingFixture {
protected:
    IniUpdateTest() {
        WorkstationFile("p/a_2nd.fia", "a_2nd.fia 2.0 id=5\n");
        WorkstationFile("p/sub/b_alg.fg", "b_alg.fg 3.0\n");
    }
    contract::Status Update(const std::string& text) {
        return Control()->UpdateFromIniFile(WorkstationFile("p/u.ini", text));
    }
    static std::string Package(const std::string& files) {
        return "[package]\nname = Package\nversion = 5.2.0\n[common]\n" + files;
    }
    void ExpectMistake(const std::string& text, const std::string& reason) {
        Connect(SmallDevice(kKrx20));
        m_log->events.clear();
        ExpectFailure(Update(text), 0x8007000D,
                      "\"" + m_workstation.PathOf("p/u.ini") + "\"" + reason);
        EXPECT_EQ(m_log->events, Events{});
        EXPECT_EQ(Names(), NameList{});
    }
};

TEST_F(IniUpdateTest, UpdateLoadsEachFileAndInstallsTheVersion) {
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Update(Package("file = a_2nd.fia\nfile = sub\\b_alg.fg, RAM\n")), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"message Updating to Package 5.2.0 0/0", "mode 3",
                                     "message Updating a_2nd.fia 19/19",
                                     "message Updating b_alg.fg 13/13", "mode 1"}));
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "b_alg.fg", "version.fia"}));
    EXPECT_EQ(FileNamed("a_2nd.fia"), (StoredFile{"a_2nd.fia", 19, 5, "2.0", 19, 2, 0, ""}));
    EXPECT_EQ(FileNamed("b_alg.fg").location, 1);
    EXPECT_EQ(FileNamed("version.fia"), (StoredFile{"version.fia", 22, 1, "5.2.0", 18, 2, 0, ""}));
}

TEST_F(IniUpdateTest, IndentedLinesAreReadAsOthers) {
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Update("[package]\n  name = Package\n\tversion = 5.2.0\n \n  [common]\n"
                     "  file = a_2nd.fia\n \t ; file = gone.fia\n\tfile = sub/b_alg.fg\n  "),
              contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "b_alg.fg", "version.fia"}));
    EXPECT_EQ(FileNamed("version.fia").version, "5.2.0");
}

TEST_F(IniUpdateTest, CommentsBehindAStatementAreLeftOut) {
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Update("\xEF\xBB\xBF# c\n[package] ; c\r\nname = a;b\t;c\r\nversion = 5.2.0 ;c ;d\n"
                     "[common] ;[KRX-8]\nfile = a_2nd.fia ;, RAM\n;file = sub/b_alg.fg\n"),
              contract::kSuccess);
    EXPECT_EQ(m_log->events[0], "message Updating to a;b 5.2.0 0/0");
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "version.fia"}));
    EXPECT_EQ(FileNamed("a_2nd.fia").location, 2);
}

TEST_F(IniUpdateTest, UpdateReplacesWhatIsThere) {
    auto description = SmallDevice(kKrx20);
    description.files = {{"VERSION.FIA", 21, 9, "1.0", 5, kInRam, 0, ""},
                         {"a_2nd.fia", 19, 4, "9.0", 5, kOnPcCard, 3, ""},
                         {"x_2nd.fia", 19, 5, "1.0", 5, kInFlash, 3, ""},
                         {"one_mcu.fia", 22, 1, "1.0", 5, kInFlash, 3, ""}};
    Connect(description);
    EXPECT_EQ(Update(Package("file = a_2nd.fia\n")), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "one_mcu.fia", "version.fia"}));
    EXPECT_EQ(FileNamed("a_2nd.fia"), (StoredFile{"a_2nd.fia", 19, 5, "2.0", 19, 3, 3, ""}));
    EXPECT_EQ(FileNamed("version.fia").id, 2);
}

TEST_F(IniUpdateTest, EachModelTakesItsOwnFiles) {
    const auto text = Package("file = a_2nd.fia\n[KRX-10]\nfile = sub/b_alg.fg\n");
    Connect(SmallDevice(kKrx10));
    EXPECT_EQ(Update(text), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "b_alg.fg", "version.fia"}));
    Connect(SmallDevice(kKrx21));
    EXPECT_EQ(Update(text), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "version.fia"}));
}

TEST_F(IniUpdateTest, CodeIsLoadedAsWell) {
    WorkstationFile("p/f.bin", "version: 1.5\n");
    WorkstationFile("p/a.bin", "version: 4.5\n");
    auto description = SmallDevice(kKrx8c);
    description.mode = kServiceMode;
    Connect(description);
    EXPECT_EQ(Update(Package("fpga = f.bin\napplication = a.bin\n")), contract::kSuccess);
    EXPECT_EQ(Description().software.fpgaCode, "1.5");
    EXPECT_EQ(Description().software.application, "4.5");
    EXPECT_EQ(m_device->Mode(), 1);
    WorkstationFile("p/i.krx10", "version: 7.5\n");
    Connect(SmallDevice(kKrx10));
    EXPECT_EQ(Update(Package("image = i.krx10\n")), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "7.5");
}

TEST_F(IniUpdateTest, MissingFileMakesThePartialStatusAndNoVersion) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.PathOf("p/gone.fia");
    EXPECT_EQ(Update(Package("file = gone.fia\nfile = a_2nd.fia\n")),
              contract::Status::FromBits(0x041B1010));
    EXPECT_EQ(m_log->events,
              (Events{"message Updating to Package 5.2.0 0/0", "mode 3",
                      "message gone.fia was not loaded: There is no file \"" + path + "\" 0/0",
                      "message Updating a_2nd.fia 19/19", "mode 1"}));
    EXPECT_EQ(Names(), NameList{"a_2nd.fia"});
}

TEST_F(IniUpdateTest, FullMemoryForTheVersionFileIsPartial) {
    auto description = SmallDevice(kKrx20);
    description.totalFlashBytes = 30;
    Connect(description);
    EXPECT_EQ(Update(Package("file = a_2nd.fia\n")), contract::kPartialUpdate);
    EXPECT_EQ(m_log->events[3],
              "message version.fia was not loaded: \"version.fia\" needs 18 bytes, and flash "
              "memory has 11 of 30 bytes free 0/0");
    EXPECT_EQ(Names(), NameList{"a_2nd.fia"});
}

TEST_F(IniUpdateTest, NoFileLoadedIsAFailure) {
    auto description = SmallDevice(kKrx20);
    description.mode = kServiceMode;
    Connect(description);
    const auto path = m_workstation.PathOf("p/gone.fia");
    ExpectFailure(Update(Package("file = gone.fia\n")), 0x80070002,
                  "None of the files of the package could be loaded: There is no file \"" + path +
                      "\"");
    EXPECT_EQ(m_device->State(), description);
    EXPECT_EQ(m_device->Mode(), 2);
}

TEST_F(IniUpdateTest, UnfitImageIsNamed) {
    WorkstationFile("p/i.krx10", "version: 7.5\n");
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Update(Package("image = i.krx10\nfile = a_2nd.fia\n")), contract::kPartialUpdate);
    EXPECT_EQ(m_log->events[2], "message i.krx10 was not loaded: \"i.krx10\" is no software image "
                                "for KRX-20 0/0");
}

TEST_F(IniUpdateTest, PathWithBackslashesBehindAFolderOfThisSystemWorks) {
    WorkstationFile("p/Flash/krxxupd.ini", Package("file = c_alg.fia\n"));
    WorkstationFile("p/Flash/c_alg.fia", "x");
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.Path().string() + "/p\\Flash\\krxxupd.ini";
    EXPECT_EQ(Control()->UpdateFromIniFile(path), contract::kSuccess);
}

TEST_F(IniUpdateTest, CompleteUpdateMendsTheFileTest) {
    auto description = SmallDevice(kKrx20);
    description.selfTests[contract::SelfTest::SecondaryAndAlgorithmFiles] = 789;
    Connect(description);
    EXPECT_EQ(Update(Package("file = a_2nd.fia\nfile = gone.fia\n")), contract::kPartialUpdate);
    EXPECT_EQ(Description().selfTests.at(contract::SelfTest::SecondaryAndAlgorithmFiles), 789);
    EXPECT_EQ(Update(Package("file = a_2nd.fia\n")), contract::kSuccess);
    EXPECT_EQ(Description().selfTests.at(contract::SelfTest::SecondaryAndAlgorithmFiles), 0);
}

TEST_F(IniUpdateTest, MissingDescriptionFails) {
    Connect(SmallDevice(kKrx20));
    ExpectFailure(Control()->UpdateFromIniFile("\\Flash\\krx8upd.ini"), 0x80070002,
                  "There is no update description \"" +
                      std::filesystem::path("/Flash/krx8upd.ini").make_preferred().string() + "\"");
    const auto path = m_workstation.Path().string();
    ExpectFailure(Control()->UpdateFromIniFile(path), 0x8007001E,
                  "\"" + path + "\" cannot be read: it is not a plain file");
}

TEST_F(IniUpdateTest, HugeDescriptionFails) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.PathOf("p/u.ini");
    ExpectFailure(Update(std::string(1048577, '\n')), 0x8007001E,
                  "\"" + path + "\" cannot be read: it is larger than 1048576 bytes");
}

TEST_F(IniUpdateTest, MistakesAreToldWithTheirLine) {
    ExpectMistake("", ": gives no version of the package");
    ExpectMistake("[package]\nversion = 1\n", ": names no file for this device");
    ExpectMistake("[package]\nversion = 1\n[KRX-8]\nfile = a.fia\n",
                  ": names no file for this device");
    ExpectMistake("[package]\nversion = 1.x\n", ", line 2: has no version such as 5.2.0");
    ExpectMistake("[package]\nversion = 1\nversion = 2\n", ", line 3: gives \"version\" again");
    ExpectMistake("[package]\n\nvendor = x\n", ", line 3: has the unknown key \"vendor\"");
    ExpectMistake("; c\nversion = 1\n", ", line 2: stands before the first section");
    ExpectMistake("[KRX-9]\nfile = a\n", ", line 2: is in the unknown section \"KRX-9\"");
    ExpectMistake("[KRX-8]\nfiles = a\n", ", line 2: has the unknown key \"files\"");
    ExpectMistake("[package]\nversion\n[x]\ny = 1\n",
                  ", line 2: is neither a section, a \"key = value\" nor a comment");
    ExpectMistake("[package]\r\n[common\r\n",
                  ", line 2: is neither a section, a \"key = value\" nor a comment");
    ExpectMistake("[package]\nversion = 1\n\n  more of it\n",
                  ", line 4: is neither a section, a \"key = value\" nor a comment");
    ExpectMistake("[package]\nversion ; = 1\n",
                  ", line 2: is neither a section, a \"key = value\" nor a comment");
    ExpectMistake("[package]\nversion = 1\rname = x\n",
                  ", line 2: is neither a section, a \"key = value\" nor a comment");
    ExpectMistake("[package]\nVersion = 1\n", ", line 2: has the unknown key \"Version\"");
    ExpectMistake("[common]\nfile =\n", ", line 2: names no file");
    ExpectMistake("[common]\nfile = sub/\n", ", line 2: names no file");
    ExpectMistake("[common]\nfile = Version.fia\n",
                  ", line 2: names \"version.fia\", which the update itself makes");
}

TEST_F(IniUpdateTest, PathsOutOfTheFolderAreRefused) {
    for (const auto* path : {"/etc/passwd", "\\a.fia", "C:\\a.fia", "c:a.fia", "../a.fia",
                             "sub\\..\\..\\a.fia", "\\\\server\\share\\a.fia"}) {
        ExpectMistake("[KRX-8]\nfile = " + std::string(path) + "\n",
                      ", line 2: names a file outside the folder of the description");
    }
}

TEST_F(IniUpdateTest, LinesThatCannotBeReadAreToldWithTheirLine) {
    ExpectMistake("[package]\nname = \xFF\n", ", line 2: is not UTF-8");
    ExpectMistake(std::string("[package]\nname = a\0b\n", 22), ", line 2: holds a zero byte");
    ExpectMistake("[package]\nname = " + std::string(192, 'n') + "\n",
                  ", line 2: is longer than 198 bytes");
    ExpectMistake("[package]\nname = " + std::string(191, 'n') + "\nversion\n",
                  ", line 3: is neither a section, a \"key = value\" nor a comment");
}

/// The packages that come with the project, on copies of the sample devices.
class SamplePackageTest : public WritingFixture, public testing::WithParamInterface<std::string> {};

TEST_P(SamplePackageTest, PackageUpdatesTheSampleAsAWhole) {
    ConnectSample(GetParam());
    for (const auto& file : *m_device->Files()) {
        EXPECT_TRUE(file.name != "version.fia" || IsNewer("5.2.0", file.version));
    }
    const auto* ini = GetParam().starts_with("krx-8") ? "krx8upd.ini" : "krxxupd.ini";
    EXPECT_EQ(Control()->UpdateFromIniFile(std::string(KRX8_PACKAGE) + "\\Flash\\" + ini),
              contract::kSuccess);
    EXPECT_EQ(FileNamed("version.fia").version, "5.2.0");
    const auto updated = m_device->State();
    Reconnect();
    EXPECT_EQ(m_device->State(), updated);
    EXPECT_EQ(m_device->Mode(), 1);
}

INSTANTIATE_TEST_SUITE_P(, SamplePackageTest,
                         testing::Values("krx-8", "krx-8c", "krx-10", "krx-20", "krx-21"));

}
}
