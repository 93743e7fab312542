#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kYes = 6;
constexpr std::int32_t kNo = 7;

Shown Question(const std::string& text) { return {text, "Deleting files", 0x24, 0, ""}; }

class FileDeletionTest : public CommandFixture {
protected:
    /// Five files: (19, 5), (22, 9), (21, 3), (22, 2) and (20, 8).
    void StartWithFiveFiles() {
        simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
        description.files = {File("boot.fia", 19, 5), File("mcu9.fia", 22, 9),
                             File("algo.fia", 21, 3), File("mcu2.fia", 22, 2),
                             File("other.bin", 20, 8)};
        Start(description);
    }

    void Delete(std::int32_t answer = kYes) {
        messageService->answers.push_back(answer);
        ASSERT_TRUE(PressButton(kDeleteButton));
    }
};

TEST_F(FileDeletionTest, OneFileIsAskedForByNameAndDeletedByType) {
    Start();
    SelectRows({1});
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete 'beta.fia'?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(21, 2)"));
    EXPECT_EQ(Log(), kMemoryAndListing);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0));
}

TEST_F(FileDeletionTest, OnlyFileIsDeletedByTypeToo) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("only.fia", 19, 4)};
    Start(description);
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete 'only.fia'?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(19, 4)"));
}

TEST_F(FileDeletionTest, AllFilesAreDeletedByOneCall) {
    StartWithFiveFiles();
    SelectRows({0, 1, 2, 3, 4});
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want do delete ALL these files?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(0, 0)"));
    EXPECT_EQ(Log(), kMemoryAndListing);
}

TEST_F(FileDeletionTest, SeveralAreDeletedTypeByTypeInAscendingOrder) {
    StartWithFiveFiles();
    SelectRows({0, 1, 2, 3});
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete these 4 files?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(22, 2)", "DeleteFile(22, 9)",
                                           "DeleteFile(21, 3)", "DeleteFile(19, 5)"));
}

TEST_F(FileDeletionTest, UnknownTypeIsCountedButNeitherDeletedNorReported) {
    StartWithFiveFiles();
    SelectRows({0, 2, 4});
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete these 3 files?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(21, 3)", "DeleteFile(19, 5)"));
}

TEST_F(FileDeletionTest, QuestionNamesTheMarkedRowWhateverIsSelected) {
    Start();
    SelectRows({1});
    View().SetSelectionMark(kFileList, 2);
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete 'version.fia'?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(21, 2)"));
}

TEST_F(FileDeletionTest, QuestionWithoutAMarkNamesNothing) {
    Start();
    // A listing that ends early leaves rows, but neither selection nor mark.
    faults->Fail({6, "FileInfo.GetSize"});
    RaiseState(7);
    EXPECT_EQ(TakeMessages().size(), 1u);
    ASSERT_EQ(View().GetSelectionMark(kFileList), -1);
    View().SelectRow(kFileList, 1, true);
    Delete();
    EXPECT_THAT(TakeMessages(), ElementsAre(Question("Are you sure you want to delete ''?")));
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(21, 2)"));
}

TEST_F(FileDeletionTest, LargeIdIsDeletedByItsLowSixteenBits) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("a.fia", 22, 70000), File("b.fia", 22, 5), File("c.fia", 22, 6)};
    Start(description);
    SelectRows({0, 1});
    Delete();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(22, 5)", "DeleteFile(22, 4464)"));
}

TEST_F(FileDeletionTest, LongNameIsCutTo199UnitsOfTheQuestion) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File(std::string(300, 'x'), 19, 4)};
    Start(description);
    Delete(kNo);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete '" + std::string(166, 'x'))));
}

TEST_F(FileDeletionTest, NameIsCutTo260BytesInTheQuestion) {
    const auto wrenches = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += "\xF0\x9F\x94\xA7";
        }
        return text;
    };
    Start();
    SelectRows({1});
    View().SetCell(kFileList, 1, 0, wrenches(70));
    Delete(kNo);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete '" + wrenches(65) + "'?")));
}

TEST_F(FileDeletionTest, WithoutSelectionNothingIsAsked) {
    Start();
    SelectRows({});
    ASSERT_TRUE(PressButton(kDeleteButton));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(FileDeletionTest, EmptyListAsksNothing) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files.clear();
    Start(description);
    ASSERT_TRUE(PressButton(kDeleteButton));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(device->calls, IsEmpty());
}

