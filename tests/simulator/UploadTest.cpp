#include "tests/simulator/UploadFixture.h"

namespace simulator {
namespace {

using NameList = std::vector<std::string>;

class UploadTest : public UploadFixture {};

TEST_F(UploadTest, UploadStoresTheFileBehindTheOthers) {
    Connect(DeviceWith({{"a_2nd.fia", 19, 40, "1.0", 10, kInFlash, 3, ""}}));
    EXPECT_EQ(Upload(WorkstationFile("b_2nd.fg", "b_2nd.fg 3.2\nxyz")), contract::kSuccess);
    EXPECT_EQ(m_result, 0);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "b_2nd.fg"}));
    EXPECT_EQ(FileNamed("b_2nd.fg"), (StoredFile{"b_2nd.fg", 19, 41, "3.2", 16, kInFlash, 5, ""}));
    EXPECT_EQ(m_device->FreeFlashBytes(), 9974u);
}

TEST_F(UploadTest, UploadTellsProgressInBytes) {
    auto description = SmallDevice(kKrx20);
    description.totalFlashBytes = 100000;
    Connect(description);
    EXPECT_EQ(Upload(WorkstationFile("b_2nd.fg", std::string(40000, 'x'))), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"message Uploading b_2nd.fg 16384/40000",
                                     "message Uploading b_2nd.fg 32768/40000",
                                     "message Uploading b_2nd.fg 40000/40000"}));
}

TEST_F(UploadTest, UploadOfLargeFileTellsAboutAHundredTimes) {
    auto description = SmallDevice(kKrx20);
    description.totalFlashBytes = 16000000;
    Connect(description);
    EXPECT_EQ(Upload(WorkstationFile("b_2nd.fg", std::string(16000000, 'x'))), contract::kSuccess);
    EXPECT_EQ(m_log->events.size(), 100u);
}

TEST_F(UploadTest, UploadUnderSameNameReplacesAndKeepsTheIdentifier) {
    Connect(DeviceWith({{"a_alg.fia", 21, 7, "1.0", 9990, kInFlash, 4, ""},
                        {"z_alg.fia", 21, 9, "1.0", 1, kInRam, 4, ""}}));
    const auto path = WorkstationFile("A_ALG.fia", "A_ALG.fia 0.9\n" + std::string(9000, 'x'));
    EXPECT_EQ(Upload(path), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"A_ALG.fia", "z_alg.fia"}));
    EXPECT_EQ(FileNamed("A_ALG.fia"),
              (StoredFile{"A_ALG.fia", 21, 7, "0.9", 9014, kInFlash, 4, ""}));
}

TEST_F(UploadTest, ReplacedFileOfMadeUpLocationGoesToFlash) {
    Connect(DeviceWith({{"a_alg.fia", 21, 7, "1.0", 20, 99, 4, ""}}));
    EXPECT_EQ(Upload(WorkstationFile("a_alg.fia", "a")), contract::kSuccess);
    EXPECT_EQ(FileNamed("a_alg.fia").location, 2);
}

TEST_F(UploadTest, UploadGoesWhereTheDestinationSays) {
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Upload(WorkstationFile("a_alg.fia", "a"), 1), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", "b"), 2), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("c_alg.fia", "c"), 3), contract::kSuccess);
    EXPECT_EQ(FileNamed("a_alg.fia").location, 1);
    EXPECT_EQ(FileNamed("b_alg.fia").location, 2);
    EXPECT_EQ(FileNamed("c_alg.fia").location, 3);
}

TEST_F(UploadTest, McuSoftwareGoesToRamOfKrx8UnlessFlashed) {
    Connect(SmallDevice(kKrx8));
    EXPECT_EQ(Upload(WorkstationFile("a_mcu.fia", "a")), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("b_mcu.fia", "b"), 0, 3), contract::kSuccess);
    EXPECT_EQ(FileNamed("a_mcu.fia").location, 1);
    EXPECT_EQ(FileNamed("b_mcu.fia").location, 2);
    EXPECT_EQ(m_log->events,
              (Events{"message Uploading a_mcu.fia 1/1", "message Flashing b_mcu.fia 1/1"}));
}

