#include "panel/device/DeviceEvents.h"

#include "panel/control/Trace.h"
#include "tests/support/PanelFixture.h"

#include <ostream>
#include <string>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class DeviceEventsTest : public PanelFixture {
protected:
    void SetUp() override {
        StartPanel();
        host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20)));
        TakeCalls();
    }
    CDevice& Device() { return *host.Device(); }
    int Mode() { return static_cast<int>(State().deviceMode); }
};

struct NamedMode {
    std::int32_t mode;
    const char* line;
    /// Empty for a mode that is known.
    const char* trace;

    friend std::ostream& operator<<(std::ostream& out, const NamedMode& named) {
        return out << named.mode;
    }
};

class NamedModeTest : public DeviceEventsTest, public testing::WithParamInterface<NamedMode> {};

TEST_P(NamedModeTest, ModeIsStoredAndNamedInTheLog) {
    Device().RaiseMode(GetParam().mode);
    EXPECT_EQ(Mode(), GetParam().mode);
    EXPECT_THAT(Log(), ElementsAre(GetParam().line));
}

TEST_P(NamedModeTest, OnlyAnUnknownModeIsTracedInDebugBuilds) {
    Device().RaiseMode(GetParam().mode);
    const std::string trace = GetParam().trace;
    if (kTraceLines && !trace.empty()) {
        EXPECT_THAT(desktop->traceLines, ElementsAre(trace));
    } else {
        EXPECT_THAT(desktop->traceLines, IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Modes, NamedModeTest,
    testing::Values(
        NamedMode{1, "Programming Device is in Normal mode", ""},
        NamedMode{2, "Programming Device is in Service mode", ""},
        NamedMode{3, "Programming Device is in Maintenance mode", ""},
        NamedMode{0, "Programming Device is in Unknown mode",
                  "CKRX8Maintenance::ModeEnumToStr: Unknown mode constant value 0"},
        NamedMode{4, "Programming Device is in Unknown mode",
                  "CKRX8Maintenance::ModeEnumToStr: Unknown mode constant value 4"},
        NamedMode{7, "Programming Device is in Unknown mode",
                  "CKRX8Maintenance::ModeEnumToStr: Unknown mode constant value 7"},
        NamedMode{-1, "Programming Device is in Unknown mode",
                  "CKRX8Maintenance::ModeEnumToStr: Unknown mode constant value 4294967295"}));

TEST_F(DeviceEventsTest, RepeatedModeWritesOneLine) {
    Device().RaiseMode(2);
    Device().RaiseMode(2);
    EXPECT_THAT(Log(), ElementsAre("Programming Device is in Service mode"));
}

TEST_F(DeviceEventsTest, RepeatedModeAfterAnotherLineIsWrittenAgain) {
    Device().RaiseMode(2);
    Device().RaiseMessage("Erasing", 1, 2);
    Device().RaiseMode(2);
    EXPECT_THAT(Log(), ElementsAre("Programming Device is in Service mode", "Erasing 50%",
                                   "Programming Device is in Service mode"));
}

TEST_F(DeviceEventsTest, UnknownModesShareOneLineButEachIsStored) {
    Device().RaiseMode(7);
    Device().RaiseMode(8);
    EXPECT_THAT(Log(), ElementsAre("Programming Device is in Unknown mode"));
    EXPECT_EQ(Mode(), 8);
}

TEST_F(DeviceEventsTest, ModeNeitherRefreshesNorEnables) {
    Device().RaiseMode(1);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_FALSE(IsEnabled(226));
    EXPECT_EQ(Field(201), "KRX-8 Info");
    RaiseState(7);
    TakeCalls();
    Device().RaiseMode(2);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_TRUE(IsEnabled(226));
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(DeviceEventsTest, MessageWithTotalIsAProgressLine) {
    Device().RaiseMessage("Deleting files", 1, 3);
    Device().RaiseMessage("Deleting files", 3, 3);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 33%", "Deleting files 100%"));
}

TEST_F(DeviceEventsTest, MessageWithoutTotalIsAPlainLine) {
    Device().RaiseMessage("Deleting files", 5, 0);
    EXPECT_THAT(Log(), ElementsAre("Deleting files"));
}

TEST_F(DeviceEventsTest, MessageWithoutTextWritesNothing) {
    Device().RaiseMessage("", 1, 3);
    Device().RaiseMessage("", 0, 0);
    EXPECT_EQ(View().GetText(259), "");
}

TEST_F(DeviceEventsTest, MessageTextIsShownAsItIs) {
    Device().RaiseMessage("100%s l\xC3\xB6schen &x", 0, 0);
    EXPECT_THAT(Log(), ElementsAre("100%s l\xC3\xB6schen &x"));
}

TEST_F(DeviceEventsTest, MessageChangesNothingButTheLog) {
    Device().RaiseMessage("Deleting files", 1, 3);
    EXPECT_EQ(Mode(), 0);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_FALSE(View().IsVisible(253));
}

TEST_F(DeviceEventsTest, ThirdEventChangesNothing) {
    Device().RaiseEvent3(1, 2);
    EXPECT_EQ(View().GetText(259), "");
    EXPECT_EQ(Mode(), 0);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(DeviceEventsTest, EventsWithoutViewAreHandled) {
    panel->DestroyView();
    Device().RaiseMode(3);
    Device().RaiseMessage("Deleting files", 1, 3);
    EXPECT_EQ(Mode(), 3);
}

}
