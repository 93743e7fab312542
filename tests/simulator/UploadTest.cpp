#include "tests/simulator/WritingFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace simulator {
namespace {

using NameList = std::vector<std::string>;

/// Gives up the rights of root while it lives, if the tests have them.
class CWithoutRoot {
public:
    CWithoutRoot() : m_user(geteuid()) {
        if (m_user == 0) {
            constexpr uid_t kNobody = 65534;
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~CWithoutRoot() { EXPECT_EQ(seteuid(m_user), 0); }
    CWithoutRoot(const CWithoutRoot&) = delete;
    CWithoutRoot& operator=(const CWithoutRoot&) = delete;

private:
    const uid_t m_user;
};

class UploadTest : public WritingFixture {
protected:
    static DeviceDescription DeviceWith(std::vector<StoredFile> files) {
        auto description = SmallDevice(kKrx20);
        description.files = std::move(files);
        return description;
    }
    void ExpectRefused(contract::Status status, std::uint32_t bits, const std::string& text) {
        ExpectFailure(status, bits, text);
        EXPECT_EQ(m_device->State(), m_before);
        EXPECT_EQ(m_log->events, Events{});
        EXPECT_EQ(m_result, -1);
    }
    void Connect(DeviceDescription description) {
        WritingFixture::Connect(std::move(description));
        m_before = m_device->State();
    }

    DeviceDescription m_before;
};

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

TEST_F(UploadTest, DeviceWithoutFreeIdentifierRefuses) {
    auto description = SmallDevice(kKrx20);
    for (std::int32_t id = 0; id <= 0xFFFF; ++id) {
        description.files.push_back({"a", 21, id, "", 0, kInFlash, 0, ""});
    }
    description.files.erase(description.files.begin() + 500);
    Connect(description);
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", "b")), contract::kSuccess);
    EXPECT_EQ(FileNamed("b_alg.fia").id, 500);
    ExpectFailure(Upload(WorkstationFile("c_alg.fia", "c")), 0x80070070,
                  "The device has no identifier left for a file of type 21");
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

TEST_F(UploadTest, LastByteFitsAndOneMoreDoesNot) {
    Connect(DeviceWith({{"a_alg.fia", 21, 7, "1.0", 9990, kInFlash, 4, ""}}));
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", std::string(11, 'x'))), 0x80070070,
                  "\"b_alg.fia\" needs 11 bytes, and flash memory has 10 of 10000 bytes free");
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", std::string(10, 'x'))), contract::kSuccess);
    EXPECT_EQ(m_device->FreeFlashBytes(), 0u);
}

TEST_F(UploadTest, FullRamAndCardAreNamed) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", std::string(1001, 'x'));
    ExpectRefused(Upload(path, 1), 0x80070070,
                  "\"b_alg.fia\" needs 1001 bytes, and RAM has 1000 of 1000 bytes free");
    ExpectRefused(Upload(path, 3), 0x80070070,
                  "\"b_alg.fia\" needs 1001 bytes, and the memory card has 500 of 500 bytes free");
}

TEST_F(UploadTest, ExternalStorageWithoutCardIsRefused) {
    auto description = SmallDevice(kKrx20);
    description.pcCard.reset();
    Connect(description);
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", "b"), 3), 0x80070015,
                  "There is no memory card in the device");
}

TEST_F(UploadTest, MissingFileIsRefused) {
    Connect(SmallDevice(kKrx20));
    ExpectRefused(Upload(m_workstation.Path().string() + "/gone.fia"), 0x80070002,
                  "There is no file \"" + m_workstation.Path().string() + "/gone.fia\"");
}

TEST_F(UploadTest, EmptyFileIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "");
    ExpectRefused(Upload(path), 0x8007000D, "\"" + path + "\" is empty");
}

TEST_F(UploadTest, FolderIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.Path().string();
    ExpectRefused(Upload(path), 0x80070057, "\"" + path + "\" is not a plain file");
}

