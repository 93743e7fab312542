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

TEST_F(RunScriptTest, LineBreakInAnOptionStaysInOneLine) {
    const Outcome outcome = Run({"--two\nlines"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "run: unknown option $'--two\\nlines'; ./run --help lists the options\n");
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
    EXPECT_THAT(outcome.output, HasSubstr("build/registry.json"));
    EXPECT_THAT(outcome.output, HasSubstr("KRX8_REGISTRY"));
}

/// The part of the script that hands the options on.
class StartTest : public ProgramRun {
protected:
    /// With the step before that changes the folder, as in a clone that is not yet configured.
    Outcome Start(const QString& workstation, const QStringList& options) {
        const QString script =
            QString("source '%1/tools/setup.sh'; source '%1/tools/options.sh'; "
                    "check_options \"$@\"; mkdir clone; root=$PWD/clone; cmake() { :; }; "
                    "configure release run; start '%2' /devices /panel.png \"$@\"")
                .arg(QFileInfo(KRX8_RUN_SCRIPT).path(), workstation);
        return Run(QStringList{"-u", "-c", script, "run"} + options, "bash");
    }
    /// The arguments that the workstation gets, a line each.
    std::string Arguments(const QStringList& options) {
        Write(Path("print"), "#!/bin/sh\nprintf '%s\\n' \"$@\"\n");
        EXPECT_TRUE(QFile::setPermissions(Path("print"), QFile::ReadOwner | QFile::ExeOwner));
        return Start(Path("print"), options).output;
    }
};

TEST_F(StartTest, WithoutOptionsTheSamplesAndThePictureAreNamed) {
    EXPECT_EQ(Arguments({}), "--devices\n/devices\n--device\n/devices/krx-20\n"
                             "--fallback\n/panel.png\n");
}

TEST_F(StartTest, FlagsTakeNoDefaultAway) {
    EXPECT_EQ(Arguments({"--text"}), "--devices\n/devices\n--device\n/devices/krx-20\n"
                                     "--fallback\n/panel.png\n--text\n");
}

TEST_F(StartTest, GivenDeviceTakesThePlaceOfTheSample) {
    EXPECT_EQ(Arguments({"--device", "my device"}),
              "--devices\n/devices\n--fallback\n/panel.png\n--device\nmy device\n");
}

TEST_F(StartTest, GivenRootTakesThePlaceOfSamplesAndDevice) {
    EXPECT_EQ(Arguments({"--devices", "root"}), "--fallback\n/panel.png\n--devices\nroot\n");
}

TEST_F(StartTest, GivenPictureTakesThePlaceOfTheDefault) {
    EXPECT_EQ(Arguments({"--fallback", "p.png", "--devices", "root"}),
              "--fallback\np.png\n--devices\nroot\n");
}

TEST_F(StartTest, OptionsWithAnEqualsSignCountAsGiven) {
    EXPECT_EQ(Arguments({"--devices=root", "--device=a=b", "--fallback=p q.png"}),
              "--devices=root\n--device=a=b\n--fallback=p q.png\n");
}

TEST_F(StartTest, ValueThatLooksLikeAnOptionIsNone) {
    EXPECT_EQ(Arguments({"--device", "--devices"}),
              "--devices\n/devices\n--fallback\n/panel.png\n--device\n--devices\n");
}

TEST_F(StartTest, RelativeFolderIsTakenFromTheCallersFolder) {
    ASSERT_EQ(Run({"-R", Sample("krx-10"), Path("mine")}, "cp").status, 0);
    const Outcome outcome =
        Start(KRX8_WORKSTATION, {"--devices", ".", "--device", "mine", "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("KRX-10 Info\n"));
}

TEST_F(StartTest, StatusOfTheWorkstationIsThatOfTheScript) {
    const Outcome outcome = Start(KRX8_WORKSTATION, {"--device", "none"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "run: configuring build/run\n"
                              "krx8-workstation: none: there is no such folder\n");
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

/// The part of the script that looks after the settings file.
class SettingsTest : public ProgramRun {
protected:
    /// A start from a clone whose package lies in `package`.
    Outcome Start(const std::string& package) {
        const QString script = QString("source '%1/tools/setup.sh'; source '%1/tools/settings.sh'; "
                                       "keep_settings build/registry.json \"$1\"")
                                   .arg(QFileInfo(KRX8_RUN_SCRIPT).path());
        return Run({"-u", "-c", script, "run", QString::fromStdString(package)}, "bash");
    }
    std::string Settings() {
        QFile file(Path("build/registry.json"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    void SetFolder(const std::string& folder) {
        Write(Path("build/registry.json"), WithFolder(folder).c_str());
    }
    static std::string WithFolder(const std::string& folder) {
        return "{\n  \"A\": {\n    \"FlashUpdated\": 1,\n    \"FlashDir\": \"" + folder +
               "\",\n    \"FlashVersion\": \"7\"\n  }\n}\n";
    }
};

TEST_F(SettingsTest, FirstStartNamesTheClonesPackage) {
    const Outcome outcome = Start("/clone & \\ \"x\"/simulator/package");
    EXPECT_EQ(outcome.errors, "run: writing build/registry.json\n");
    EXPECT_EQ(Settings(), "{\n"
                          "  \"SOFTWARE/Vantor Mobile Phones/WstShared/Common/FlashUpdate\": {\n"
                          "    \"FlashDir\": \"/clone & \\\\ \\\"x\\\"/simulator/package\",\n"
                          "    \"FlashVersion\": \"5.2.0\"\n"
                          "  }\n"
                          "}\n");
    EXPECT_EQ(Start("/clone & \\ \"x\"/simulator/package").errors, "");
}

TEST_F(SettingsTest, PackageOfAMovedCloneIsReplacedAndNothingElse) {
    Start("/old/simulator/package");
    SetFolder("/old\\\\x/simulator/package");
    EXPECT_EQ(Start("/new & \"x\"/simulator/package").errors,
              "run: renewing the package folder in build/registry.json\n");
    EXPECT_EQ(Settings(), WithFolder("/new & \\\"x\\\"/simulator/package"));
}

TEST_F(SettingsTest, PackageOfAnotherCloneIsReplacedThoughItExists) {
    Start("/old/simulator/package");
    ASSERT_TRUE(QDir().mkpath(Path("other/simulator/package")));
    SetFolder(PathText("other/simulator/package"));
    Start("/new/simulator/package");
    EXPECT_EQ(Settings(), WithFolder("/new/simulator/package"));
}

TEST_F(SettingsTest, PackageOfTheUsersOwnStays) {
    Start("/old/simulator/package");
    ASSERT_TRUE(QDir().mkpath(Path("own \"package\"")));
    const std::string folder = m_folder.path().toStdString() + "/own \\\"package\\\"";
    SetFolder(folder);
    EXPECT_EQ(Start("/new/simulator/package").errors, "");
    EXPECT_EQ(Settings(), WithFolder(folder));
}

TEST_F(SettingsTest, FolderOfTheUsersOwnThatIsMissingStays) {
    Start("/old/simulator/package");
    SetFolder("/missing/package");
    EXPECT_EQ(Start("/new/simulator/package").errors, "");
    EXPECT_EQ(Settings(), WithFolder("/missing/package"));
}

TEST_F(SettingsTest, SettingsWithoutAPackageFolderStay) {
    Start("/old/simulator/package");
    Write(Path("build/registry.json"), "{}");
    EXPECT_EQ(Start("/new/simulator/package").errors, "");
    EXPECT_EQ(Settings(), "{}");
}

}
