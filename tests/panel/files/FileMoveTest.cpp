#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kMoveToFlash = 3;
constexpr int kMoveToExternalStorage = 4;

class FileMoveTest : public CommandFixture {
protected:
    /// Three files of type 22 in RAM and one of type 21 there.
    void SetUp() override {
        simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
        description.pcCard.emplace();
        description.files.clear();
        for (int id = 1; id <= 4; ++id) {
            description.files.push_back(
                File("file" + std::to_string(id) + ".fia", id == 4 ? 21 : 22, id));
            description.files.back().location = simulator::kInRam;
        }
        Start(description);
    }

    void Move(int command) {
        desktop->prompts.AnswerMenu(command);
        ASSERT_TRUE(View().RightClick(kFileList, View().GetSelectedRows(kFileList).front()));
    }
};

TEST_F(FileMoveTest, SelectedFilesAreMovedToFlashInListOrder) {
    SelectRows({2, 0});
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 1, 2, 0)", "MoveFile(22, 3, 2, 0)"));
    EXPECT_EQ(Log(), kMemoryAndListing);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(2));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(FileMoveTest, ExternalStorageIsDestinationThree) {
    SelectRows({0});
    Move(kMoveToExternalStorage);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 1, 3, 0)"));
}

TEST_F(FileMoveTest, MixedTypesAreMovedAsTypeZero) {
    SelectRows({0, 3});
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(0, 1, 2, 0)", "MoveFile(0, 4, 2, 0)"));
}

TEST_F(FileMoveTest, LargeIdIsMovedByItsLowSixteenBits) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("large.fia", 22, 70000)};
    description.files.front().location = simulator::kOnPcCard;
    ConnectDevice(description);
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 4464, 2, 0)"));
}

TEST_F(FileMoveTest, LongNameIsFoundAgainByItsFirst256Bytes) {
    const std::string name(300, 'n');
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("a.fia", 22, 1), File(name, 22, 2)};
    description.pcCard.emplace();
    ConnectDevice(description);
    SelectRows({1});
    View().SetCell(kFileList, 1, 0, name);
    Move(kMoveToExternalStorage);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
}

TEST_F(FileMoveTest, McuSoftwareOfAKrx8IsMovedToFlash) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx8);
    description.files = {File("mcu.fia", 22, 7)};
    description.files.front().location = simulator::kInRam;
    ConnectDevice(description);
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 7, 2, 0)"));
}

TEST_F(FileMoveTest, FailureIsReportedOnceAndEndsTheMove) {
    SelectRows({0, 1, 2});
    FailCall("MoveFile(22, 2, 2, 0)", Status::FromBits(0x80070070), "flash memory is full");
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 1, 2, 0)", "MoveFile(22, 2, 2, 0)"));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("File moving failed", "File move",
                                        Status::FromBits(0x80070070), "flash memory is full")));
    EXPECT_EQ(Log(), kMemoryAndListing);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
}

TEST_F(FileMoveTest, ControlsAreDisabledAndTheCursorWaitsMeanwhile) {
    SelectRows({0});
    device->answer = [&](const std::string&) {
        EXPECT_FALSE(IsEnabled(kFileList));
        EXPECT_FALSE(IsEnabled(kUpdateButton));
        EXPECT_EQ(desktop->cursorDepth, 1);
        EXPECT_TRUE(host.PollingEnabled());
        EXPECT_TRUE(State().refreshAllowed);
        return contract::kSuccess;
    };
    Move(kMoveToFlash);
    EXPECT_TRUE(IsEnabled(kFileList));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(FileMoveTest, WaitCursorShowsUntilTheFilesAreListed) {
    SelectRows({0});
    std::vector<int> depths;
    const auto look = [&] { depths.push_back(desktop->cursorDepth); };
    messageService->whileOpen = look;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFreeResources"}, look);
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, look);
    FailCall("MoveFile(22, 1, 2, 0)");
    Move(kMoveToFlash);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(depths, ElementsAre(1, 1, 1));
}

TEST_F(FileMoveTest, ListRefilledInsideAMoveDoesNotChangeWhatIsMoved) {
    SelectRows({1, 2});
    device->answer = [this](const std::string& call) {
        if (call == "MoveFile(22, 2, 2, 0)") {
            RaiseState(7);
        }
        return contract::kSuccess;
    };
    Move(kMoveToFlash);
    EXPECT_THAT(device->calls, ElementsAre("MoveFile(22, 2, 2, 0)", "MoveFile(22, 3, 2, 0)"));
}

}
