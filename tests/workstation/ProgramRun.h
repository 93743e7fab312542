#pragma once

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <string>

struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

inline QString Sample(const char* name) { return QString(KRX8_SAMPLES) + "/" + name; }

/// The program itself, started in a folder of its own and where there is no display.
class ProgramRun : public testing::Test {
protected:
    Outcome Run(const QStringList& arguments, const QString& program = KRX8_WORKSTATION) {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(name);
        }
        if (!m_display.isEmpty()) {
            environment.insert("DISPLAY", m_display);
        }
        if (!m_platform.isEmpty()) {
            environment.insert("QT_QPA_PLATFORM", m_platform);
        }
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60'000)) << "it hangs";
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    void ExpectRefusal(const QStringList& arguments, const std::string& line) {
        const QStringList before = FolderContents();
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "krx8-workstation: " + line + "\n");
        EXPECT_EQ(FolderContents(), before) << "nothing is written";
    }

    QString Path(const char* name) const { return m_folder.filePath(name); }
    std::string PathText(const char* name) const { return Path(name).toStdString(); }
    void Write(const QString& path, const char* text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QStringList FolderContents() const {
        QStringList contents;
        QDirIterator entries(m_folder.path(), QDir::AllEntries | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            contents << entries.next();
        }
        return contents;
    }

    QTemporaryDir m_folder;
    QString m_display; ///< none unless a test says so
    QString m_platform;
};
