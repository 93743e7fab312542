#include "workstation/Program.h"

#include "tests/workstation/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class ProgramTest : public ProgramRun {};

TEST(RunReportingTest, StatusOfAProgramThatEndsIsItsOwn) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(workstation::RunReporting([] { return 7; }), 7);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(RunReportingTest, ExceptionBecomesOneLineAndStatusOne) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(workstation::RunReporting(
                  []() -> int { throw std::runtime_error("the disk\nis on fire"); }),
              1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "krx8-workstation: the disk\\nis on fire\n");
}

TEST(RunReportingTest, LackOfMemoryBecomesOneLineAndStatusOne) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(workstation::RunReporting([]() -> int { throw std::bad_alloc(); }), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "krx8-workstation: out of memory\n");
}

TEST_F(ProgramTest, UnknownOptionIsRefused) {
    ExpectRefusal({"--colour"}, "unknown option '--colour'; --help lists the options");
}

TEST_F(ProgramTest, OptionWithoutValueIsRefused) {
    ExpectRefusal({"--device"}, "option --device needs a value; --help lists the options");
}

TEST_F(ProgramTest, MissingFolderIsRefused) {
    ExpectRefusal({"--device", Path("none"), "--snapshot", Path("s.png")},
                  PathText("none") + ": there is no such folder");
}

TEST_F(ProgramTest, FileInPlaceOfAFolderIsRefused) {
    Write(Path("file"), "text");
    ExpectRefusal({"--device", Path("file"), "--text"}, PathText("file") + ": is not a folder");
}

TEST_F(ProgramTest, FolderThatIsNoDeviceIsRefused) {
    ExpectRefusal({"--device", m_folder.path(), "--text"},
                  m_folder.path().toStdString() +
                      ": is not a device: there is no device.json in it");
}

TEST_F(ProgramTest, DamagedDeviceIsRefused) {
    Write(Path("device.json"), "{\n  \"type\": \n}");
    const Outcome outcome = Run({"--device", m_folder.path(), "--snapshot", Path("s.png")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, StartsWith("krx8-workstation: " + PathText("device.json") +
                                           ":3: is not valid JSON: "));
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << "one line";
    EXPECT_FALSE(QFile::exists(Path("s.png")));
}

TEST_F(ProgramTest, UnreadableDeviceIsRefused) {
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("device.json"));
    const Outcome outcome = Run({"--device", m_folder.path(), "--text"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors,
                StartsWith("krx8-workstation: " + PathText("device.json") + ": cannot be read: "));
}

TEST_F(ProgramTest, ComponentThatIsNotRegisteredIsRefusedWithWhatToDo) {
    const QByteArray registry = qgetenv("KRX8_REGISTRY");
    qputenv("KRX8_REGISTRY", Path("none.json").toLocal8Bit());
    ExpectRefusal({"--device", Sample("krx-20"), "--text"},
                  "QRZ.KRX8Maintenance is not registered in " + PathText("none.json") +
                      "; register the component with: krx8-register "
                      "FOLDER/cmn_krx8maintenanceui.so");
    qputenv("KRX8_REGISTRY", registry);
}

TEST_F(ProgramTest, RefusalIsAllThereIsAlsoWithoutADisplay) {
    ExpectRefusal({"--device", Path("none"), "--fallback", Path("panel.png")},
                  PathText("none") + ": there is no such folder");
}

TEST_F(ProgramTest, MissingRootIsRefused) {
    ExpectRefusal({"--devices", Path("none")},
                  PathText("none") + ": cannot be read: No such file or directory");
}

TEST_F(ProgramTest, LineBreakInARootStaysInOneLine) {
    ExpectRefusal({"--devices", Path("two\nlines")},
                  PathText("two\\nlines") + ": cannot be read: No such file or directory");
}

TEST_F(ProgramTest, LineBreakInAnArgumentStaysInOneLine) {
    ExpectRefusal({"--two\nlines"}, "unknown option '--two\\nlines'; --help lists the options");
    ExpectRefusal({"two\nlines"}, "unexpected argument 'two\\nlines'; --help lists the options");
}

TEST_F(ProgramTest, LineBreakInTheNameOfASnapshotStaysInOneLine) {
    const Outcome outcome = Run({"--snapshot", Path("two\nlines.png")});
    EXPECT_EQ(outcome.output, "The window is drawn in " + PathText("two\\nlines.png") + "\n");
    EXPECT_TRUE(QFile::exists(Path("two\nlines.png")));
}

TEST_F(ProgramTest, SnapshotWhoseNameIsNoTextIsWrittenUnderItsOwnName) {
    const QString command =
        QString("'%1' --snapshot \"$(printf 'n\\366.png')\"").arg(KRX8_WORKSTATION);
    EXPECT_EQ(Run({"-c", command}, "/bin/sh").status, 0);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path().toStdString())) {
        names.push_back(entry.path().filename().string());
        // The toolkit, which removes the folder, cannot name it.
        EXPECT_TRUE(std::filesystem::remove(entry));
    }
    EXPECT_THAT(names, ElementsAre("n\366.png"));
}

TEST_F(ProgramTest, SnapshotReplacesAPictureAlsoThroughALink) {
    Write(Path("old.png"), "old");
    ASSERT_TRUE(QFile::link(Path("old.png"), Path("link.png")));
    EXPECT_EQ(Run({"--snapshot", Path("link.png")}).status, 0);
    EXPECT_FALSE(QImage(Path("old.png"), "PNG").isNull());
    EXPECT_TRUE(QFileInfo(Path("link.png")).isSymLink());
}

