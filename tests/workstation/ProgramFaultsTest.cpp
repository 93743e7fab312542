#include "tests/workstation/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

#include <string>

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// Runs with devices that go wrong, which nobody is there to answer for.
class ProgramFaultsTest : public ProgramRun {
protected:
    /// Makes the folder of a healthy device, apart from `knobs`.
    QString Device(const char* knobs) {
        EXPECT_TRUE(QDir(m_folder.path()).mkpath("device/files"));
        Write(Path("device/files/a.fg"), "content");
        Write(Path("device/files/version.fia"), "1.0");
        Write(Path("device/device.json"), (std::string(R"({
  "model": "KRX-20", "mode": "Normal", "serialNumber": 7, "hardwareVersion": "C1.2",
  "memory": { "ramBytes": 1000, "flashBytes": 2000 },
  "network": { "useDhcp": false, "ipAddress": "192.0.2.20" },
  "files": [ { "name": "a.fg", "type": "algorithm", "id": 1, "location": "Flash" },
             { "name": "version.fia", "type": "mcuSoftware", "id": 2, "version": "1.0",
               "location": "Flash" } ],
)") + knobs + "\n}\n")
                                              .c_str());
        return Path("device");
    }
};

constexpr char kFailingCall[] =
    R"("faults": [ { "operation": "ProgrammingDeviceControl.GetSoftwareInfo", "call": 1,
                     "status": "0x80004005", "description": "The cable is broken" } ])";
constexpr char kBoxOfTheFailingCall[] = "Box \"Prommer Maintenance\":\n"
                                        "    Software Info request failed\n"
                                        "    HRESULT 0x80004005 (-2147467259)\n"
                                        "    The cable is broken\n"
                                        "Answered: OK\n";

TEST_F(ProgramFaultsTest, FailingCallIsToldAndAnsweredAboveTheText) {
    const Outcome outcome = Run({"--device", Device(kFailingCall), "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, StartsWith(std::string(kBoxOfTheFailingCall) + "KRX-20 Info\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\na.fg "));
}

TEST_F(ProgramFaultsTest, FailingCallIsToldAndAnsweredBeforeTheSnapshot) {
    const Outcome outcome =
        Run({"--device", Device(kFailingCall), "--snapshot", Path("window.png")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, std::string(kBoxOfTheFailingCall) + "The window is drawn in " +
                                  PathText("window.png") + "\n");
    EXPECT_FALSE(QImage(Path("window.png"), "PNG").isNull());
}

TEST_F(ProgramFaultsTest, MissingObjectIsTold) {
    const Outcome outcome = Run({"--device", Device(R"("faults": [
        { "operation": "ProgrammingDeviceControl.GetFileListing", "call": 1, "null": true } ])"),
                                 "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("Box \"Prommer Maintenance\":\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n    HRESULT 0x80004003 ("));
    EXPECT_THAT(outcome.output, Not(HasSubstr("\na.fg ")));
}

TEST_F(ProgramFaultsTest, DeviceLostWhileItIsReadIsToldAndShownAsFarAsItWasRead) {
    const Outcome outcome = Run(
        {"--device",
         Device(R"("loss": { "operation": "ProgrammingDeviceControl.GetFileListing", "call": 1 })"),
         "--text", "--snapshot", Path("window.png")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, HasSubstr("\n    HRESULT 0x8007048f ("));
    EXPECT_THAT(outcome.output, HasSubstr("\nKRX-20 Info\n"));
    EXPECT_FALSE(QImage(Path("window.png"), "PNG").isNull());
}

TEST_F(ProgramFaultsTest, SlowDeviceIsWaitedFor) {
    const Outcome outcome = Run({"--device", Device(R"("latency": { "operationsMs": {
        "ProgrammingDeviceControl.GetFileListing": 150 } })"),
                                 "--text"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("KRX-20 Info\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\na.fg "));
}

TEST_F(ProgramFaultsTest, MissingStoredFileIsRefused) {
    const QString device = Device(R"("faults": [])");
    ASSERT_TRUE(QFile::remove(Path("device/files/a.fg")));
    ExpectRefusal({"--device", device, "--text"},
                  PathText("device/device.json") +
                      ":5: \"files[0]\" is stored in \"files/a.fg\", which is missing");
}

TEST_F(ProgramFaultsTest, UnknownKeyIsRefused) {
    ExpectRefusal({"--device", Device(R"("colour": "red")"), "--snapshot", Path("window.png")},
                  PathText("device/device.json") + ":8: \"colour\" is not a known key");
}

}