TEST_F(UploadTest, FileThatMayNotBeReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    ASSERT_EQ(chmod(m_workstation.Path().c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const CWithoutRoot rights;
    ExpectRefused(Upload(path), 0x80070005, "\"" + path + "\" cannot be read: Permission denied");
}

TEST_F(UploadTest, FileInAFolderThatMayNotBeReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("sub/b_alg.fia", "b");
    ASSERT_EQ(chmod((m_workstation.Path() / "sub").c_str(), 0), 0);
    {
        const CWithoutRoot rights;
        ExpectRefused(Upload(path), 0x80070005,
                      "\"" + path + "\" cannot be read: Permission denied");
    }
    ASSERT_EQ(chmod((m_workstation.Path() / "sub").c_str(), 0700), 0);
}

TEST_F(UploadTest, PipeIsRefusedWithoutWaiting) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.Path().string() + "/pipe";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    ExpectRefused(Upload(path), 0x80070057, "\"" + path + "\" is not a plain file");
}

TEST_F(UploadTest, FileBeyondAllSizesIsRefusedUnread) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    std::filesystem::resize_file(path, 2147483648);
    ExpectRefused(Upload(path), 0x80070070,
                  "\"" + path +
                      "\" has 2147483648 bytes; a device keeps files of at most "
                      "2147483647");
}

TEST_F(UploadTest, NameBeyond256BytesIsRefused) {
    Connect(SmallDevice(kKrx20));
    ExpectRefused(Upload("/" + std::string(257, 'n')), 0x800700CE,
                  "The name of the file has 257 bytes; a device keeps at most 256");
}

TEST_F(UploadTest, NameThatIsNotUtf8IsRefused) {
    Connect(SmallDevice(kKrx20));
    ExpectRefused(Upload(WorkstationFile("b\xFF_alg.fia", "b")), 0x80070459,
                  "The name of the file is not UTF-8");
}

TEST_F(UploadTest, FileThatGrowsWhileItIsReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    m_log->onEvent = [&] { WorkstationFile("b_alg.fia", "bbb"); };
    ExpectFailure(Upload(path), 0x8007001E, "\"" + path + "\" was changed while it was read");
    EXPECT_EQ(m_device->State(), m_before);
}

TEST_F(UploadTest, FileThatVanishesWhileItIsReadIsStored) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    m_log->onEvent = [&] { std::filesystem::remove(path); };
    EXPECT_EQ(Upload(path), contract::kSuccess);
    EXPECT_EQ(Names(), NameList{"b_alg.fia"});
}

TEST_F(UploadTest, UnknownDestinationAndMethodAreRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    ExpectRefused(Upload(path, 4), 0x80070057, "There is no destination 4");
    ExpectRefused(Upload(path, -1), 0x80070057, "There is no destination -1");
    ExpectRefused(Upload(path, 0, -1), 0x80070057, "There is no method -1");
}

TEST_F(UploadTest, OutsideNormalModeOnlyKrx8FamilyTakesFiles) {
    for (const auto type : {kKrx8, kKrx8c}) {
        auto description = SmallDevice(type);
        description.mode = kServiceMode;
        InsertDevice(description);
        EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", "b")), contract::kSuccess);
    }
    m_result = -1;
    auto description = SmallDevice(kKrx21);
    description.mode = kServiceMode;
    Connect(description);
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", "b")), 0x80070015,
                  "The device is not in Normal mode, in which alone it handles files");
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

TEST_F(UploadTest, KnobsFailTheUploadBeforeItStarts) {
    auto description = SmallDevice(kKrx20);
    description.latency.operationsMs["ProgrammingDeviceControl.UploadPhoneFile"] = 70;
    description.faults = {{"ProgrammingDeviceControl.UploadPhoneFile", 1, false,
                           contract::Status::FromBits(0x80000001), "Worn out"}};
    Connect(description);
    const auto path = WorkstationFile("b_alg.fia", "b");
    ExpectRefused(Upload(path), 0x80000001, "Worn out");
    EXPECT_EQ(Upload(path), contract::kSuccess);
    EXPECT_EQ(m_waits,
              std::vector(2, interception::CLatency::Duration(std::chrono::milliseconds(70))));
}

TEST_F(UploadTest, DeviceLostInTheUploadKeepsWhatItHeld) {
    auto description = SmallDevice(kKrx20);
    description.loss = DeviceLoss{"ProgrammingDeviceControl.UploadPhoneFile", 1, {}};
    Connect(description);
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", "b")), 0x8007048F,
                  "The programming device was disconnected");
    m_host.BringBackLostDevice();
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", "b")), contract::kSuccess);
}

TEST_F(UploadTest, UploadWithoutDeviceFails) {
    ExpectFailure(Upload("/a"), 0x8007048F, "No programming device is connected");
}

}
}
