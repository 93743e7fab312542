#include "tests/frontend/headless/BadInputFixture.h"

namespace headless {

namespace {

namespace fs = std::filesystem;

using contract::Status;

constexpr const char* kTooLargeCode =
    "\"new_alg.fia\" has 10001 bytes, and the whole flash memory 10000";

struct UploadCommand {
    const char* name;
    int command;
    const char* text;
    const char* caption;
    const char* tooLarge;
    const char* model = "KRX-8";
    /// One that the command takes.
    const char* file = "new_alg.fia";
};

/// The commands that upload a file of the user's choice.
class BadUploadTest : public BadInputFixture, public testing::WithParamInterface<UploadCommand> {
protected:
    void SetUp() override {
        m_model = GetParam().model;
        BadInputFixture::SetUp();
        Connect();
    }
    void Upload(const Path& path, const std::function<void()>& happens = {}) {
        desktop->prompts.AnswerMenu(GetParam().command);
        Choose(path, happens);
        EXPECT_TRUE(View().RightClick(panel::kFileList, 0));
        m_rights.reset();
    }
    void ExpectReport(std::uint32_t status, const std::string& description) {
        ExpectOnly({GetParam().text, GetParam().caption, 0x10, Status::FromBits(status).Code(),
                    description});
    }
};

TEST_P(BadUploadTest, FileThatVanishesAfterItWasChosenIsReported) {
    const auto path = Write(GetParam().file, "new");
    Upload(path, [&] { fs::remove(path); });
    ExpectReport(0x80070002, "There is no file \"" + path + "\"");
}

TEST_P(BadUploadTest, EmptyFileIsReported) {
    const auto path = Write(GetParam().file, "");
    Upload(path);
    ExpectReport(0x8007000D, "\"" + path + "\" is empty");
}

TEST_P(BadUploadTest, FileLargerThanTheMemoryIsReported) {
    Upload(Write(GetParam().file, std::string(10001, 'x')));
    ExpectReport(0x80070070, GetParam().tooLarge);
}

TEST_P(BadUploadTest, NameBeyond256BytesIsReported) {
    // No file of this system has such a name; one of a file server may.
    Upload("/" + std::string(253, 'n') + ".fia");
    ExpectReport(0x800700CE, "The name of the file has 257 bytes; a device keeps at most 256");
}

TEST_P(BadUploadTest, NameThatIsNotUtf8IsReported) {
    Upload(Write("new\xFF_alg.fia", "new"));
    ExpectReport(0x80070459, "The name of the file is not UTF-8");
}

TEST_P(BadUploadTest, FileInAFolderThatMayNotBeReadIsReported) {
    const auto path = Write(std::string("closed/") + GetParam().file, "new");
    fs::permissions(m_workstation.Path() / "closed", fs::perms::none);
    Upload(path, LosingRights());
    fs::permissions(m_workstation.Path() / "closed", fs::perms::owner_all);
    ExpectReport(0x80070005, "\"" + path + "\" cannot be read: Permission denied");
}

TEST_P(BadUploadTest, GoodFileIsTakenAfterABadOne) {
    Upload(Write("bad_alg.fia", ""));
    EXPECT_EQ(TakeMessages().size(), 1u);
    Upload(Write(GetParam().file, "new"));
    EXPECT_THAT(TakeMessages(), testing::IsEmpty());
    EXPECT_NE(Content(m_device.Path()), m_before);
}

INSTANTIATE_TEST_SUITE_P(
    , BadUploadTest,
    testing::Values(
        UploadCommand{"PhoneFile", 1, "Phone Code file uploading failed", "Phone Code file upload",
                      "\"new_alg.fia\" needs 10001 bytes, and flash memory has 9990 "
                      "of 10000 bytes free"},
        UploadCommand{"Fpga", 5, "FPGA code updating failed", "Software upload", kTooLargeCode},
        UploadCommand{"Application", 6, "Application code updating failed", "Software upload",
                      kTooLargeCode},
        UploadCommand{"ApplicationViaRs232", 7, "Application code updating failed",
                      "Software upload", kTooLargeCode, "KRX-8C"},
        UploadCommand{"Krx10Image", 8, "KRX-10 software image upload failed", "Software upload",
                      "\"new.krx10\" has 10001 bytes, and the whole flash memory 10000", "KRX-10",
                      "new.krx10"},
        UploadCommand{"Krx20Image", 9, "KRX-20 software image upload failed", "Software upload",
                      "\"new.krx20\" has 10001 bytes, and the whole flash memory 10000", "KRX-20",
                      "new.krx20"}),
    [](const auto& tested) { return std::string(tested.param.name); });

}

}
