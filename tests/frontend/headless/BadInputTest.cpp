#include "tests/frontend/headless/BadInputFixture.h"

namespace headless {

namespace {

namespace fs = std::filesystem;

using contract::Status;
using support::Shown;
using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kSettings = "SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate";
constexpr const char* kUpdateCaption = "Updating Programming Device software";
constexpr const char* kReportCaption = "Generate info report.";

/// Descriptions of updates, and packages.
class BadUpdateTest : public BadInputFixture {
protected:
    /// Accepts the offer of a package in that folder, once.
    void AcceptPackageIn(const fs::path& folder) {
        desktop->registry.PutText(kSettings, "FlashDir", folder);
        desktop->registry.PutText(kSettings, "FlashVersion", "9.0");
        desktop->prompts.AnswerDialog([this](CHeadlessView& prompt) {
            m_shownBefore = TakeMessages();
            prompt.Press(panel::kYesButton);
        });
    }
    static Shown UpdateReport(std::uint32_t status, const std::string& description) {
        return {"Programming Device update via INI-file failed", kUpdateCaption, 0x10,
                Status::FromBits(status).Code(), description};
    }

    std::vector<Shown> m_shownBefore;
};

TEST_F(BadUpdateTest, DescriptionThatVanishesAfterItWasChosenIsReported) {
    Connect();
    const auto path = Write("u.ini", "[package]\n");
    Choose(path, [&] { fs::remove(path); });
    Press(panel::kUpdateButton);
    ExpectOnly(UpdateReport(0x80070002, "There is no update description \"" + path + "\""));
}

TEST_F(BadUpdateTest, EmptyDescriptionIsReported) {
    Connect();
    const auto path = Write("u.ini", "");
    Choose(path);
    Press(panel::kUpdateButton);
    ExpectOnly(UpdateReport(0x8007000D, "\"" + path + "\": gives no version of the package"));
}

TEST_F(BadUpdateTest, FileMissingFromThePackageIsNamed) {
    Connect();
    Write("new_alg.fia", "new");
    Choose(Write("u.ini", "[package]\nversion = 9.0\n[common]\nfile = gone_alg.fia\n"
                          "file = new_alg.fia\n"));
    Press(panel::kUpdateButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Update via INI-file partially failed: not all files are updated",
                                  kUpdateCaption, 0x30, 0x041B1010, ""}));
    EXPECT_THAT(Log(), Contains(StartsWith("gone_alg.fia was not loaded: There is no file \"")));
    EXPECT_EQ(Bytes(m_device.Path() / "files/new_alg.fia"), "new");
    EXPECT_EQ(Bytes(m_device.Path() / "files/old_alg.fia"), "12345");
    EXPECT_EQ(State().installedPackageVersion, "002.000");
}

TEST_F(BadUpdateTest, EmptyFileInAnOfferedPackageIsNamed) {
    Write("Flash/krx8upd.ini", "[package]\nversion = 9.0\n[common]\nfile = empty_alg.fia\n"
                               "file = new_alg.fia\n");
    Write("Flash/empty_alg.fia", "");
    Write("Flash/new_alg.fia", "new");
    AcceptPackageIn(m_workstation.Path());
    StartPanel();
    InsertDevice();
    EXPECT_THAT(m_shownBefore, testing::IsEmpty());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Update via INI-file partially failed: not all files are updated",
                                  kUpdateCaption, 0x30, 0x041B1010, ""}));
    EXPECT_THAT(Log(),
                Contains("empty_alg.fia was not loaded: \"" +
                         (m_workstation.Path() / "Flash/empty_alg.fia").string() + "\" is empty"));
    EXPECT_EQ(Bytes(m_device.Path() / "files/new_alg.fia"), "new");
    EXPECT_EQ(Content(m_device.Path()).count(m_device.Path() / "files/empty_alg.fia"), 0u);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(State().installedPackageVersion, "002.000");
}

TEST_F(BadUpdateTest, PackageFolderThatDoesNotExistIsReported) {
    const auto folder = m_workstation.Path() / "gone";
    AcceptPackageIn(folder);
    StartPanel();
    InsertDevice();
    EXPECT_THAT(m_shownBefore, testing::IsEmpty());
    ExpectOnly(UpdateReport(0x80070002, "There is no update description \"" + folder.string() +
                                            "/Flash/krx8upd.ini\""));
}

TEST_F(BadUpdateTest, DescriptionInAFolderThatMayNotBeReadIsReported) {
    Connect();
    const auto path = Write("closed/u.ini", "[package]\nversion = 9.0\n");
    fs::permissions(m_workstation.Path() / "closed", fs::perms::none);
    Choose(path, LosingRights());
    Press(panel::kUpdateButton);
    fs::permissions(m_workstation.Path() / "closed", fs::perms::owner_all);
    ExpectOnly(UpdateReport(0x80070005, "\"" + path + "\" cannot be read: Permission denied"));
}

/// Files that a report cannot be written to.
class BadReportTest : public BadInputFixture {
protected:
    void SetUp() override {
        BadInputFixture::SetUp();
        Connect();
    }
};

TEST_F(BadReportTest, FullDiskIsNotTold) {
    std::ofstream probe("/dev/full");
    probe << 'x' << std::flush;
    ASSERT_FALSE(probe) << "this system has no device that is always full";
    const Path path = m_workstation.Path() / "r.txt";
    fs::create_symlink("/dev/full", path);
    Choose(path);
    Press(panel::kReportButton);
    ExpectOnly({"Information about the Programming Device is saved.\n\nThe full path to the report "
                "file is:\n" +
                    path,
                kReportCaption, 0x40, 0, ""});
}

TEST_F(BadReportTest, ReportThatMayNotBeWrittenStaysAsItWas) {
    const auto path = Write("r.txt", "the old report");
    fs::permissions(path, fs::perms(0444));
    Choose(path, LosingRights());
    Press(panel::kReportButton);
    ExpectOnly({"Error in printing report to file.", kReportCaption, 0x10, 0, ""});
    EXPECT_EQ(Bytes(path), "the old report");
}

TEST_F(BadReportTest, ReportInAFolderThatMayNotBeWrittenIsNotMade) {
    const fs::path folder = m_workstation.Path() / "closed";
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms(0555));
    Choose(folder / "r.txt", LosingRights());
    Press(panel::kReportButton);
    ExpectOnly({"Error in printing report to file.", kReportCaption, 0x10, 0, ""});
    EXPECT_TRUE(fs::is_empty(folder));
}

}

}
