#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kGetStorages = "ProgrammingDeviceControl.GetExternalStorages";

class FileContextMenuTest : public CommandFixture {
protected:
    /// Opens the menu on a row, chooses nothing, and returns the commands, 0 for separators.
    std::vector<int> OpenMenu(int row = 0) {
        desktop->prompts.AnswerMenu(0);
        EXPECT_TRUE(View().RightClick(kFileList, row));
        return LastMenu();
    }
    std::vector<int> LastMenu() const {
        std::vector<int> commands;
        for (const MenuItem& item : desktop->prompts.Menus().back().items) {
            commands.push_back(item.command);
        }
        return commands;
    }
    Point OpenByKeyboard() {
        desktop->prompts.AnswerMenu(0);
        EXPECT_TRUE(View().PressKeyInList(kFileList, 0x5D));
        return desktop->prompts.Menus().back().screen;
    }
    Point InList(int x, int y) { return View().ToScreen(kFileList, {x, y}); }

    static simulator::DeviceDescription WithCard(std::int32_t type) {
        simulator::DeviceDescription description = HealthyDevice(type);
        description.pcCard.emplace();
        return description;
    }
};

TEST_F(FileContextMenuTest, MenuFitsModelModeAndSelection) {
    Start(WithCard(simulator::kKrx20));
    SelectRows({0, 1});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 4, 0, 9, 0, 10));
    EXPECT_THAT(TakeCalls(), ElementsAre(kGetStorages, "ExternalStorages.GetCount"));
}

TEST_F(FileContextMenuTest, WithoutCardFlashFilesCannotBeMoved) {
    Start();
    SelectRows({0, 1});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10));
}

TEST_F(FileContextMenuTest, StoragesAreNotAskedForWithoutSelectionOrOnTheKrx8) {
    Start();
    SelectRows({});
    desktop->prompts.AnswerMenu(0);
    View().RightClick(kFileList, kNoRow);
    EXPECT_THAT(LastMenu(), ElementsAre(1, 0, 9, 0, 10));
    EXPECT_THAT(TakeCalls(), IsEmpty());
    ConnectDevice(HealthyDevice(simulator::kKrx8));
    ForgetWhatWasSeen();
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(FileContextMenuTest, StoragesThatCannotBeAskedForCountSilentlyAsNone) {
    Start(WithCard(simulator::kKrx20));
    faults->Fail({1, kGetStorages});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10));
    faults->DeliverNull({2, kGetStorages});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10));
    faults->Fail({1, "ExternalStorages.GetCount"});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10));
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 4, 0, 9, 0, 10));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(FileContextMenuTest, CountAboveZeroIsStorage) {
    Start();
    for (const std::int32_t count : {-1, 0}) {
        device->toldStorages = count;
        EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10)) << count;
    }
    for (const std::int32_t count : {1, 2}) {
        device->toldStorages = count;
        EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 4, 0, 9, 0, 10)) << count;
    }
}

TEST_F(FileContextMenuTest, FilesOfDifferentLocationsCannotBeMoved) {
    simulator::DeviceDescription description = WithCard(simulator::kKrx20);
    description.files[1].location = simulator::kInRam;
    Start(description);
    SelectRows({0, 1});
    EXPECT_THAT(OpenMenu(), ElementsAre(1, 2, 0, 9, 0, 10));
    SelectRows({1});
    EXPECT_THAT(OpenMenu(1), ElementsAre(1, 2, 0, 3, 4, 0, 9, 0, 10));
}

TEST_F(FileContextMenuTest, OutsideNormalModeAKrx10OffersItsImageAlone) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx10);
    description.mode = simulator::kServiceMode;
    Start(description);
    desktop->prompts.AnswerMenu(0);
    View().RightClick(kFileList, kNoRow);
    EXPECT_THAT(LastMenu(), ElementsAre(8));
}

TEST_F(FileContextMenuTest, NoChoiceDoesNothing) {
    Start();
    OpenMenu();
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(FileContextMenuTest, SelectAllSelectsEveryRowAndNothingElse) {
    Start();
    SelectRows({1});
    desktop->prompts.AnswerMenu(10);
    View().RightClick(kFileList, 1);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0, 1, 2));
    EXPECT_EQ(View().GetSelectionMark(kFileList), 1);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(FileContextMenuTest, DeleteRunsWithTheControlsDisabled) {
    Start();
    messageService->answers.push_back(6);
    messageService->whileOpen = [this] { EXPECT_FALSE(IsEnabled(kFileList)); };
    desktop->prompts.AnswerMenu(2);
    View().RightClick(kFileList, 1);
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(21, 2)"));
    EXPECT_TRUE(IsEnabled(kFileList));
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(FileContextMenuTest, DetailsStaysDisabledAfterACommand) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.selfTests[contract::SelfTest::Usb] = 1;
    Start(description);
    desktop->prompts.AnswerMenu(1);
    desktop->prompts.CancelFileDialog();
    View().RightClick(kFileList, 1);
    EXPECT_FALSE(IsEnabled(kDetailsButton));
    EXPECT_TRUE(IsEnabled(kReportButton));
}

