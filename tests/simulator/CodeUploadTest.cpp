#include "tests/simulator/WritingFixture.h"

namespace simulator {
namespace {

using contract::SelfTest;

class CodeUploadTest : public WritingFixture {
protected:
    static DeviceDescription DeviceWithCode(std::int32_t type) {
        auto description = SmallDevice(type);
        description.software.application = "1.1";
        description.software.fpgaCode = "2.2";
        description.software.boot = "3.3";
        return description;
    }
    contract::Status UploadFpga(const std::string& path) {
        return Control()->UploadCode(path, 0, -1, 0);
    }
    contract::Status UploadApplication(const std::string& path) {
        return Control()->UploadCode(path, 1, -1, 1);
    }
    contract::Status UploadImage(const std::string& path) {
        return Control()->UploadCode(path, -1, -1, -1);
    }
    void ExpectRefused(contract::Status status, std::uint32_t bits, const std::string& text) {
        ExpectFailure(status, bits, text);
        EXPECT_EQ(m_log->events, Events{});
        EXPECT_EQ(Description().software.application, "1.1");
    }
};

TEST_F(CodeUploadTest, FpgaUploadPassesThroughMaintenance) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = WorkstationFile("fpga.bin", "content: fpga\nversion: 2.3\n");
    EXPECT_EQ(UploadFpga(path), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"mode 3", "message Loading fpga.bin 27/27", "mode 1"}));
    EXPECT_EQ(Description().software.fpgaCode, "2.3");
    EXPECT_EQ(Description().software.application, "1.1");
}

TEST_F(CodeUploadTest, ApplicationUploadTakesBothWays) {
    Connect(DeviceWithCode(kKrx8c));
    const auto path = WorkstationFile("a.bin", "version: 4.5\n");
    EXPECT_EQ(UploadApplication(path), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "4.5");
    const auto next = WorkstationFile("b.bin", "version: 4.6\n");
    EXPECT_EQ(Control()->UploadCode(next, 1, -1, 0), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "4.6");
}

TEST_F(CodeUploadTest, ImageBringsAllItsVersions) {
    Connect(DeviceWithCode(kKrx21));
    const auto path = WorkstationFile(
        "any.bin", "model: KRX-20, KRX-21\r\nversion: 2.8.0\r\nfpga: 1.21\r\nboot: 3.05\r\n\x01");
    EXPECT_EQ(UploadImage(path), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "2.8.0");
    EXPECT_EQ(Description().software.fpgaCode, "1.21");
    EXPECT_EQ(Description().software.boot, "3.05");
}

TEST_F(CodeUploadTest, VersionIsThatOfTheNameWithoutHeader) {
    Connect(DeviceWithCode(kKrx10));
    EXPECT_EQ(UploadImage(WorkstationFile("image2_v4.08.1.krx10", "\x7F")), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "4.08.1");
    EXPECT_EQ(Description().software.fpgaCode, "2.2");
}

TEST_F(CodeUploadTest, VersionIsOneWithoutHeaderAndNumber) {
    Connect(DeviceWithCode(kKrx10));
    EXPECT_EQ(UploadImage(WorkstationFile("image.KRX10", "\x7F")), contract::kSuccess);
    EXPECT_EQ(Description().software.application, "1.0");
}

TEST_F(CodeUploadTest, GoodApplicationBringsServiceModeBackToNormal) {
    auto description = DeviceWithCode(kKrx8);
    description.mode = kServiceMode;
    description.selfTests = {{SelfTest::ApplicationSw, 789}, {SelfTest::FpgaCode, 1}};
    Connect(description);
    EXPECT_EQ(UploadApplication(WorkstationFile("a.bin", "x")), contract::kSuccess);
    EXPECT_EQ(m_device->Mode(), 1);
    EXPECT_EQ(Description().mode, 1);
    EXPECT_EQ(Description().selfTests.at(SelfTest::ApplicationSw), 0);
    EXPECT_EQ(Description().selfTests.at(SelfTest::FpgaCode), 1);
}

TEST_F(CodeUploadTest, ImageOfOtherModelIsRefused) {
    Connect(DeviceWithCode(kKrx10));
    const auto path = WorkstationFile("i.krx10", "model: KRX-20, KRX-21\nversion: 9\n");
    ExpectRefused(UploadImage(path), 0x8007000D,
                  "\"i.krx10\" is for \"KRX-20, KRX-21\", not for KRX-10");
    ExpectRefused(UploadImage(WorkstationFile("i.krx20", "x")), 0x8007000D,
                  "\"i.krx20\" is no software image for KRX-10");
}

TEST_F(CodeUploadTest, CodeOfOtherContentIsRefused) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = WorkstationFile("a.bin", "content: application\n");
    ExpectRefused(UploadFpga(path), 0x8007000D,
                  "\"a.bin\" is of the content \"application\", not \"fpga\"");
}

