#include "tests/panel/files/ListingFixture.h"

#include <algorithm>

namespace {

using namespace panel;
using namespace support;
using simulator::StoredFile;
using testing::ElementsAre;
using testing::IsEmpty;

Shown Report(const std::string& text, contract::Status status,
             const std::string& description = "") {
    return ErrorReport(text, "Prommer Maintenance", status, description);
}

class ListingRunFailureTest : public ListingFixture {};

struct FailureCase {
    const char* operation;
    std::size_t call;
    const char* text;
    int rows;
    /// Cells of the third row that were written.
    std::size_t cells;
};

void PrintTo(const FailureCase& value, std::ostream* out) { *out << value.text; }

constexpr FailureCase kFailures[] = {
    {"ProgrammingDeviceControl.GetFileListing", 1, "File listing query failed", 0, 0},
    {"FileListing.GetFileInfo", 3, "Cannot get info about a file", 2, 0},
    {"FileListing.GetFileCount", 1, "Cannot get the count of files", 0, 0},
    {"FileInfo.GetName", 3, "Cannot get name of the file", 2, 0},
    {"FileInfo.GetType", 3, "Cannot get type of the file", 3, 1},
    {"FileInfo.GetId", 3, "Cannot get ID of the file", 3, 2},
    {"FileInfo.GetVersion", 3, "Cannot get version of the file", 3, 3},
    {"FileInfo.GetSize", 3, "Cannot get size of the file", 3, 4},
    {"FileInfo.GetLocation", 3, "Cannot get file location", 3, 5},
    {"FileInfo.GetGeneration", 3, "Cannot get generation of the file", 3, 6}};

class ListingRunFailingCallTest : public ListingRunFailureTest,
                                  public testing::WithParamInterface<FailureCase> {
protected:
    /// Two whole rows, and of the third the cells that were read.
    void ExpectRowsUpToTheFailure() {
        const std::vector<std::string> whole[] = {
            {"a.fia", "Algo", "1", "1.0", "1001", "Flash", "QX2"},
            {"b.fia", "Algo", "2", "1.0", "1002", "Flash", "QX2"},
            {"c.fia", "Algo", "3", "1.0", "1003", "Flash", "QX2"}};
        ASSERT_EQ(RowCount(), GetParam().rows);
        for (int row = 0; row < RowCount(); ++row) {
            std::vector<std::string> expected = whole[row];
            if (row == 2) {
                std::fill(expected.begin() + static_cast<int>(GetParam().cells), expected.end(),
                          "");
            }
            EXPECT_EQ(Row(row), expected);
            EXPECT_EQ(Key(row), row == 2 ? 0u : 0x15020001u + static_cast<unsigned>(row));
        }
    }

    void InsertThreeFiles() {
        std::vector<StoredFile> files = {File("a.fia", 21, 1), File("b.fia", 21, 2),
                                         File("c.fia", 21, 3), File("d.fia", 21, 4)};
        for (StoredFile& file : files) {
            file.generation = 4;
        }
        InsertFiles(std::move(files));
    }
};

TEST_P(ListingRunFailingCallTest, FailingCallEndsTheListing) {
    InsertThreeFiles();
    const auto wrappers = interception.LiveWrappers();
    const auto status = contract::Status::FromBits(0x8007001E);
    faults->Fail({GetParam().call, GetParam().operation}, {status, "file system busy"});
    ListAndSelect("a.fia");
    EXPECT_THAT(TakeMessages(), ElementsAre(Report(GetParam().text, status, "file system busy")));
    ExpectRowsUpToTheFailure();
    EXPECT_THAT(Selection(), IsEmpty());
    EXPECT_EQ(Mark(), -1);
    EXPECT_THAT(Log(), ElementsAre("Updating file listing..."));
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
    const auto calls = TakeCalls();
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(calls[calls.size() - 3], GetParam().operation) << "besides the two calls of the box";
}

INSTANTIATE_TEST_SUITE_P(Calls, ListingRunFailingCallTest, testing::ValuesIn(kFailures));

class ListingRunNullTest : public ListingRunFailingCallTest {};

TEST_P(ListingRunNullTest, NullObjectCountsAsAFailedCall) {
    InsertThreeFiles();
    faults->DeliverNull({GetParam().call, GetParam().operation});
    List();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report(GetParam().text, contract::Status::FromBits(0x80004003))));
    ExpectRowsUpToTheFailure();
    EXPECT_THAT(Selection(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Objects, ListingRunNullTest, testing::Values(kFailures[0], kFailures[1]));

TEST_F(ListingRunFailureTest, ReportCarriesNoOlderDescription) {
    InsertFiles({File("a.fia", 21, 1)});
    faults->RunAfter({1, "FileInfo.GetType"}, [] { contract::SetErrorInfo("left by a success"); });
    faults->Fail({1, "FileInfo.GetId"});
    List();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Cannot get ID of the file", contract::kUnspecifiedFailure)));
}

// A refill beneath a running listing

class RefillTest : public ListingRunFailureTest {
protected:
    /// Another listing inside a call of this one: of two other files, of which the user then
    /// selects the second.
    void Refill() {
        simulator::DeviceDescription device = HealthyDevice(simulator::kKrx20);
        device.files = {File("inner1.fia", 22, 11, "3.3"), File("inner2.fia", 22, 12, "3.3")};
        host.InsertDevice(simulator::CDevice::Create(device));
        List();
        View().SelectRow(kFileList, 0, false);
        View().SelectRow(kFileList, 1, true);
        View().SetSelectionMark(kFileList, 1);
        rooms->output.AppendStatusLine("after the refill");
        recorder->Clear();
    }

    /// Rows, selection and log are as the refill and the user left them.
    void ExpectOnlyTheRefill() {
        ASSERT_EQ(RowCount(), 2);
        EXPECT_THAT(Row(0), ElementsAre("inner1.fia", "MCUSW", "11", "3.3", "1011", "Flash", ""));
        EXPECT_THAT(Row(1), ElementsAre("inner2.fia", "MCUSW", "12", "3.3", "1012", "Flash", ""));
        EXPECT_EQ(Key(0), 0x1602000Bu);
        EXPECT_EQ(Key(1), 0x1602000Cu);
        EXPECT_THAT(Selection(), ElementsAre(1));
        EXPECT_EQ(Mark(), 1);
        EXPECT_EQ(State().installedPackageVersion, "");
        EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated",
                                       "after the refill"));
    }
};

