// The panel's view: creation and initialisation.

#include "panel/control/KRX8Maintenance.h"

#include "tests/support/PanelFixture.h"

#include <limits>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class KRX8MaintenanceTest : public PanelFixture {
protected:
    struct Column {
        std::string heading;
        int width;
        Alignment alignment;

        friend bool operator==(const Column&, const Column&) = default;
    };

    std::vector<Column> Columns() {
        std::vector<Column> columns;
        for (const headless::HeadlessColumn& column : View().Columns(224)) {
            columns.push_back({column.heading, column.widthPixels, column.alignment});
        }
        return columns;
    }
};

// Before the view

TEST_F(KRX8MaintenanceTest, NewPanelTakesItselfForAKrx10InAnUnknownMode) {
    EXPECT_EQ(State().deviceType, DeviceType{3});
    EXPECT_EQ(State().deviceMode, DeviceMode{0});
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_EQ(State().installedPackageVersion, "");
}

TEST_F(KRX8MaintenanceTest, NaturalSizeNeedsNoView) {
    EXPECT_EQ(panel->GetNaturalSize(), (contract::PixelSize{788, 478}));
}

TEST_F(KRX8MaintenanceTest, HostMayUseAPanelWithoutView) {
    panel->Resize({1000, 700});
    panel->DestroyView();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    panel->OnConnectionStateChanged(contract::kSuccess, 5);
    panel->OnConnectionStateChanged(contract::kSuccess, 7);
    panel->OnModeChanged(1);
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
}

// Creation

TEST_F(KRX8MaintenanceTest, ViewIsCreatedAtItsNaturalSize) {
    StartView();
    EXPECT_EQ(View().Template().id, 103);
    EXPECT_EQ(View().GetClientSize(), (Size{788, 478}));
}