TEST_F(CodeUploadTest, VersionsThatAreNoneAreRefused) {
    Connect(DeviceWithCode(kKrx10));
    ExpectRefused(UploadImage(WorkstationFile("i.krx10", "version: 3.1\nfpga: v7\nboot: 1\n")),
                  0x8007000D,
                  "\"i.krx10\" gives \"v7\" as \"fpga\", which is no version such as 1.21");
    ExpectRefused(UploadImage(WorkstationFile("i.krx10", "boot: 2.4.\n")), 0x8007000D,
                  "\"i.krx10\" gives \"2.4.\" as \"boot\", which is no version such as 1.21");
    ExpectRefused(UploadImage(WorkstationFile("i_v3.1.krx10", "version: latest\n")), 0x8007000D,
                  "\"i_v3.1.krx10\" gives \"latest\" as \"version\", which is no version such "
                  "as 1.21");
    EXPECT_EQ(Description().software.fpgaCode, "2.2");
    EXPECT_EQ(Description().software.boot, "3.3");
}

TEST_F(CodeUploadTest, PartsThatCodeHasNotAreNotLookedAt) {
    Connect(DeviceWithCode(kKrx8));
    EXPECT_EQ(UploadApplication(WorkstationFile("a.bin", "version: 4.5\nboot: none\n")),
              contract::kSuccess);
    EXPECT_EQ(Description().software.boot, "3.3");
}

TEST_F(CodeUploadTest, CodeLargerThanTheFlashMemoryIsRefusedUnread) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = WorkstationFile("a.bin", std::string(10001, 'x'));
    ExpectRefused(UploadApplication(path), 0x80070070,
                  "\"a.bin\" has 10001 bytes, and the whole flash memory 10000");
    // Read, it would take its time, and a memory of the workstation.
    std::filesystem::resize_file(path, 2147483647);
    ExpectRefused(UploadFpga(path), 0x80070070,
                  "\"a.bin\" has 2147483647 bytes, and the whole flash memory 10000");
    std::filesystem::resize_file(path, 10000);
    EXPECT_EQ(UploadApplication(path), contract::kSuccess);
}

TEST_F(CodeUploadTest, CodeAsLargeAsTheFlashMemoryLeavesItsFilesAlone) {
    auto description = DeviceWithCode(kKrx8);
    description.files = {{"a_alg.fia", 21, 7, "1.0", 9990, kInFlash, 4, ""}};
    Connect(description);
    EXPECT_EQ(UploadFpga(WorkstationFile("a.bin", std::string(10000, 'x'))), contract::kSuccess);
    EXPECT_EQ(m_device->FreeFlashBytes(), 10u);
}

TEST_F(CodeUploadTest, KindThatTheModelDoesNotTakeIsRefused) {
    Connect(DeviceWithCode(kKrx20));
    const auto path = WorkstationFile("a.bin", "x");
    ExpectRefused(UploadFpga(path), 0x80070057, "KRX-20 takes no single code files");
    Connect(DeviceWithCode(kKrx8));
    ExpectRefused(UploadImage(path), 0x80070057, "KRX-8 takes no software images");
}

TEST_F(CodeUploadTest, UnknownWaysAreRefused) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = WorkstationFile("a.bin", "x");
    ExpectRefused(Control()->UploadCode(path, 2, -1, 0), 0x80070057,
                  "There is no code upload of kind 2, reserved -1, mode 0");
    ExpectRefused(Control()->UploadCode(path, 0, -1, 1), 0x80070057,
                  "There is no code upload of kind 0, reserved -1, mode 1");
    ExpectRefused(Control()->UploadCode(path, 1, 0, 1), 0x80070057,
                  "There is no code upload of kind 1, reserved 0, mode 1");
}

TEST_F(CodeUploadTest, MissingFileIsRefusedBeforeMaintenance) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = std::filesystem::path("C:/gone.bin").make_preferred().string();
    ExpectRefused(UploadFpga("C:\\gone.bin"), 0x80070002, "There is no file \"" + path + "\"");
}

TEST_F(CodeUploadTest, FileThatVanishesBeforeItIsReadIsMissing) {
    Connect(DeviceWithCode(kKrx8));
    const auto path = WorkstationFile("a.bin", "x");
    m_log->onEvent = [&] { std::filesystem::remove(path); };
    ExpectFailure(UploadFpga(path), 0x80070002, "There is no file \"" + path + "\"");
    EXPECT_EQ(m_log->events, (Events{"mode 3", "mode 1"}));
}

TEST_F(CodeUploadTest, FailureOnTheWayReturnsToTheModeBefore) {
    auto description = DeviceWithCode(kKrx8);
    description.mode = kServiceMode;
    Connect(description);
    const auto path = WorkstationFile("a.bin", "x");
    m_log->onEvent = [&] { WorkstationFile("a.bin", "xyz"); };
    ExpectFailure(UploadFpga(path), 0x8007001E, "\"" + path + "\" was changed while it was read");
    EXPECT_EQ(m_log->events, (Events{"mode 3", "message Loading a.bin 1/1", "mode 2"}));
    EXPECT_EQ(Description().software.fpgaCode, "2.2");
}

}
}