class DeclinedDeletionTest : public FileDeletionTest,
                             public testing::WithParamInterface<std::int32_t> {};

TEST_P(DeclinedDeletionTest, AnythingButYesDeletesNothing) {
    Start();
    SelectRows({0, 1, 2});
    Delete(GetParam());
    SelectRows({1});
    Delete(GetParam());
    EXPECT_EQ(TakeMessages().size(), 2u);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
}

INSTANTIATE_TEST_SUITE_P(Answers, DeclinedDeletionTest, testing::Values(7, 2, 1, 0, -1));

class DeletionCursorTest : public FileDeletionTest,
                           public testing::WithParamInterface<std::vector<int>> {};

TEST_P(DeletionCursorTest, WaitCursorShowsFromTheAnswerUntilTheFilesAreListed) {
    Start();
    SelectRows(GetParam());
    std::vector<int> depths;
    const auto look = [&] { depths.push_back(desktop->cursorDepth); };
    messageService->whileOpen = look;
    device->answer = [&](const std::string&) {
        look();
        return contract::kUnspecifiedFailure;
    };
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFreeResources"}, look);
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, look);
    Delete();
    EXPECT_EQ(TakeMessages().size(), 2u) << "the question and a report";
    EXPECT_THAT(depths, ElementsAre(0, 1, 1, 1, 1));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

INSTANTIATE_TEST_SUITE_P(, DeletionCursorTest,
                         testing::Values(std::vector{1}, std::vector{0, 1, 2}),
                         [](const auto& tested) {
                             return tested.param.size() == 1 ? "OfOneFile" : "OfAllFiles";
                         });

TEST_F(FileDeletionTest, PollingAndRefreshGoOnMeanwhile) {
    Start();
    SelectRows({1});
    device->answer = [&](const std::string&) {
        EXPECT_TRUE(host.PollingEnabled());
        EXPECT_TRUE(State().refreshAllowed);
        EXPECT_TRUE(IsEnabled(kDeleteButton));
        return contract::kSuccess;
    };
    Delete();
    EXPECT_EQ(faults->Calls("ProductInformation.GetProductDetection"), 0u);
}

TEST_F(FileDeletionTest, YesToFilesThatHaveGoneDeletesNoOthers) {
    Start();
    SelectRows({1});
    messageService->whileOpen = [this] {
        messageService->whileOpen = nullptr;
        RaiseState(7);
    };
    Delete();
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_EQ(RowCount(), 3);
}

// Failures

TEST_F(FileDeletionTest, FailingDeletionOfAllIsReportedAndTheListRefreshed) {
    Start();
    SelectRows({0, 1, 2});
    FailCall("DeleteFile(0, 0)", Status::FromBits(0x80070005), "write protected");
    Delete();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want do delete ALL these files?"),
                            ErrorReport("Can't delete file", "Deleting files",
                                        Status::FromBits(0x80070005), "write protected")));
    EXPECT_EQ(Log(), kMemoryAndListing);
}

TEST_F(FileDeletionTest, FailureEndsItsTypeOnly) {
    StartWithFiveFiles();
    SelectRows({0, 1, 2, 3});
    FailCall("DeleteFile(22, 2)", Status::FromBits(0x80070005), "write protected");
    Delete();
    EXPECT_THAT(device->calls,
                ElementsAre("DeleteFile(22, 2)", "DeleteFile(21, 3)", "DeleteFile(19, 5)"));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Question("Are you sure you want to delete these 4 files?"),
                            ErrorReport("Cannot delete MCUSW file with ID 2", "Deleting MCUSW file",
                                        Status::FromBits(0x80070005), "write protected")));
    EXPECT_EQ(Log(), kMemoryAndListing);
}

TEST_F(FileDeletionTest, EachTypeReportsInItsOwnWords) {
    StartWithFiveFiles();
    SelectRows({0, 1, 2});
    device->answer = [](const std::string&) { return contract::kUnspecifiedFailure; };
    Delete();
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(Question("Are you sure you want to delete these 3 files?"),
                    ErrorReport("Cannot delete MCUSW file with ID 9", "Deleting MCUSW file",
                                contract::kUnspecifiedFailure),
                    ErrorReport("Cannot delete Algorithm Code file with ID 3",
                                "Deleting Algorithm Code file", contract::kUnspecifiedFailure),
                    ErrorReport("Cannot delete Secondary Boot Code file with ID 5",
                                "Deleting Secondary Boot Code file",
                                contract::kUnspecifiedFailure)));
}

}
