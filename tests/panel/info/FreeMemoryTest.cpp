#include "tests/support/RoomFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class FreeMemoryTest : public RoomFixture {
protected:
    void SetUp() override {
        RoomFixture::SetUp();
        View().SetText(kFreeRamField, "11");
        View().SetText(kFreeFlashField, "22");
    }

    void Enter(std::int32_t type, std::int32_t mode) {
        Insert(HealthyDevice(type));
        State().deviceType = static_cast<DeviceType>(type);
        State().deviceMode = static_cast<DeviceMode>(mode);
    }

    void UpdateFreeMemory() { rooms->freeMemory.UpdateFreeMemory(); }
};

TEST_F(FreeMemoryTest, UpdateAsksInOrderAndShowsBothAmounts) {
    Enter(kKrx20, 1);
    UpdateFreeMemory();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceControl.GetFreeResources",
                            "FreeResources.GetFreeRamSize", "FreeResources.GetFreeFlashSize"));
    EXPECT_EQ(Field(kFreeRamField), "2097152");
    EXPECT_EQ(Field(kFreeFlashField), "8385602");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(FreeMemoryTest, UpdateWritesItsLogLineBeforeAsking) {
    Enter(kKrx20, 1);
    std::vector<std::string> log;
    faults->RunBefore({1, "ProgrammingDeviceControl.GetFreeResources"}, [&] { log = Log(); });
    UpdateFreeMemory();
    EXPECT_THAT(log, ElementsAre("Querying free memory resources"));
    EXPECT_EQ(Log(), log);
}

TEST_F(FreeMemoryTest, LargestAmountsAreShownUnsigned) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.totalRamBytes = 4294967295u;
    device.totalFlashBytes = 2147483648u;
    device.files.clear();
    Insert(device);
    UpdateFreeMemory();
    EXPECT_EQ(Field(kFreeRamField), "4294967295");
    EXPECT_EQ(Field(kFreeFlashField), "2147483648");
}

TEST_F(FreeMemoryTest, UpdateReleasesWhatItObtained) {
    Enter(kKrx20, 1);
    const auto wrappers = interception.LiveWrappers();
    UpdateFreeMemory();
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

// Which devices are asked

struct ModeCase {
    std::int32_t type;
    std::int32_t mode;
};

void PrintTo(const ModeCase& value, std::ostream* out) {
    *out << "type " << value.type << ", mode " << value.mode;
}

class UnaskedDeviceTest : public FreeMemoryTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(UnaskedDeviceTest, Krx8OutsideNormalModeShowsZero) {
    Enter(GetParam().type, GetParam().mode);
    UpdateFreeMemory();
    EXPECT_EQ(Field(kFreeRamField), "0");
    EXPECT_EQ(Field(kFreeFlashField), "0");
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Modes, UnaskedDeviceTest,
                         testing::Values(ModeCase{1, 0}, ModeCase{1, 2}, ModeCase{1, 3},
                                         ModeCase{1, 7}, ModeCase{2, 0}, ModeCase{2, 2},
                                         ModeCase{2, 3}));

class AskedDeviceTest : public FreeMemoryTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(AskedDeviceTest, OtherDeviceShowsWhatItAnswers) {
    Enter(GetParam().type, GetParam().mode);
    UpdateFreeMemory();
    EXPECT_EQ(Field(kFreeRamField), "2097152");
    EXPECT_EQ(Field(kFreeFlashField), "8385602");
}

INSTANTIATE_TEST_SUITE_P(Modes, AskedDeviceTest,
                         testing::Values(ModeCase{1, 1}, ModeCase{2, 1}, ModeCase{3, 0},
                                         ModeCase{3, 2}, ModeCase{4, 2}, ModeCase{4, 3},
                                         ModeCase{5, 2}, ModeCase{6, 2}, ModeCase{0, 2}));

// Failures

struct FailureCase {
    const char* operation;
    const char* text;
    const char* freeRam;
    std::size_t calls;
};

void PrintTo(const FailureCase& value, std::ostream* out) { *out << value.operation; }

class FreeMemoryFailureTest : public FreeMemoryTest,
                              public testing::WithParamInterface<FailureCase> {};

TEST_P(FreeMemoryFailureTest, FailingStepIsReportedAndKeepsTheFields) {
    Enter(kKrx20, 1);
    const auto wrappers = interception.LiveWrappers();
    faults->Fail({1, GetParam().operation}, {contract::Status::FromBits(0x80070079), "too slow"});
    UpdateFreeMemory();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(GetParam().text, "Update Free memory",
                                        contract::Status::FromBits(0x80070079), "too slow")));
    EXPECT_EQ(Field(kFreeRamField), GetParam().freeRam);
    EXPECT_EQ(Field(kFreeFlashField), "22");
    EXPECT_THAT(Log(), ElementsAre("Querying free memory resources"));
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
    EXPECT_EQ(TakeCalls().size(), GetParam().calls + 2) << "besides the two calls of the box";
}

INSTANTIATE_TEST_SUITE_P(Steps, FreeMemoryFailureTest,
                         testing::Values(FailureCase{"ProgrammingDeviceControl.GetFreeResources",
                                                     "Free resources query failed", "11", 1},
                                         FailureCase{"FreeResources.GetFreeRamSize",
                                                     "Free RAM size query failed", "11", 2},
                                         FailureCase{"FreeResources.GetFreeFlashSize",
                                                     "Free Flash size query failed", "2097152",
                                                     3}));

TEST_F(FreeMemoryTest, NullResourcesCountAsAFailedQuery) {
    Enter(kKrx20, 1);
    faults->DeliverNull({1, "ProgrammingDeviceControl.GetFreeResources"});
    UpdateFreeMemory();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Free resources query failed", "Update Free memory",
                                        contract::Status::FromBits(0x80004003))));
    EXPECT_EQ(Field(kFreeRamField), "11");
}

TEST_F(FreeMemoryTest, UpdateWithoutControlIsAFailedQuery) {
    UpdateFreeMemory();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Free resources query failed", "Update Free memory",
                                        contract::Status::FromBits(0x80004003))));
    EXPECT_THAT(Log(), ElementsAre("Querying free memory resources"));
}

TEST_F(FreeMemoryTest, FailureCarriesNoOlderDescription) {
    Enter(kKrx20, 1);
    faults->RunAfter({1, "FreeResources.GetFreeRamSize"},
                     [] { contract::SetErrorInfo("left by a success"); });
    faults->Fail({1, "FreeResources.GetFreeFlashSize"});
    UpdateFreeMemory();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Free Flash size query failed", "Update Free memory",
                                        contract::kUnspecifiedFailure)));
}

}
