#include "tests/workstation/ProgramRun.h"

#include <gmock/gmock.h>

#include <QFileInfo>

namespace {

using testing::HasSubstr;

/// The whole of ./run in a clone in which everything is installed and built.
class WholeRunTest : public ProgramRun {
protected:
    Outcome RunWhole(const QString& settings, const QStringList& options) {
        const QString script =
            QString("mkdir -p clone/build programs && cp -R '%1/run' '%1/tools' clone && "
                    "ln -s '%1/simulator' '%1/workstation' clone && "
                    "ln -s '%2' clone/build/run && "
                    "printf '#!/bin/sh\\n' >programs/cmake && "
                    "printf '#!/bin/sh\\nprintf installed\\n' >programs/dpkg-query && "
                    "chmod +x programs/* && PATH=$PWD/programs:$PATH && "
                    "KRX8_REGISTRY=%3 exec clone/run \"$@\"")
                .arg(QFileInfo(KRX8_RUN_SCRIPT).path(), KRX8_BUILD, settings);
        return Run(QStringList{"-u", "-c", script, "run"} + options, "bash");
    }
    std::string Text(const char* file) {
        QFile text(Path(file));
        EXPECT_TRUE(text.open(QIODevice::ReadOnly)) << file;
        return text.readAll().toStdString();
    }
};

TEST_F(WholeRunTest, FreshCloneShowsTheSampleAsAPanelFromItsOwnCatalogue) {
    const Outcome outcome = RunWhole("", {"--text"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("KRX-20 Info\n"));
    const std::string settings = Text("clone/build/registry.json");
    EXPECT_THAT(settings, HasSubstr("QRZ.KRX8Maintenance"));
    EXPECT_THAT(settings, HasSubstr("clone/simulator/package"));
}

TEST_F(WholeRunTest, SettingsThatTheUserNamesAreRegisteredInAndElseLeftAlone) {
    const Outcome outcome = RunWhole("mine.json", {"--text"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("KRX-20 Info\n"));
    const std::string settings = Text("mine.json");
    EXPECT_THAT(settings, HasSubstr("QRZ.KRX8Maintenance"));
    EXPECT_THAT(settings, Not(HasSubstr("FlashDir")));
    EXPECT_FALSE(QFileInfo::exists(Path("clone/build/registry.json")));
}

}
