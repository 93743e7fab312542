#include "contract/device/Krx10Control.h"
#include "contract/device/SelfTestResults.h"
#include "tests/simulator/WritingFixture.h"

namespace simulator {
namespace {

using contract::Medium;
using contract::ModeRequest;
using contract::SelfTest;
using NameList = std::vector<std::string>;

/// PrepareMedia, RerunMediaTests and the self-tests of a restart.
class MediaTest : public WritingFixture {
protected:
    void SetUp() override {
        m_description = SmallDevice(kKrx10);
        m_description.files = {{"a_2nd.fia", 19, 1, "1", 100, kInRam, 0, ""},
                               {"b_mcu.fia", 22, 2, "1", 200, kInFlash, 0, ""},
                               {"c_alg.fia", 21, 3, "1", 300, kOnPcCard, 0, ""}};
        m_description.selfTests = {{SelfTest::ZtwcdcDriver, 0}, {SelfTest::MmcrDriver, 0}};
        Connect(m_description);
    }
    contract::Status Prepare(Medium medium) {
        return ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control)
            ->PrepareMedia(medium);
    }
    std::int32_t CodeOf(SelfTest test) {
        const auto results =
            ObjectOf(*Control(), &contract::IProgrammingDeviceControl::GetSelfTestResults);
        std::int32_t code = -1;
        EXPECT_EQ(results->GetResult(test, code), contract::kSuccess);
        return code;
    }
    void Reset() { EXPECT_EQ(Control()->RequestMode(ModeRequest::Reset), contract::kSuccess); }

    DeviceDescription m_description;
};

TEST_F(MediaTest, PrepareInternalFlashEmptiesItAndLeavesNormalMode) {
    EXPECT_EQ(Prepare(Medium::InternalFlash), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "c_alg.fia"}));
    EXPECT_EQ(m_device->FreeFlashBytes(), 10000u);
    EXPECT_EQ(m_log->events, (Events{"message Formatting the internal flash 0/0", "mode 3"}));
    EXPECT_EQ(CodeOf(SelfTest::ZtwcdcDriver), 787);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 0);
}

TEST_F(MediaTest, PrepareCardEmptiesItAndLeavesNormalMode) {
    EXPECT_EQ(Prepare(Medium::PcCard), contract::kSuccess);
    EXPECT_EQ(Names(), (NameList{"a_2nd.fia", "b_mcu.fia"}));
    EXPECT_EQ(m_log->events, (Events{"message Formatting the memory card 0/0", "mode 3"}));
    EXPECT_EQ(CodeOf(SelfTest::ZtwcdcDriver), 0);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 787);
}

TEST_F(MediaTest, BothMediaAreBroughtBackAndTestedAgain) {
    EXPECT_EQ(Prepare(Medium::InternalFlash), contract::kSuccess);
    EXPECT_EQ(Prepare(Medium::PcCard), contract::kSuccess);
    EXPECT_EQ(Control()->RequestMode(ModeRequest::Normal), contract::kSuccess);
    EXPECT_EQ(m_device->Mode(), 1);
    EXPECT_EQ(CodeOf(SelfTest::ZtwcdcDriver), 787);
    EXPECT_EQ(Control()->RerunMediaTests(0x10000), contract::kSuccess);
    EXPECT_EQ(CodeOf(SelfTest::ZtwcdcDriver), 0);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 787);
    EXPECT_EQ(Control()->RerunMediaTests(0x12000), contract::kSuccess);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 0);
}

TEST_F(MediaTest, PrepareMissingCardFails) {
    m_description.pcCard.reset();
    Connect(m_description);
    ExpectFailure(Prepare(Medium::PcCard), 0x80070015, "There is no memory card in the device");
    EXPECT_EQ(m_device->State(), m_description);
    EXPECT_EQ(m_log->events, Events{});
}

TEST_F(MediaTest, PrepareUnknownMediumFails) {
    ExpectFailure(Prepare(static_cast<Medium>(3)), 0x80070057, "There is no medium 3");
}

TEST_F(MediaTest, RerunFindsTheMissingCard) {
    m_description.pcCard.reset();
    Connect(m_description);
    EXPECT_EQ(Control()->RerunMediaTests(0x2000), contract::kSuccess);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 812);
}

TEST_F(MediaTest, RerunLeavesADriverFault) {
    m_description.selfTests[SelfTest::MmcrDriver] = 795;
    Connect(m_description);
    EXPECT_EQ(Control()->RerunMediaTests(0x2000), contract::kSuccess);
    EXPECT_EQ(CodeOf(SelfTest::MmcrDriver), 795);
}

TEST_F(MediaTest, RerunOfOtherTestsIsRefused) {
    ExpectFailure(Control()->RerunMediaTests(1), 0x80070057,
                  "Only the tests of the media can be run again");
    Connect(SmallDevice(kKrx8));
    ExpectFailure(Control()->RerunMediaTests(0x2000), 0x80070057,
                  "This device has no tests of media");
}

TEST_F(MediaTest, ResetTestsAFormattedMedium) {
    EXPECT_EQ(Prepare(Medium::InternalFlash), contract::kSuccess);
    Reset();
    EXPECT_EQ(CodeOf(SelfTest::ZtwcdcDriver), 0);
    EXPECT_EQ(m_device->Mode(), 1);
}

TEST_F(MediaTest, ResetFindsMissingFilesAndFilesThatCame) {
    m_description.selfTests = {{SelfTest::SecondaryAndAlgorithmFiles, 0}, {SelfTest::Mcusw, 0}};
    Connect(m_description);
    EXPECT_EQ(Control()->DeleteFile(0, 0), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("version.fia", "version.fia 1.0\n")), contract::kSuccess);
    Reset();
    EXPECT_EQ(CodeOf(SelfTest::SecondaryAndAlgorithmFiles), 788);
    EXPECT_EQ(CodeOf(SelfTest::Mcusw), 788);
    EXPECT_EQ(Upload(WorkstationFile("a_alg.fia", "a")), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("a_mcu.fia", "a")), contract::kSuccess);
    EXPECT_EQ(CodeOf(SelfTest::SecondaryAndAlgorithmFiles), 788);
    Reset();
    EXPECT_EQ(CodeOf(SelfTest::SecondaryAndAlgorithmFiles), 0);
    EXPECT_EQ(CodeOf(SelfTest::Mcusw), 0);
}

TEST_F(MediaTest, VersionFileInCapitalsIsNoMcuSoftwareForTheTest) {
    m_description.selfTests = {{SelfTest::Mcusw, 0}};
    Connect(m_description);
    EXPECT_EQ(Control()->DeleteFile(0, 0), contract::kSuccess);
    EXPECT_EQ(Upload(WorkstationFile("VERSION.FIA", "VERSION.FIA 1.0\n")), contract::kSuccess);
    Reset();
    EXPECT_EQ(CodeOf(SelfTest::Mcusw), 788);
}

TEST_F(MediaTest, ResetLeavesOtherResultsAlone) {
    m_description.files.clear();
    m_description.selfTests = {{SelfTest::Mcusw, 2},
                               {SelfTest::SecondaryAndAlgorithmFiles, 787},
                               {SelfTest::Ram, 1},
                               {SelfTest::Ethernet, 796}};
    Connect(m_description);
    Reset();
    EXPECT_EQ(m_device->State(), m_description);
}

}
}
