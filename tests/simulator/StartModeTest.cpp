#include "tests/simulator/WritingFixture.h"

namespace simulator {
namespace {

using contract::SelfTest;

/// A mode that a device is found in, whether its application software has failed its self-test, and
/// the mode that the device comes back in from work that does not mend that software.
struct StartModeCase {
    const char* name;
    std::int32_t mode;
    bool hasFailed;
    std::int32_t modeAfterStart;
};

class StartModeTest : public WritingFixture, public testing::WithParamInterface<StartModeCase> {
protected:
    void SetUp() override {
        auto description = SmallDevice(kKrx8);
        description.mode = GetParam().mode;
        description.selfTests = {{SelfTest::ApplicationSw, GetParam().hasFailed ? 789 : 0},
                                 {SelfTest::FpgaCode, 1}};
        Connect(description);
    }
    contract::Status Update(const std::string& files) {
        const auto text = "[package]\nname = P\nversion = 2.0\n[common]\n" + files;
        return Control()->UpdateFromIniFile(WorkstationFile("u.ini", text));
    }
    /// The mode it is in, the one it told last and the one it is found in when it is opened again.
    void ExpectMode(std::int32_t mode) {
        EXPECT_EQ(m_device->Mode(), mode);
        EXPECT_EQ(m_log->events.back(), "mode " + std::to_string(mode));
        EXPECT_EQ(Description().mode, mode);
    }
};

TEST_P(StartModeTest, ResetStarts) {
    EXPECT_EQ(Control()->RequestMode(contract::ModeRequest::Reset), contract::kSuccess);
    ExpectMode(GetParam().modeAfterStart);
}

TEST_P(StartModeTest, FpgaUploadStarts) {
    EXPECT_EQ(Control()->UploadCode(WorkstationFile("f.bin", "f"), 0, -1, 0), contract::kSuccess);
    ExpectMode(GetParam().modeAfterStart);
}

TEST_P(StartModeTest, PartialUpdateWithoutApplicationStarts) {
    WorkstationFile("a_2nd.fia", "a");
    EXPECT_EQ(Update("file = a_2nd.fia\napplication = gone.bin\n"), contract::kPartialUpdate);
    ExpectMode(GetParam().modeAfterStart);
}

TEST_P(StartModeTest, UpdateOfFilesAloneStarts) {
    WorkstationFile("a_2nd.fia", "a");
    EXPECT_EQ(Update("file = a_2nd.fia\n"), contract::kSuccess);
    ExpectMode(GetParam().modeAfterStart);
}

TEST_P(StartModeTest, ApplicationUploadStartsInNormalMode) {
    EXPECT_EQ(Control()->UploadCode(WorkstationFile("a.bin", "a"), 1, -1, 1), contract::kSuccess);
    ExpectMode(1);
}

TEST_P(StartModeTest, PartialUpdateWithApplicationStartsInNormalMode) {
    WorkstationFile("a.bin", "a");
    EXPECT_EQ(Update("application = a.bin\nfile = gone.fia\n"), contract::kPartialUpdate);
    ExpectMode(1);
}

TEST_P(StartModeTest, UploadThatFailsOnTheWayReturnsToTheModeBefore) {
    const auto path = WorkstationFile("a.bin", "a");
    m_log->onEvent = [&] { std::filesystem::remove(path); };
    ExpectFailure(Control()->UploadCode(path, 1, -1, 1), 0x80070002,
                  "There is no file \"" + path + "\"");
    ExpectMode(GetParam().mode);
}

TEST_P(StartModeTest, UpdateThatLoadsNothingReturnsToTheModeBefore) {
    EXPECT_EQ(Update("application = gone.bin\n"), contract::Status::FromBits(0x80070002));
    ExpectMode(GetParam().mode);
}

INSTANTIATE_TEST_SUITE_P(, StartModeTest,
                         testing::Values(StartModeCase{"Normal", 1, false, 1},
                                         StartModeCase{"NormalWithFailedApplication", 1, true, 2},
                                         StartModeCase{"Service", 2, false, 2},
                                         StartModeCase{"ServiceWithFailedApplication", 2, true, 2},
                                         StartModeCase{"Maintenance", 3, false, 1},
                                         StartModeCase{"MaintenanceWithFailedApplication", 3, true,
                                                       2}),
                         [](const auto& tested) { return std::string(tested.param.name); });

}
}
