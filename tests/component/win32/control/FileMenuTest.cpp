// What the menu of the file list does to a simulated device, and to the list.

#include "tests/component/win32/control/SimulatedDeviceFixture.h"

#include "panel/control/PanelTemplate.h"

namespace controltests {

namespace {

constexpr int kMoveToFlash = 3;
constexpr int kMoveToExternalStorage = 4;
constexpr int kSelectAll = 10;

class FileMenuTest : public SimulatedDeviceFixture {};

/// A file that is elsewhere afterwards.
struct Move {
    const char* sample;
    int command;
    const char* file;
    const char* from;
    const char* to;
};

void PrintTo(const Move& move, std::ostream* out) {
    *out << move.sample << ": " << move.file << " to " << move.to;
}

class MoveTest : public FileMenuTest, public testing::WithParamInterface<Move> {
protected:
    std::string Location() { return User().ShownCell(panel::kFileList, RowOf(GetParam().file), 5); }
};

TEST_P(MoveTest, ChosenFromTheMenuShowsAndSelectsTheFileInItsNewPlace) {
    StartWithSample(GetParam().sample);
    const int count = RowCount();
    ASSERT_EQ(Location(), GetParam().from);
    prompts.ExpectMenu(GetParam().command);
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, RowOf(GetParam().file)));
    container.Pump();
    EXPECT_EQ(Location(), GetParam().to);
    EXPECT_EQ(RowCount(), count);
    EXPECT_EQ(SelectedNames(), std::vector<std::string>{GetParam().file});
}

constexpr Move kMoves[] = {
    {"krx-8", kMoveToFlash, "calder1_mcu.fia", "RAM", "Flash"},
    {"krx-10", kMoveToFlash, "nand_alg.fg", "PCCard", "Flash"},
    {"krx-20", kMoveToFlash, "fenwick_mcu.fg", "RAM", "Flash"},
    {"krx-20", kMoveToExternalStorage, "nor32_alg.fia", "Flash", "PCCard"},
};

INSTANTIATE_TEST_SUITE_P(All, MoveTest, testing::ValuesIn(kMoves));

/// Code of a package, and a version that is shown once the device has taken it.
struct Upload {
    const char* sample;
    int command;
    const char* file;
    panel::ControlId field;
    const char* before;
    const char* after;
};

void PrintTo(const Upload& upload, std::ostream* out) {
    *out << upload.sample << ", command " << upload.command;
}

class CodeUploadTest : public FileMenuTest, public testing::WithParamInterface<Upload> {};

TEST_P(CodeUploadTest, ChosenFromTheMenuShowsTheNewVersion) {
    StartWithSample(GetParam().sample);
    ASSERT_EQ(Field(GetParam().field), GetParam().before);
    ChooseWithFile(GetParam().command, PackageFile(GetParam().file));
    EXPECT_EQ(Field(GetParam().field), GetParam().after);
    EXPECT_THAT(Log(), testing::HasSubstr("100%\r\nProgramming Device is in Normal mode\r\n"));
}

constexpr Upload kUploads[] = {
    {"krx-8", 5, "Flash/krx8/krx8_fpga.bin", panel::kFpgaField, "0.93", "1.02"},
    {"krx-8", 7, "Flash/krx8/krx8_application.bin", panel::kApplicationSwField, "4.07.2", "4.20.0"},
    {"krx-10", 8, "Flash/krxx/software.krx10", panel::kApplicationSwField, "3.15.1", "3.20.0"},
};

INSTANTIATE_TEST_SUITE_P(All, CodeUploadTest, testing::ValuesIn(kUploads));

TEST_F(FileMenuTest, SelectAllSelectsEveryRow) {
    StartWithSample("krx-8");
    prompts.ExpectMenu(kSelectAll);
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 3));
    container.Pump();
    EXPECT_EQ(SelectedNames().size(), 12u);
}

}

}