class RefillInsideTest : public RefillTest, public testing::WithParamInterface<const char*> {};

TEST_P(RefillInsideTest, OuterListingStopsWithoutTouchingAnything) {
    InsertFiles({File("outer.fia", 21, 1), File("version.fia", 21, 2, "6.6")});
    faults->RunBefore({1, GetParam()}, [this] { Refill(); });
    ListAndSelect("outer.fia");
    ExpectOnlyTheRefill();
    EXPECT_THAT(TakeCalls(), IsEmpty()) << "after the refill";
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Calls, RefillInsideTest,
                         testing::Values("ProgrammingDeviceControl.GetFileListing",
                                         "FileListing.GetFileCount", "FileListing.GetFileInfo",
                                         "FileInfo.GetName", "FileInfo.GetType", "FileInfo.GetId",
                                         "FileInfo.GetVersion", "FileInfo.GetSize",
                                         "FileInfo.GetLocation", "FileInfo.GetGeneration"));

TEST_F(RefillTest, RefillInTheLastCallIsNotSelectedFrom) {
    InsertFiles({File("outer.fia", 21, 1)});
    faults->RunBefore({1, "FileInfo.GetGeneration"}, [this] { Refill(); });
    List();
    ExpectOnlyTheRefill();
}

TEST_F(RefillTest, RefillAroundTheVersionLeavesThePackageVersion) {
    InsertFiles({File("version.fia", 21, 2, "6.6")});
    faults->RunBefore({1, "FileInfo.GetVersion"}, [this] { Refill(); });
    List();
    ExpectOnlyTheRefill();
}

TEST_F(RefillTest, FailureAfterARefillIsReportedAndTouchesNothing) {
    InsertFiles({File("outer.fia", 21, 1)});
    faults->RunBefore({1, "FileInfo.GetSize"}, [this] { Refill(); });
    faults->Fail({1, "FileInfo.GetSize"});
    List();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Cannot get size of the file", contract::kUnspecifiedFailure)));
    ExpectOnlyTheRefill();
}

TEST_F(RefillTest, RefillWhileAFailureIsShownStays) {
    InsertFiles({File("outer.fia", 21, 1)});
    messageService->whileOpen = [this] { Refill(); };
    faults->Fail({1, "FileInfo.GetSize"});
    List();
    EXPECT_EQ(TakeMessages().size(), 1u);
    ExpectOnlyTheRefill();
}

TEST_F(RefillTest, EmptyingInsideAListingStopsItToo) {
    InsertFiles({File("a.fia", 21, 1), File("b.fia", 21, 2)});
    faults->RunBefore({2, "FileInfo.GetSize"}, [this] {
        State().deviceMode = DeviceMode::Service;
        List();
    });
    List();
    EXPECT_EQ(RowCount(), 0);
    EXPECT_THAT(Selection(), IsEmpty());
    EXPECT_THAT(Log(), ElementsAre("Updating file listing..."));
}

TEST_F(RefillTest, ModeChangeAloneLetsTheListingRunOn) {
    InsertFiles({File("a.fia", 21, 1), File("b.fia", 21, 2)});
    faults->RunBefore({1, "FileInfo.GetSize"},
                      [this] { State().deviceMode = DeviceMode::Service; });
    List();
    EXPECT_THAT(Names(), ElementsAre("a.fia", "b.fia"));
    EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated"));
}

}