TEST_F(KRX8MaintenanceTest, SecondViewIsRefused) {
    StartView();
    TakeCalls();
    EXPECT_EQ(panel->CreateView(nullptr), contract::Status::FromBits(0x80004005));
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(KRX8MaintenanceTest, ViewAfterTheViewsEndIsRefused) {
    StartView();
    panel->DestroyView();
    EXPECT_EQ(panel->CreateView(nullptr), contract::Status::FromBits(0x80004005));
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
}

TEST_F(KRX8MaintenanceTest, ViewThatCannotBeMadeMayBeTriedAgain) {
    desktop->failingViews = 2;
    int parent = 0;
    EXPECT_EQ(panel->CreateView(&parent), contract::Status::FromBits(0x80004005));
    EXPECT_EQ(panel->CreateView(nullptr), contract::Status::FromBits(0x80004003));
    EXPECT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    EXPECT_NE(desktop->windows.PanelView(), nullptr);
}

TEST_F(KRX8MaintenanceTest, ViewWithinTheViewsCreationIsRefused) {
    faults->RunBefore({1, "Context.QueryHostViewControl"}, [this] {
        EXPECT_EQ(panel->CreateView(nullptr), contract::Status::FromBits(0x80004005));
    });
    StartView();
    EXPECT_EQ(faults->Calls("Context.QueryHostViewControl"), 1u);
    EXPECT_EQ(View().Captures().size(), 21u);
}

TEST_F(KRX8MaintenanceTest, ViewDestroyedWhileItIsMadeIsGone) {
    faults->RunBefore({1, "Context.QueryHostViewControl"}, [this] { panel->DestroyView(); });
    ASSERT_EQ(panel->SetContext(interception.Wrap(host.Context())), contract::kSuccess);
    EXPECT_EQ(panel->CreateView(nullptr), contract::Status::FromBits(0x80004005));
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
    panel->Resize({1000, 700});
}

// Initialisation

TEST_F(KRX8MaintenanceTest, InitialisationAsksTheContextForTheViewControlAlone) {
    StartView();
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Register", "Context.QueryHostViewControl"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceTest, InitialisationReleasesTheViewControl) {
    const auto references = viewControl.use_count();
    StartView();
    EXPECT_EQ(viewControl.use_count(), references);
}

TEST_F(KRX8MaintenanceTest, InitialisationCapturesControlsInTheirOrder) {
    StartView();
    EXPECT_THAT(View().Captures(), ElementsAre(259, 234, 223, 226, 222, 227, 228, 224, 229, 9, 230,
                                               246, 201, 211, 212, 217, 218, 219, 221, 245, 244));
}

TEST_F(KRX8MaintenanceTest, InitialisationRemovesTheLogsLimit) {
    StartView();
    EXPECT_EQ(View().TextLimit(259), std::numeric_limits<std::size_t>::max());
}

TEST_F(KRX8MaintenanceTest, InitialisationInsertsSevenColumns) {
    StartView();
    EXPECT_THAT(Columns(), ElementsAre(Column{"File name", 120, Alignment::Left},
                                       Column{"Type", 55, Alignment::Left},
                                       Column{"File ID", 44, Alignment::Right},
                                       Column{"Version", 80, Alignment::Left},
                                       Column{"Size (B)", 80, Alignment::Right},
                                       Column{"Location", 55, Alignment::Left},
                                       Column{"Generation", 55, Alignment::Left}));
}

TEST_F(KRX8MaintenanceTest, InitialisationFocusesUpdate) {
    StartView();
    EXPECT_EQ(View().GetFocus(), 226);
}

TEST_F(KRX8MaintenanceTest, UpdateHasTheFocusOnceTheDeviceIsThere) {
    StartPanel();
    ConnectDevice(kKrx20);
    EXPECT_EQ(View().GetFocus(), 226);
    EXPECT_TRUE(IsEnabled(226));
}

TEST_F(KRX8MaintenanceTest, TemplateStateStandsUntilTheFirstDevice) {
    StartPanel();
    EXPECT_EQ(Field(201), "KRX-8 Info");
    for (const ControlId id : {244, 245, 9, 230}) {
        EXPECT_TRUE(IsEnabled(id)) << id;
    }
    for (const ControlId id : {224, 226, 227, 228, 229, 222, 246}) {
        EXPECT_FALSE(IsEnabled(id)) << id;
    }
    EXPECT_TRUE(View().IsVisible(230));
    EXPECT_FALSE(View().IsVisible(253));
    EXPECT_FALSE(View().IsVisible(254));
}

TEST_F(KRX8MaintenanceTest, ViewMayEndBeforeThePanel) {
    StartPanel();
    ConnectDevice(kKrx20);
    panel->DestroyView();
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
    panel->Resize({1000, 700});
    DisconnectDevice();
    ConnectDevice(kKrx10);
    EXPECT_EQ(State().deviceType, DeviceType{3});
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

// The inert view

class InertViewTest : public KRX8MaintenanceTest {
protected:
    void ExpectInert() {
        EXPECT_FALSE(View().IsVisible(230));
        EXPECT_THAT(View().Captures(), IsEmpty());
        EXPECT_THAT(Columns(), IsEmpty());
        EXPECT_EQ(View().TextLimit(259), 30000u);
        EXPECT_EQ(View().GetFocus(), 0);
    }
};

TEST_F(InertViewTest, HostWithoutViewControlGetsABareView) {
    host.SetHostViewControl(nullptr);
    StartView();
    ExpectInert();
}

TEST_F(InertViewTest, ViewControlThatIsNullGivesABareView) {
    faults->DeliverNull({1, "Context.QueryHostViewControl"});
    StartView();
    ExpectInert();
}

TEST_F(InertViewTest, ViewBeforeTheContextStaysBareForGood) {
    ASSERT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    ASSERT_EQ(panel->SetContextAndRegister(interception.Wrap(host.Context())), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Register"));
    ExpectInert();
}

TEST_F(InertViewTest, BareViewOutlivesAWholeConnection) {
    host.SetHostViewControl(nullptr);
    StartPanel();
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(212), "");
    EXPECT_EQ(Field(201), "KRX-8 Info");
    EXPECT_EQ(RowCount(), 0);
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_FALSE(IsEnabled(226));
    DisconnectDevice();
    ExpectInert();
}

TEST_F(InertViewTest, BareViewStillShowsWhatIsAddressedById) {
    host.SetHostViewControl(nullptr);
    StartPanel();
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(213), "8388608");
    EXPECT_EQ(Field(215), "2097152");
    panel->Output().ShowTaskProgress("Task", 1, 2);
    EXPECT_EQ(Field(254), "Task  50.0%");
}

TEST_F(InertViewTest, BareViewIsNotLaidOut) {
    host.SetHostViewControl(nullptr);
    StartView();
    const Rectangle help = View().GetRectangle(9);
    const Rectangle list = View().GetRectangle(224);
    panel->Resize({1000, 700});
    EXPECT_EQ(View().GetClientSize(), (Size{1000, 700}));
    EXPECT_EQ(View().GetRectangle(9), help);
    EXPECT_EQ(View().GetRectangle(224), list);
}

TEST_F(InertViewTest, CloseWithoutContextDoesNothing) {
    ASSERT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    panel->OnCommand(230);
    EXPECT_EQ(viewControl->closeRequests, 0);
}

TEST_F(InertViewTest, BareViewStillShowsHelp) {
    host.SetHostViewControl(nullptr);
    StartView();
    EXPECT_TRUE(PressButton(9));
    EXPECT_EQ(desktop->helps.size(), 1u);
}

}
