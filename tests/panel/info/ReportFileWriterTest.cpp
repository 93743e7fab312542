#include "panel/info/ReportFileWriter.h"

#include "panel/control/FileDialog.h"
#include "tests/simulator/TemporaryFolder.h"
#include "tests/support/RoomFixture.h"

namespace {

using namespace panel;
using namespace support;

class ReportFileWriterTest : public RoomFixture {
protected:
    int Write(const std::string& fileName = "report.txt") {
        return ReportFileWriter(rooms->services).Write({}, fileName, "HEADER");
    }
    std::string ProposedName() { return desktop->prompts.FileDialogs().back().dialog.fileName; }

    simulator::CTemporaryFolder m_folder;
};

TEST_F(ReportFileWriterTest, WrittenReportIsZero) {
    desktop->prompts.ChooseFile(m_folder.PathOf("r.txt"));
    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(ReportFileWriterTest, CancelIsZero) {
    desktop->prompts.CancelFileDialog();
    EXPECT_EQ(Write(), 0);
}

TEST_F(ReportFileWriterTest, FileThatCannotBeOpenedIsOneAndTheCallersToReport) {
    desktop->prompts.ChooseFile(m_folder.PathOf("missing/r.txt"));
    EXPECT_EQ(Write(), 1);
    EXPECT_THAT(TakeMessages(), testing::IsEmpty());
}

TEST_F(ReportFileWriterTest, ProposedNameIsCutTo260Bytes) {
    desktop->prompts.CancelFileDialog();
    Write(std::string(260, 'n'));
    EXPECT_EQ(ProposedName(), std::string(260, 'n'));
    desktop->prompts.CancelFileDialog();
    Write(std::string(261, 'n'));
    EXPECT_EQ(ProposedName(), std::string(260, 'n'));
}

}