TEST_F(ProgramTest, SnapshotDoesNotReplaceWhatIsNoFile) {
    ASSERT_EQ(Run({Path("pipe")}, "mkfifo").status, 0);
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    ExpectRefusal({"--snapshot", Path("pipe")},
                  PathText("pipe") + ": cannot be written: Operation not supported");
    ExpectRefusal({"--snapshot", Path("folder")},
                  PathText("folder") + ": cannot be written: Is a directory");
    EXPECT_EQ(std::filesystem::status(PathText("pipe")).type(), std::filesystem::file_type::fifo);
}

TEST_F(ProgramTest, UnwritableSnapshotIsRefused) {
    const Outcome outcome =
        Run({"--device", Sample("krx-20"), "--snapshot", Path("none/picture.png")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, StartsWith("krx8-workstation: " + PathText("none/picture.png") +
                                           ": cannot be written: "));
    EXPECT_EQ(FolderContents(), QStringList());
}

TEST_F(ProgramTest, HelpNamesProgramAndOptions) {
    const Outcome outcome = Run({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("Usage: krx8-workstation [OPTION]...\n"));
    EXPECT_THAT(outcome.output, HasSubstr("  --device FOLDER "));
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(ProgramTest, TextShowsEveryPartOfThePanel) {
    const Outcome outcome = Run({"--device", Sample("krx-20"), "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    for (const char* part :
         {"KRX-20 Info\n", "\nS/N ", "\nHW ", "\nFlash Size (B) ", "\nFree Flash (B) ",
          "\nSRAM Size (B) ", "\nFree SRAM (B) ", "\nBoot SW ", "\nFPGA ", "\nApplication SW ",
          "\nSelf-test Status ", "\nIP address ", "\nFlash Box Files\n", "\nFile name ",
          "Generation\n", "\nversion.fia ", "\nProgress Info\n",
          "\nProgramming Device is in Normal mode\n"}) {
        EXPECT_THAT(outcome.output, HasSubstr(part));
    }
}

TEST_F(ProgramTest, TextOfEverySampleIsPrinted) {
    for (const char* sample : {"krx-8", "krx-8c", "krx-10", "krx-20", "krx-21"}) {
        const Outcome outcome = Run({"--device", Sample(sample), "--text"});
        EXPECT_EQ(outcome.status, 0) << sample;
        EXPECT_THAT(outcome.output, HasSubstr("\nFlash Box Files\n")) << sample;
    }
}

TEST_F(ProgramTest, TextWithoutDeviceShowsAnEmptyPanel) {
    const Outcome outcome = Run({"--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("KRX-8 Info\nS/N\n"));
    EXPECT_EQ(outcome.output.find("Prommer"), std::string::npos);
}

TEST_F(ProgramTest, SnapshotIsAPictureOfTheWholeWindow) {
    const Outcome outcome = Run({"--device", Sample("krx-20"), "--snapshot", Path("window.png")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "The window is drawn in " + PathText("window.png") + "\n");
    const QImage picture(Path("window.png"), "PNG");
    EXPECT_GT(picture.width(), 850);
    EXPECT_GT(picture.height(), 480);
}

TEST_F(ProgramTest, WithoutDisplayTextAndPictureAreMade) {
    const Outcome outcome = Run({"--device", Sample("krx-20"), "--fallback", Path("panel.png")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output,
                StartsWith("There is no display: the panel follows as text.\nKRX-20 Info\n"));
    EXPECT_THAT(outcome.output, HasSubstr("The window is drawn in " + PathText("panel.png")));
    EXPECT_FALSE(QImage(Path("panel.png"), "PNG").isNull());
}

TEST_F(ProgramTest, DisplayThatDoesNotAnswerCountsAsNone) {
    m_display = ":65500";
    const Outcome outcome = Run({"--device", Sample("krx-20")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output,
                StartsWith("There is no display: the panel follows as text.\nKRX-20 Info\n"));
    EXPECT_EQ(FolderContents(), QStringList()) << "no picture without a place for it";
}

TEST_F(ProgramTest, PlatformWithoutItsDisplayCountsAsNone) {
    m_platform = "xcb";
    const Outcome outcome = Run({"--device", Sample("krx-20")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output,
                StartsWith("There is no display: the panel follows as text.\nKRX-20 Info\n"));
}

TEST_F(ProgramTest, FolderWithoutAnAbsolutePathIsRefused) {
    const QString command =
        QString("mkdir gone && cd gone && rmdir ../gone && '%1' --devices . --text")
            .arg(KRX8_WORKSTATION);
    const Outcome outcome = Run({"-c", command}, "/bin/sh");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "krx8-workstation: .: has no absolute path: No such file or directory\n");
}

TEST_F(ProgramTest, TextThatCannotBePrintedFailsTheProgram) {
    const QString command = QString("'%1' --text > /dev/full").arg(KRX8_WORKSTATION);
    const Outcome outcome = Run({"-c", command}, "/bin/sh");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "krx8-workstation: cannot write to the standard output: No space "
                              "left on device\n");
}

TEST_F(ProgramTest, BoxIsToldAndAnswered) {
    const Outcome outcome = Run({"--device", Sample("krx-8c"), "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output,
                StartsWith("Box \"Prommer Maintenance\":\n"
                           "    The Programming Device is not in Normal mode and therefore some "
                           "information about the Programming Device can be incorrect.\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\nAnswered: closed\nKRX-8 Info\n"));
}

}