TEST_F(FileContextMenuTest, ChoiceFromAMenuForOtherFilesIsVoid) {
    Start();
    desktop->prompts.AnswerMenu(2, [this] { RaiseState(7); });
    View().RightClick(kFileList, 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(device->calls, IsEmpty());
}

TEST_F(FileContextMenuTest, ListRefilledBeforeTheMenuOpensMakesTheChoiceVoidToo) {
    Start(WithCard(simulator::kKrx20));
    SelectRows({1});
    faults->RunBefore({1, kGetStorages}, [this] { RaiseState(7); });
    desktop->prompts.AnswerMenu(4);
    View().RightClick(kFileList, 1);
    EXPECT_THAT(device->calls, IsEmpty());
}

TEST_F(FileContextMenuTest, ChoiceThatConcernsNoSelectionOutlivesTheList) {
    Start();
    desktop->prompts.AnswerMenu(10, [this] { RaiseState(7); });
    View().RightClick(kFileList, 1);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0, 1, 2));
}

TEST_F(FileContextMenuTest, PanelReleasedWhileTheMenuIsOpenEndsQuietly) {
    Start();
    desktop->prompts.AnswerMenu(0, [this] {
        panel->DestroyView();
        panel.reset();
    });
    View().RightClick(kFileList, 1);
    EXPECT_EQ(host.ContextMemberCount(), 0u);
}

// Place

TEST_F(FileContextMenuTest, MouseMenuOpensAtTheClick) {
    Start();
    desktop->prompts.AnswerMenu(0);
    panel->OnListRightClick(kFileList, {321, 123});
    EXPECT_EQ(desktop->prompts.Menus().back().screen, (Point{321, 123}));
}

TEST_F(FileContextMenuTest, KeyboardMenuOpensAtTheFocusedSelectedRow) {
    Start();
    View().ClickRow(kFileList, 2);
    EXPECT_EQ(OpenByKeyboard(), InList(0, 20 + 2 * 17));
}

TEST_F(FileContextMenuTest, FocusedRowThatIsNotSelectedGivesWayToTheFirst) {
    Start();
    View().ClickRow(kFileList, 2);
    View().SelectRow(kFileList, 2, false);
    EXPECT_EQ(OpenByKeyboard(), InList(0, 20));
}

TEST_F(FileContextMenuTest, EmptyListOpensTheMenuInItsCorner) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files.clear();
    Start(description);
    EXPECT_EQ(OpenByKeyboard(), InList(2, 3));
}

TEST_F(FileContextMenuTest, RowOutOfSightOpensTheMenuInTheCorner) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    for (int id = 10; id < 90; ++id) {
        description.files.push_back(File("file" + std::to_string(id), 21, id));
    }
    Start(description);
    View().ClickRow(kFileList, 0);
    View().EnsureRowVisible(kFileList, 80);
    EXPECT_EQ(OpenByKeyboard(), InList(2, 3));
    View().ClickRow(kFileList, 80);
    View().EnsureRowVisible(kFileList, 0);
    EXPECT_EQ(OpenByKeyboard(), InList(2, 3));
}

TEST_F(FileContextMenuTest, RowOnTheEdgeOfTheListIsOutOfSight) {
    Start();
    View().ClickRow(kFileList, 0);
    View().Move(kFileList, {10, 10, 1, 21});
    EXPECT_EQ(OpenByKeyboard(), InList(0, 20));
    View().Move(kFileList, {10, 10, 1, 20});
    EXPECT_EQ(OpenByKeyboard(), InList(2, 3));
    View().Move(kFileList, {10, 10, 0, 21});
    EXPECT_EQ(OpenByKeyboard(), InList(2, 3));
}

// Failures

TEST_F(FileContextMenuTest, MenuThatCannotBeMadeIsReportedWithTheSystemsError) {
    Start();
    desktop->prompts.FailMenu(8);
    View().RightClick(kFileList, 0);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Popup menu creation failed", "Prommer Maintenance",
                                        Status::FromBits(0x80070008))));
    EXPECT_EQ(faults->Calls(kGetStorages), 0u);
}

TEST_F(FileContextMenuTest, ErrorNumberIsCutToSixteenBits) {
    Start();
    desktop->prompts.FailMenu(0x12345);
    View().RightClick(kFileList, 0);
    EXPECT_EQ(TakeMessages().front().status, Status::FromBits(0x80072345).Code());
}

TEST_F(FileContextMenuTest, MenuThatCannotBeMadeWithoutErrorCarriesStatusZero) {
    Start();
    desktop->prompts.FailMenu(0);
    View().RightClick(kFileList, 0);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Popup menu creation failed", "Prommer Maintenance",
                                        contract::kSuccess)));
}

TEST_F(FileContextMenuTest, WithoutControlTheMenuIsAFatalError) {
    StartView();
    panel->OnListRightClick(kFileList, {0, 0});
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(ErrorReport("A fatal error has occured, please restart Halcyon and try again.",
                                "Prommer Maintenance", Status::FromBits(0x80004003))));
    EXPECT_THAT(desktop->prompts.Menus(), IsEmpty());
}

}
