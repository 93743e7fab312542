#include "tests/workstation/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include <string>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class RunScriptTest : public ProgramRun {};

TEST_F(RunScriptTest, RefusesWhatTheProgramDoesNotKnow) {
    const Outcome outcome = Run({"--colour"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "run: unknown option '--colour'; ./run --help lists the options\n");
}

TEST_F(RunScriptTest, RefusesAnOptionWithoutItsValue) {
    const Outcome outcome = Run({"--text", "--device"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "run: option --device needs a value; ./run --help lists the options\n");
}

TEST_F(RunScriptTest, HelpsWithTheProgramsOptionsToo) {
    const Outcome outcome = Run({"--help"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("Usage: ./run [OPTION]...\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n  --snapshot FILE.png "));
}

/// The part of the script that looks after the copies of the sample devices.
class SampleCopiesTest : public ProgramRun {
protected:
    SampleCopiesTest() { CopyOf(QString(KRX8_SAMPLES), Path("samples")); }

    Outcome Start() {
        const QString script = QString("source '%1/tools/setup.sh'; source '%1/tools/samples.sh'; "
                                       "copy_samples samples copies records")
                                   .arg(QFileInfo(KRX8_RUN_SCRIPT).path());
        return Run({"-u", "-c", script, "run"}, "bash");
    }
    void CopyOf(const QString& folder, const QString& as) {
        EXPECT_EQ(Run({"-R", folder, as}, "cp").status, 0);
    }
    bool AreSame(const QString& one, const QString& other) {
        return Run({"-r", "-q", Path(qPrintable(one)), Path(qPrintable(other))}, "diff").status ==
               0;
    }
    void ChangeSample() { Write(Path("samples/krx-20/files/newer.fg"), "new"); }
    void ChangeCopy(const char* name) {
        Write(Path("copies") + "/" + name + "/device.json", "{ \"model\": \"KRX-8\" }");
    }
};

TEST_F(SampleCopiesTest, FirstStartCopiesEverySample) {
    const Outcome outcome = Start();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "run: copying the sample krx-10\nrun: copying the sample krx-20\n"
                              "run: copying the sample krx-21\nrun: copying the sample krx-8\n"
                              "run: copying the sample krx-8c\n");
    EXPECT_TRUE(AreSame("samples", "copies"));
}

TEST_F(SampleCopiesTest, NextStartLeavesChangedCopiesAloneWithoutAWord) {
    Start();
    ChangeCopy("krx-20");
    const Outcome outcome = Start();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_FALSE(AreSame("samples/krx-20", "copies/krx-20"));
}

TEST_F(SampleCopiesTest, DeletedCopyComesBack) {
    Start();
    for (const QString& name : QDir(KRX8_SAMPLES).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        ASSERT_TRUE(QDir(Path("copies") + "/" + name).removeRecursively());
        EXPECT_EQ(Start().errors, "run: copying the sample " + name.toStdString() + "\n");
        EXPECT_TRUE(AreSame("samples", "copies")) << name.toStdString();
    }
}

TEST_F(SampleCopiesTest, NewerSampleReplacesAnUnchangedCopy) {
    Start();
    ChangeSample();
    EXPECT_EQ(Start().errors, "run: copying the sample krx-20\n");
    EXPECT_TRUE(AreSame("samples", "copies"));
}

TEST_F(SampleCopiesTest, NewerSampleLeavesAChangedCopyAndSaysSoOnce) {
    Start();
    ChangeCopy("krx-20");
    CopyOf(Path("copies"), Path("before"));
    ChangeSample();
    EXPECT_EQ(Start().errors, "run: krx-20: your copy may hold your changes, so it stays; delete "
                              "copies/krx-20 to get the newer sample\n");
    EXPECT_TRUE(AreSame("before", "copies"));
    EXPECT_EQ(Start().errors, "");
}

TEST_F(SampleCopiesTest, ChangedCopyStaysAlsoWhenSamplesChangeAgain) {
    Start();
    ChangeCopy("krx-20");
    CopyOf(Path("copies"), Path("before"));
    for (const char* file : {"newer.fg", "newest.fg"}) {
        Write(Path("samples/krx-20/files/") + file, "new");
        Start();
        EXPECT_TRUE(AreSame("before", "copies")) << file;
    }
}

TEST_F(SampleCopiesTest, CopyWithoutARecordCountsAsChanged) {
    Start();
    ChangeCopy("krx-8");
    ASSERT_TRUE(QDir(Path("records")).removeRecursively());
    EXPECT_EQ(Start().errors, "run: krx-8: your copy may hold your changes, so it stays; delete "
                              "copies/krx-8 to get the newer sample\n");
}

TEST_F(SampleCopiesTest, CopyThatCannotBeMadeEndsTheScript) {
    Write(Path("copies"), "in the way");
    const Outcome outcome = Start();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("run: cannot make the folders copies and records\n"));
}

}
