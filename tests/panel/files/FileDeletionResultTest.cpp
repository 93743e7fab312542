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

TEST_F(FileDeletionResultTest, FailingCallIsAFailure) {
    faults->Fail({1, "ProgrammingDeviceControl.DeleteFile"});
    EXPECT_FALSE(Delete(6));
}

}
