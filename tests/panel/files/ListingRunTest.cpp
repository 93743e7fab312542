#include "tests/panel/files/ListingFixture.h"

namespace {

using namespace panel;
using namespace support;
using simulator::StoredFile;
using testing::ElementsAre;
using testing::IsEmpty;

class ListingRunTest : public ListingFixture {
protected:
    /// The cell of a file that is the only one on its device.
    std::string OnlyCell(const StoredFile& file, int column) {
        InsertFiles({file});
        List();
        EXPECT_EQ(RowCount(), 1);
        return View().GetCell(kFileList, 0, column);
    }
    std::string ShownName(const std::string& name) { return OnlyCell(File(name, 21, 1), 0); }
    std::string ShownVersion(const std::string& version) {
        return OnlyCell(File("a.fia", 21, 1, version), 3);
    }
};

// Cells and keys

TEST_F(ListingRunTest, LargeIdIsShownWholeAndKeyedByItsLowBits) {
    InsertFiles({File("a.fia", 22, 70000)});
    List();
    EXPECT_EQ(Row(0)[2], "70000");
    EXPECT_EQ(Key(0), 0x16020000u + 4464u);
}

TEST_F(ListingRunTest, NegativeIdShowsItsSign) {
    InsertFiles({File("a.fia", 22, -2)});
    List();
    EXPECT_EQ(Row(0)[2], "-2");
    EXPECT_EQ(Key(0), 0x1602FFFEu);
}

TEST_F(ListingRunTest, UnknownValuesAreShownAndKeyedByEightBits) {
    StoredFile file = File("odd.fia", 0x1234, 5);
    file.location = 7;
    file.generation = 2;
    StoredFile odder = File("odder.fia", -1, 6);
    odder.location = 0x302;
    odder.generation = 4294967295u;
    InsertFiles({file, odder});
    List();
    EXPECT_THAT(Row(0), ElementsAre("odd.fia", "unknown", "5", "1.0", "1005", "7", "2"));
    EXPECT_THAT(Row(1),
                ElementsAre("odder.fia", "unknown", "6", "1.0", "1006", "770", "4294967295"));
    EXPECT_EQ(Key(0), 0x34070005u);
    EXPECT_EQ(Key(1), 0xFF020006u);
}

TEST_F(ListingRunTest, GenerationZeroLeavesItsCellEmpty) {
    EXPECT_EQ(OnlyCell(File("a.fia", 21, 1), 6), "");
}

TEST_F(ListingRunTest, EmptyVersionLeavesItsCellEmpty) {
    InsertFiles({File("a.fia", 21, 1, "9.9"), File("b.fia", 21, 2, "")});
    List();
    EXPECT_EQ(Row(1)[3], "");
}

const std::string kTwoByteLetter = "\xC3\xA9";
const std::string kThreeByteSign = "\xE2\x82\xAC";
const std::string kFourByteSign = "\xF0\x9F\x94\xA7";
const std::string kReplacement = "\xEF\xBF\xBD";

TEST_F(ListingRunTest, TextsAreCutTo256Bytes) {
    EXPECT_EQ(ShownName(std::string(256, 'n')), std::string(256, 'n'));
    EXPECT_EQ(ShownName(std::string(257, 'n')), std::string(256, 'n'));
    EXPECT_EQ(ShownName(std::string(5000, 'n')), std::string(256, 'n'));
    EXPECT_EQ(ShownVersion(std::string(256, '1')), std::string(256, '1'));
    EXPECT_EQ(ShownVersion(std::string(257, '1')), std::string(256, '1'));
}

TEST_F(ListingRunTest, TextsAreCutBetweenCharacters) {
    const std::string fits = std::string(254, 'n') + kTwoByteLetter;
    EXPECT_EQ(ShownName(fits), fits);
    EXPECT_EQ(ShownName(fits + "x"), fits);
    EXPECT_EQ(ShownName(std::string(255, 'n') + kTwoByteLetter), std::string(255, 'n'));
    EXPECT_EQ(ShownName(std::string(254, 'n') + kThreeByteSign), std::string(254, 'n'));
    EXPECT_EQ(ShownVersion(std::string(253, '1') + kFourByteSign), std::string(253, '1'));
}

TEST_F(ListingRunTest, InvalidBytesAreShownAsReplacements) {
    EXPECT_EQ(ShownName("bad\xFF name"), "bad" + kReplacement + " name");
    EXPECT_EQ(ShownVersion("\x80"), kReplacement);
    EXPECT_EQ(ShownName(std::string(255, 'n') + "\xFF\xFF"), std::string(255, 'n') + kReplacement);
}

TEST_F(ListingRunTest, OverlongNameIsComparedAsShown) {
    InsertFiles({File("a.fia", 21, 1), File(std::string(300, 'n'), 21, 2)});
    ListAndSelect(std::string(256, 'n'));
    EXPECT_THAT(Selection(), ElementsAre(1));
}

// Nameless files

TEST_F(ListingRunTest, NamelessFilesTakeNoRow) {
    InsertFiles({File("", 19, 1), File("b.fia", 21, 2), File("", 22, 3), File("", 22, 4),
                 File("e.fia", 22, 5)});
    ListAndSelect("e.fia");
    ASSERT_EQ(RowCount(), 2);
    EXPECT_THAT(Row(0), ElementsAre("b.fia", "Algo", "2", "1.0", "1002", "Flash", ""));
    EXPECT_THAT(Row(1), ElementsAre("e.fia", "MCUSW", "5", "1.0", "1005", "Flash", ""));
    EXPECT_EQ(Key(0), 0x15020002u);
    EXPECT_EQ(Key(1), 0x16020005u);
    EXPECT_THAT(Selection(), ElementsAre(1));
    EXPECT_EQ(Mark(), 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ListingRunTest, NamelessFileIsAskedForNothingElse) {
    InsertFiles({File("", 19, 1)});
    List();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceControl.GetFileListing", "FileListing.GetFileCount",
                            "FileListing.GetFileInfo", "FileInfo.GetName"));
}