TEST_F(UploadTest, VersionMethodKeepsAFileThatIsNotOlder) {
    Connect(DeviceWith({{"a_alg.fia", 21, 7, "2.10", 5, kInFlash, 4, ""}}));
    EXPECT_EQ(Upload(WorkstationFile("a_alg.fia", "a_alg.fia 2.9\n"), 0, 2), contract::kSuccess);
    EXPECT_EQ(m_result, 1);
    EXPECT_EQ(m_device->State(), m_before);
    EXPECT_EQ(m_log->events, Events{"message a_alg.fia is up to date 0/0"});
    EXPECT_EQ(Upload(WorkstationFile("a_alg.fia", "a_alg.fia 2.11\n"), 0, 2), contract::kSuccess);
    EXPECT_EQ(m_result, 0);
    EXPECT_EQ(FileNamed("a_alg.fia").version, "2.11");
}

TEST_F(UploadTest, IdentifierInUseIsTakenOnlyByForce) {
    Connect(DeviceWith({{"a_alg.fia", 21, 65543, "1.0", 5, kInFlash, 4, ""}}));
    const auto path = WorkstationFile("b_alg.fia", "b_alg.fia 1.0 id=7 generation=QX1\n");
    ExpectRefused(Upload(path), 0x80070057,
                  "The identifier 7 of \"b_alg.fia\" is that of \"a_alg.fia\" on the device");
    EXPECT_EQ(Upload(path, 0, 1), contract::kSuccess);
    EXPECT_EQ(FileNamed("b_alg.fia"), (StoredFile{"b_alg.fia", 21, 7, "1.0", 34, kInFlash, 3, ""}));
    EXPECT_EQ(Names(), NameList{"b_alg.fia"});
}

TEST_F(UploadTest, FileWithoutKnownNameIsOfUnknownType) {
    Connect(SmallDevice(kKrx20));
    EXPECT_EQ(Upload(WorkstationFile("notes.txt", "anything")), contract::kSuccess);
    EXPECT_EQ(FileNamed("notes.txt"), (StoredFile{"notes.txt", 255, 1, "", 8, kInFlash, 0, ""}));
}

TEST_F(UploadTest, BackslashesSeparateAsWell) {
    Connect(SmallDevice(kKrx20));
    WorkstationFile("sub/a_alg.fia", "a");
    EXPECT_EQ(Upload(m_workstation.Path().string() + "\\sub\\a_alg.fia"), contract::kSuccess);
    EXPECT_EQ(Names(), NameList{"a_alg.fia"});
}

TEST_F(UploadTest, DeviceChangedFromInsideAMessageIsNotSetBack) {
    Connect(SmallDevice(kKrx20));
    const auto inner = WorkstationFile("inner_alg.fia", "b");
    m_log->onEvent = [&] {
        m_log->onEvent = [] {};
        EXPECT_EQ(Upload(inner), contract::kSuccess);
    };
    EXPECT_EQ(Upload(WorkstationFile("outer_alg.fia", "b")), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"inner_alg.fia", "outer_alg.fia"}));
    EXPECT_EQ(FileNamed("outer_alg.fia").id, 2);
}

TEST_F(UploadTest, FileStoredFromInsideItsOwnMessageIsUpToDate) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("a_alg.fia", "a_alg.fia 2.0\n");
    m_log->onEvent = [&] {
        m_log->onEvent = [] {};
        EXPECT_EQ(Upload(path, 1, 1), contract::kSuccess);
    };
    EXPECT_EQ(Upload(path, 2, 2), contract::kSuccess);
    EXPECT_EQ(m_result, 1);
    EXPECT_EQ(Names(), NameList{"a_alg.fia"});
    EXPECT_EQ(FileNamed("a_alg.fia").location, 1);
    EXPECT_EQ(m_log->events,
              (Events{"message Uploading a_alg.fia 14/14", "message Uploading a_alg.fia 14/14",
                      "message a_alg.fia is up to date 0/0"}));
}

}
}
