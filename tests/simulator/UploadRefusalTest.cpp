#include "tests/simulator/UploadFixture.h"

namespace simulator {
namespace {

class UploadRefusalTest : public UploadFixture {};

TEST_F(UploadRefusalTest, DeviceWithoutFreeIdentifierRefuses) {
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

TEST_F(UploadRefusalTest, LastByteFitsAndOneMoreDoesNot) {
    Connect(DeviceWith({{"a_alg.fia", 21, 7, "1.0", 9990, kInFlash, 4, ""}}));
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", std::string(11, 'x'))), 0x80070070,
                  "\"b_alg.fia\" needs 11 bytes, and flash memory has 10 of 10000 bytes free");
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", std::string(10, 'x'))), contract::kSuccess);
    EXPECT_EQ(m_device->FreeFlashBytes(), 0u);
}

TEST_F(UploadRefusalTest, FullRamAndCardAreNamed) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", std::string(1001, 'x'));
    ExpectRefused(Upload(path, 1), 0x80070070,
                  "\"b_alg.fia\" needs 1001 bytes, and RAM has 1000 of 1000 bytes free");
    ExpectRefused(Upload(path, 3), 0x80070070,
                  "\"b_alg.fia\" needs 1001 bytes, and the memory card has 500 of 500 bytes free");
}

TEST_F(UploadRefusalTest, ExternalStorageWithoutCardIsRefused) {
    auto description = SmallDevice(kKrx20);
    description.pcCard.reset();
    Connect(description);
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", "b"), 3), 0x80070015,
                  "There is no memory card in the device");
}

TEST_F(UploadRefusalTest, MissingFileIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.PathOf("gone.fia");
    ExpectRefused(Upload(path), 0x80070002, "There is no file \"" + path + "\"");
}

TEST_F(UploadRefusalTest, EmptyFileIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "");
    ExpectRefused(Upload(path), 0x8007000D, "\"" + path + "\" is empty");
}

TEST_F(UploadRefusalTest, FolderIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.Path().string();
    ExpectRefused(Upload(path), 0x80070057, "\"" + path + "\" is not a plain file");
}

TEST_F(UploadRefusalTest, FileBeyondAllSizesIsRefusedUnread) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    std::filesystem::resize_file(path, 2147483648);
    ExpectRefused(Upload(path), 0x80070070,
                  "\"" + path +
                      "\" has 2147483648 bytes; a device keeps files of at most "
                      "2147483647");
}

TEST_F(UploadRefusalTest, NameBeyond256BytesIsRefused) {
    Connect(SmallDevice(kKrx20));
    ExpectRefused(Upload("/" + std::string(257, 'n')), 0x800700CE,
                  "The name of the file has 257 bytes; a device keeps at most 256");
}

TEST_F(UploadRefusalTest, FileThatGrowsWhileItIsReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    m_log->onEvent = [&] { WorkstationFile("b_alg.fia", "bbb"); };
    ExpectFailure(Upload(path), 0x8007001E, "\"" + path + "\" was changed while it was read");
    EXPECT_EQ(m_device->State(), m_before);
}

TEST_F(UploadRefusalTest, UnknownDestinationAndMethodAreRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    ExpectRefused(Upload(path, 4), 0x80070057, "There is no destination 4");
    ExpectRefused(Upload(path, -1), 0x80070057, "There is no destination -1");
    ExpectRefused(Upload(path, 0, -1), 0x80070057, "There is no method -1");
}

TEST_F(UploadRefusalTest, OutsideNormalModeOnlyKrx8FamilyTakesFiles) {
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

TEST_F(UploadRefusalTest, KnobsFailTheUploadBeforeItStarts) {
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

TEST_F(UploadRefusalTest, DeviceLostInTheUploadKeepsWhatItHeld) {
    auto description = SmallDevice(kKrx20);
    description.loss = DeviceLoss{"ProgrammingDeviceControl.UploadPhoneFile", 1, {}};
    Connect(description);
    ExpectRefused(Upload(WorkstationFile("b_alg.fia", "b")), 0x8007048F,
                  "The programming device was disconnected");
    m_host.BringBackLostDevice();
    EXPECT_EQ(Upload(WorkstationFile("b_alg.fia", "b")), contract::kSuccess);
}

TEST_F(UploadRefusalTest, UploadWithoutDeviceFails) {
    ExpectFailure(Upload("/a"), 0x8007048F, "No programming device is connected");
}

}
}
