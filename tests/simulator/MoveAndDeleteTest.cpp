#include "tests/simulator/WritingFixture.h"

namespace simulator {
namespace {

using NameList = std::vector<std::string>;

/// MoveFile and DeleteFile.
class MoveAndDeleteTest : public WritingFixture {
protected:
    void SetUp() override {
        auto description = SmallDevice(kKrx20);
        description.files = {{"ram_mcu.fia", 22, 7, "1", 100, kInRam, 0, ""},
                             {"flash_mcu.fia", 22, 70000, "1", 200, kInFlash, 0, ""},
                             {"big_alg.fia", 21, 7, "1", 900, kInRam, 0, ""}};
        Connect(description);
    }
    contract::Status Move(std::int32_t type, std::int32_t id, std::int32_t destination) {
        return Control()->MoveFile(type, id, destination, 0);
    }
    contract::Status Delete(std::int32_t type, std::int32_t id) {
        return Control()->DeleteFile(type, id);
    }
};

TEST_F(MoveAndDeleteTest, MoveChangesLocationAndFreeMemory) {
    EXPECT_EQ(Move(22, 7, 2), contract::kSuccess);
    EXPECT_EQ(FileNamed("ram_mcu.fia").location, 2);
    EXPECT_EQ(m_device->FreeRamBytes(), 100u);
    EXPECT_EQ(m_device->FreeFlashBytes(), 9700u);
}

TEST_F(MoveAndDeleteTest, MoveFindsTheFileByLowBitsOfTheIdentifier) {
    EXPECT_EQ(Move(22, 4464, 3), contract::kSuccess);
    EXPECT_EQ(FileNamed("flash_mcu.fia").location, 3);
}

TEST_F(MoveAndDeleteTest, MoveOfAnyTypeTakesTheFirstThatIsNotThere) {
    EXPECT_EQ(Move(0, 7, 2), contract::kSuccess);
    EXPECT_EQ(FileNamed("ram_mcu.fia").location, 2);
    EXPECT_EQ(FileNamed("big_alg.fia").location, 1);
    EXPECT_EQ(Move(0, 7, 2), contract::kSuccess);
    EXPECT_EQ(FileNamed("big_alg.fia").location, 2);
}

TEST_F(MoveAndDeleteTest, MoveToWhereTheFileIsSucceeds) {
    const auto before = m_device->State();
    EXPECT_EQ(Move(22, 4464, 2), contract::kSuccess);
    EXPECT_EQ(m_device->State(), before);
}

TEST_F(MoveAndDeleteTest, MoveOfUnknownFileFails) {
    ExpectFailure(Move(19, 7, 2), 0x80070002,
                  "There is no file of type 19 with the identifier 7 on the device");
    ExpectFailure(Move(0, 8, 2), 0x80070002,
                  "There is no file with the identifier 8 on the device");
}

TEST_F(MoveAndDeleteTest, MoveToFullMemoryFails) {
    ExpectFailure(Move(21, 7, 3), 0x80070070,
                  "\"big_alg.fia\" needs 900 bytes, and the memory card has 500 of 500 bytes free");
    EXPECT_EQ(FileNamed("big_alg.fia").location, 1);
}

TEST_F(MoveAndDeleteTest, MoveToMissingCardFails) {
    auto description = m_device->State();
    description.pcCard.reset();
    Connect(description);
    ExpectFailure(Move(22, 7, 3), 0x80070015, "There is no memory card in the device");
}

TEST_F(MoveAndDeleteTest, MoveElsewhereIsRefused) {
    for (const auto destination : {0, 1, 4}) {
        ExpectFailure(Move(22, 7, destination), 0x80070057,
                      "Files are moved to flash memory (2) or to the memory card (3), not to " +
                          std::to_string(destination));
    }
    ExpectFailure(Control()->MoveFile(22, 7, 2, 1), 0x80070057,
                  "The reserved argument of a move must be 0");
}

TEST_F(MoveAndDeleteTest, DeleteRemovesTheOneFile) {
    EXPECT_EQ(Delete(22, 4464), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"ram_mcu.fia", "big_alg.fia"}));
    EXPECT_EQ(m_device->FreeFlashBytes(), 10000u);
}

TEST_F(MoveAndDeleteTest, DeleteOfUnknownFileFails) {
    ExpectFailure(Delete(0, 7), 0x80070002, "There is no file with the identifier 7 on the device");
    ExpectFailure(Delete(21, 8), 0x80070002,
                  "There is no file of type 21 with the identifier 8 on the device");
    EXPECT_EQ(Names().size(), 3u);
}

TEST_F(MoveAndDeleteTest, DeleteOfZerosRemovesAll) {
    EXPECT_EQ(Delete(0, 0), contract::kSuccess);
    EXPECT_EQ(Names(), NameList{});
    EXPECT_EQ(Delete(0, 0), contract::kSuccess);
}

TEST_F(MoveAndDeleteTest, BothNeedNormalMode) {
    m_device->EnterMode(kMaintenanceMode);
    const auto* text = "The device is not in Normal mode, in which alone it handles files";
    ExpectFailure(Move(22, 7, 2), 0x80070015, text);
    ExpectFailure(Delete(22, 7), 0x80070015, text);
}

}
}
