#include "tests/panel/files/ListingFixture.h"
#include "tests/support/DeviceDouble.h"

namespace {

using namespace panel;
using namespace support;
using simulator::StoredFile;
using testing::ElementsAre;
using testing::IsEmpty;

class FileListingTest : public ListingFixture {};

TEST_F(FileListingTest, ColumnsStandInOrder) {
    std::vector<std::string> headings;
    for (const auto& column : View().Columns(kFileList)) {
        headings.push_back(column.heading);
    }
    EXPECT_THAT(headings, ElementsAre("File name", "Type", "File ID", "Version", "Size (B)",
                                      "Location", "Generation"));
}

TEST_F(FileListingTest, ListingShowsFilesInTheDevicesOrder) {
    StoredFile boot = File("zeta.fia", 19, 12, "1.1");
    boot.location = simulator::kInRam;
    boot.generation = 3;
    StoredFile algorithm = File("alpha.fg", 21, 7, "");
    algorithm.location = simulator::kOnPcCard;
    algorithm.sizeBytes = -5;
    InsertFiles({boot, algorithm});
    List();
    ASSERT_EQ(RowCount(), 2);
    EXPECT_THAT(Row(0), ElementsAre("zeta.fia", "Sec.boot", "12", "1.1", "1012", "RAM", "QX1"));
    EXPECT_THAT(Row(1), ElementsAre("alpha.fg", "Algo", "7", "", "-5", "PCCard", ""));
    EXPECT_EQ(Key(0), 0x1301000Cu);
    EXPECT_EQ(Key(1), 0x15030007u);
}

TEST_F(FileListingTest, ListingAsksForEachFileInOrder) {
    InsertFiles(NumberedFiles(2));
    List();
    const std::vector<std::string> file = {"FileListing.GetFileInfo", "FileInfo.GetName",
                                           "FileInfo.GetType",        "FileInfo.GetId",
                                           "FileInfo.GetVersion",     "FileInfo.GetSize",
                                           "FileInfo.GetLocation",    "FileInfo.GetGeneration"};
    std::vector<std::string> expected = {"ProgrammingDeviceControl.GetFileListing",
                                         "FileListing.GetFileCount"};
    expected.insert(expected.end(), file.begin(), file.end());
    expected.insert(expected.end(), file.begin(), file.end());
    EXPECT_EQ(TakeCalls(), expected);
}

TEST_F(FileListingTest, ListingWritesItsLinesAroundTheCalls) {
    InsertFiles(NumberedFiles(2));
    std::vector<std::vector<std::string>> logs;
    const auto look = [&] { logs.push_back(Log()); };
    faults->RunBefore({1, "ProgrammingDeviceControl.GetFileListing"}, look);
    faults->RunBefore({2, "FileInfo.GetGeneration"}, look);
    List();
    const std::vector<std::string> first = {"Updating file listing..."};
    EXPECT_THAT(logs, ElementsAre(first, first));
    EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated"));
}

TEST_F(FileListingTest, SecondListingReplacesTheRows) {
    InsertFiles(NumberedFiles(3));
    List();
    InsertFiles({File("new.fia", 21, 1)});
    List();
    EXPECT_THAT(Names(), ElementsAre("new.fia"));
    EXPECT_THAT(Selection(), ElementsAre(0));
}

TEST_F(FileListingTest, RowsAreRemovedBeforeTheFirstCall) {
    InsertFiles(NumberedFiles(3));
    List();
    int rows = -1;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, [&] { rows = RowCount(); });
    List();
    EXPECT_EQ(rows, 0);
}

