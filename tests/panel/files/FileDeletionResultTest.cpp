#include "tests/support/RoomFixture.h"

namespace {

using namespace panel;
using namespace support;

/// What the deletion tells its caller.
class FileDeletionResultTest : public RoomFixture {
protected:
    void SetUp() override {
        RoomFixture::SetUp();
        State().deviceMode = DeviceMode::Normal;
        Insert(HealthyDevice(simulator::kKrx20));
        rooms->files.UpdateFileListing();
    }

    void Select(const std::vector<int>& rows) {
        for (const int row : rows) {
            View().SelectRow(kFileList, row, true);
        }
    }
    bool Delete(std::int32_t answer) {
        messageService->answers.push_back(answer);
        return rooms->deletion.DeleteSelectedFiles();
    }
};

TEST_F(FileDeletionResultTest, NothingToDoAndADeclinedQuestionAreNoFailure) {
    EXPECT_TRUE(Delete(7));
    View().RemoveAllRows(kFileList);
    EXPECT_TRUE(rooms->deletion.DeleteSelectedFiles());
}

TEST_F(FileDeletionResultTest, DeletionThatSucceedsIsNoFailure) {
    EXPECT_TRUE(Delete(6));
    EXPECT_EQ(RowCount(), 2);
    Select({0, 1});
    EXPECT_TRUE(Delete(6));
    EXPECT_EQ(RowCount(), 0);
}

TEST_F(FileDeletionResultTest, RowsThatAreNotDeletedAreNoFailure) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("other.bin", 20, 8), File("more.bin", 0, 9)};
    host.InsertDevice(simulator::CDevice::Create(description));
    rooms->files.UpdateFileListing();
    EXPECT_TRUE(Delete(6));
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.DeleteFile"), 0u);
    EXPECT_EQ(RowCount(), 2);
}

TEST_F(FileDeletionResultTest, FailingCallIsAFailure) {
    faults->Fail({1, "ProgrammingDeviceControl.DeleteFile"});
    EXPECT_FALSE(Delete(6));
}

TEST_F(FileDeletionResultTest, FailureOfTheFirstTypeIsOneAlthoughTheOthersSucceed) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files.push_back(File("other.bin", 20, 8));
    host.InsertDevice(simulator::CDevice::Create(description));
    rooms->files.UpdateFileListing();
    Select({0, 1, 2});
    faults->Fail({1, "ProgrammingDeviceControl.DeleteFile"});
    EXPECT_FALSE(Delete(6));
    ASSERT_EQ(RowCount(), 2);
    EXPECT_EQ(Row(0).front(), "version.fia");
    EXPECT_EQ(Row(1).front(), "other.bin");
}

TEST_F(FileDeletionResultTest, FailureToDeleteEveryFileIsOne) {
    Select({0, 1, 2});
    faults->Fail({1, "ProgrammingDeviceControl.DeleteFile"});
    EXPECT_FALSE(Delete(6));
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.DeleteFile"), 1u);
    EXPECT_EQ(RowCount(), 3);
}

class UnconnectedDeletionTest : public RoomFixture {};

TEST_F(UnconnectedDeletionTest, DeletionWithoutControlFailsAndTheRestIsTriedAllTheSame) {
    View().InsertRow(kFileList, 0, "a.fia");
    View().SetRowKey(kFileList, 0, 0x15020002);
    View().SelectRow(kFileList, 0, true);
    messageService->answers = {6};
    EXPECT_FALSE(rooms->deletion.DeleteSelectedFiles());
    const auto missing = contract::Status::FromBits(0x80004003);
    EXPECT_THAT(TakeMessages(),
                testing::ElementsAre(
                    testing::_,
                    ErrorReport("Cannot delete Algorithm Code file with ID 2",
                                "Deleting Algorithm Code file", missing),
                    ErrorReport("Free resources query failed", "Update Free memory", missing),
                    ErrorReport("A fatal error has occured, please restart Halcyon and try again.",
                                "Prommer Maintenance", missing)));
}

}