TEST_F(ListingRunTest, OnlyNamelessFilesLeaveNothingToSelect) {
    InsertFiles({File("", 19, 1), File("", 21, 2)});
    List();
    EXPECT_EQ(RowCount(), 0);
    EXPECT_THAT(Selection(), IsEmpty());
    EXPECT_EQ(Mark(), -1);
    EXPECT_THAT(Log(), ElementsAre("Updating file listing...", "File listing updated"));
}

// The package version

struct PackageCase {
    const char* name;
    const char* version;
    const char* installed;
};

void PrintTo(const PackageCase& value, std::ostream* out) {
    *out << value.name << " " << value.version;
}

class PackageVersionTest : public ListingRunTest,
                           public testing::WithParamInterface<PackageCase> {};

TEST_P(PackageVersionTest, VersionFileTellsThePackageVersion) {
    State().installedPackageVersion = "009";
    InsertFiles({File("a.fia", 21, 1, "7.7"), File(GetParam().name, 22, 3, GetParam().version),
                 File("z.fia", 21, 2, "8.8")});
    List();
    EXPECT_EQ(State().installedPackageVersion, GetParam().installed);
}

INSTANTIATE_TEST_SUITE_P(Files, PackageVersionTest,
                         testing::Values(PackageCase{"version.fia", "2.5.13", "002.005.013"},
                                         PackageCase{"VERSION.FIA", "1.10", "001.010"},
                                         PackageCase{"Version.Fia", "1.10", "001.010"},
                                         PackageCase{"VERSION.FIA", "", ""},
                                         PackageCase{"version.fia", "abc", "000"},
                                         PackageCase{"version.fia", "1234.5", "1234.005"},
                                         PackageCase{"version.fia", "1.2a.3", "001.002"},
                                         PackageCase{"version.fi", "1.10", "009"},
                                         PackageCase{"version.fiaa", "1.10", "009"},
                                         PackageCase{"xversion.fia", "1.10", "009"},
                                         PackageCase{"version_fia", "1.10", "009"}));

TEST_F(ListingRunTest, LongPackageVersionIsCutTo79Bytes) {
    std::string version = "1";
    std::string expected = "001";
    for (int i = 1; i < 30; ++i) {
        version += ".1";
        expected += ".001";
    }
    InsertFiles({File("version.fia", 22, 1, version)});
    List();
    EXPECT_EQ(State().installedPackageVersion, expected.substr(0, 79));
}

TEST_F(ListingRunTest, LastOfTwoVersionFilesWins) {
    InsertFiles({File("version.fia", 22, 1, "1.0"), File("VERSION.FIA", 22, 2, "2.0")});
    List();
    EXPECT_EQ(State().installedPackageVersion, "002.000");
}

TEST_F(ListingRunTest, LastVersionFileWinsEvenWithoutVersion) {
    InsertFiles({File("version.fia", 22, 1, "1.0"), File("VERSION.FIA", 22, 2, "")});
    List();
    EXPECT_EQ(State().installedPackageVersion, "");
}

TEST_F(ListingRunTest, PackageVersionIsKeptWhenALaterCallFails) {
    InsertFiles({File("version.fia", 22, 1, "1.0")});
    faults->Fail({1, "FileInfo.GetSize"});
    List();
    EXPECT_EQ(State().installedPackageVersion, "001.000");
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(ListingRunTest, FailingVersionLeavesThePackageVersion) {
    State().installedPackageVersion = "009";
    InsertFiles({File("version.fia", 22, 1, "1.0")});
    faults->Fail({1, "FileInfo.GetVersion"});
    List();
    EXPECT_EQ(State().installedPackageVersion, "009");
    EXPECT_EQ(TakeMessages().size(), 1u);
}

}