TEST_F(FileListingTest, ListingReleasesEveryObject) {
    InsertFiles(NumberedFiles(3));
    const auto wrappers = interception.LiveWrappers();
    List();
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

TEST_F(FileListingTest, DeviceWithoutFilesListsNothing) {
    InsertFiles({});
    List();
    EXPECT_EQ(RowCount(), 0);
    EXPECT_THAT(Selection(), IsEmpty());
    EXPECT_EQ(Mark(), -1);
    EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(FileListingTest, NegativeCountListsNothing) {
    const auto device = std::make_shared<CDeviceDouble>();
    device->fileCount = -1;
    ConnectTo(device);
    List();
    EXPECT_EQ(device->filesAskedFor, 0);
    EXPECT_EQ(RowCount(), 0);
    EXPECT_EQ(Mark(), -1);
    EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

// Mode

class OtherModeTest : public FileListingTest, public testing::WithParamInterface<std::int32_t> {};

TEST_P(OtherModeTest, OtherModeEmptiesTheListSilently) {
    InsertFiles(NumberedFiles(3));
    List();
    ForgetWhatWasSeen();
    State().deviceMode = static_cast<DeviceMode>(GetParam());
    List();
    EXPECT_EQ(RowCount(), 0);
    EXPECT_THAT(Selection(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Modes, OtherModeTest, testing::Values(0, 2, 3, 4, -1));

// Selection

TEST_F(FileListingTest, WithoutNameTheFirstRowIsSelected) {
    InsertFiles(NumberedFiles(20));
    List();
    EXPECT_THAT(Selection(), ElementsAre(0));
    EXPECT_EQ(Mark(), 0);
    EXPECT_TRUE(View().IsRowInSight(kFileList, 0));
    EXPECT_EQ(View().GetFocusedRow(kFileList), -1);
}

TEST_F(FileListingTest, NamedRowIsSelectedMarkedAndScrolledTo) {
    View().Move(kFileList, {10, 10, 300, 80});
    InsertFiles(NumberedFiles(20));
    ListAndSelect("file07.fia");
    EXPECT_THAT(Selection(), ElementsAre(6));
    EXPECT_EQ(Mark(), 6);
    EXPECT_TRUE(View().IsRowInSight(kFileList, 6));
    EXPECT_FALSE(View().IsRowInSight(kFileList, 0));
    EXPECT_EQ(View().GetFocusedRow(kFileList), -1);
}

TEST_F(FileListingTest, LastRowOfMoreThanAPageIsScrolledTo) {
    InsertFiles(NumberedFiles(60));
    ListAndSelect("file60.fia");
    EXPECT_THAT(Selection(), ElementsAre(59));
    EXPECT_TRUE(View().IsRowInSight(kFileList, 59));
}

TEST_F(FileListingTest, NameIsFoundWhateverItsCase) {
    InsertFiles(NumberedFiles(5));
    ListAndSelect("FILE03.Fia");
    EXPECT_THAT(Selection(), ElementsAre(2));
}

TEST_F(FileListingTest, LaterOfTwoEqualNamesIsSelected) {
    InsertFiles({File("a.fia", 21, 1), File("twin.fia", 21, 2), File("TWIN.FIA", 21, 3),
                 File("z.fia", 21, 4)});
    ListAndSelect("twin.fia");
    EXPECT_THAT(Selection(), ElementsAre(2));
    EXPECT_EQ(Mark(), 2);
}

TEST_F(FileListingTest, NameThatIsNotThereSelectsTheFirstRow) {
    InsertFiles(NumberedFiles(5));
    ListAndSelect("file03");
    EXPECT_THAT(Selection(), ElementsAre(0));
    EXPECT_EQ(Mark(), 0);
}

TEST_F(FileListingTest, EmptyNameSelectsTheFirstRow) {
    InsertFiles({File("a.fia", 21, 1), File("", 21, 2), File("c.fia", 21, 3)});
    ListAndSelect("");
    EXPECT_THAT(Selection(), ElementsAre(0));
}

TEST_F(FileListingTest, OldSelectionDoesNotOutliveTheListing) {
    InsertFiles(NumberedFiles(5));
    ListAndSelect("file04.fia");
    List();
    EXPECT_THAT(Selection(), ElementsAre(0));
    EXPECT_EQ(Mark(), 0);
}

// No device control

class UnconnectedListingTest : public ListingFixture {
protected:
    void ExpectFatalErrorOverTheOldRows() {
        View().InsertRow(kFileList, 0, "kept.fia");
        contract::SetErrorInfo("left by somebody");
        List();
        EXPECT_THAT(TakeMessages(),
                    ElementsAre(ErrorReport(
                        "A fatal error has occured, please restart Halcyon and try again.",
                        "Prommer Maintenance", contract::Status::FromBits(0x80004003))));
        EXPECT_THAT(Names(), ElementsAre("kept.fia"));
        EXPECT_THAT(Log(), IsEmpty());
    }
};

TEST_F(UnconnectedListingTest, ListingIsAFatalErrorAndKeepsTheRows) {
    ExpectFatalErrorOverTheOldRows();
}

TEST_F(UnconnectedListingTest, ListingIsAFatalErrorInAnyMode) {
    State().deviceMode = DeviceMode::Service;
    ExpectFatalErrorOverTheOldRows();
}

}
