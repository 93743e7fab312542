// A host that lets go of the control, or closes it, inside something that the control does.

#include "tests/component/win32/control/ControlFixture.h"

#include "panel/control/PanelTemplate.h"
#include "tests/frontend/win32/Input.h"

#include <algorithm>

namespace controltests {

namespace {

constexpr int kOk = 1;
constexpr int kYes = 6;
constexpr int kNothing = 0;

struct End {
    const char* name;
    void (*act)(CContainer& container);
};

void PrintTo(const End& end, std::ostream* out) { *out << end.name; }

class ReleaseInsideTest : public ControlFixture, public testing::WithParamInterface<End> {
protected:
    void SetUp() override {
        StartConnected();
        ASSERT_EQ(container.ActivateForUser(), S_OK);
        container.Pump();
    }

    void EndControl() { GetParam().act(container); }
    /// The control ends inside the first call of that name, which then returns `status`.
    void EndInside(const std::string& call, contract::Status status = contract::kSuccess) {
        host->device->inside = [this, call, status](const std::string& made) {
            if (made != call) {
                return contract::kSuccess;
            }
            host->device->inside = {};
            EndControl();
            return status;
        };
    }
};

TEST_P(ReleaseInsideTest, ARequestToCloseThePanel) {
    host->viewControl->onClose = [&] { EndControl(); };
    Press(panel::kCloseButton);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_P(ReleaseInsideTest, AConnectionEvent) {
    EndInside("GetFileListing");
    host->RaiseState(7);
    EXPECT_EQ(container.Window(), nullptr);
}

TEST_P(ReleaseInsideTest, ADeviceCallOfACommand) {
    EndInside("RequestMode(4)");
    Press(panel::kResetButton);
    EXPECT_EQ(host->device->calls, Calls{"RequestMode(4)"});
}

TEST_P(ReleaseInsideTest, ADeviceCallThatThenFails) {
    EndInside("RequestMode(4)", contract::kUnspecifiedFailure);
    prompts.ExpectBox(kOk);
    Press(panel::kResetButton);
    EXPECT_EQ(host->device->calls, Calls{"RequestMode(4)"});
}

TEST_P(ReleaseInsideTest, AConnectionEventWhoseCallThenFails) {
    EndInside("GetSelfTestResults", contract::kUnspecifiedFailure);
    prompts.ExpectBox(kOk);
    host->RaiseState(7);
    EXPECT_EQ(container.Window(), nullptr);
}

TEST_P(ReleaseInsideTest, TheQuestionOfAButton) {
    User().ClickRow(panel::kFileList, 1);
    prompts.ExpectBox(kYes, [&] { EndControl(); });
    Press(panel::kDeleteButton);
    EXPECT_EQ(prompts.Boxes().size(), 1u);
}

TEST_P(ReleaseInsideTest, TheQuestionOfTheDeleteKeyInTheList) {
    User().ClickRow(panel::kFileList, 1);
    prompts.ExpectBox(kYes, [&] { EndControl(); });
    container.Press(VK_DELETE);
    EXPECT_EQ(prompts.Boxes().size(), 1u);
}

TEST_P(ReleaseInsideTest, TheMenuOfTheList) {
    prompts.ExpectMenu(kNothing, [&] { EndControl(); });
    User().RightClickRow(panel::kFileList, 0);
    EXPECT_EQ(prompts.Menus().size(), 1u);
}

TEST_P(ReleaseInsideTest, ADialog) {
    prompts.ExpectDialog([&](conformance::IViewUser& user) {
        EndControl();
        EXPECT_TRUE(user.Press(kOk));
    });
    Press(panel::kDetailsButton);
}

TEST_P(ReleaseInsideTest, AFileDialog) {
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser&) { EndControl(); });
    Press(panel::kUpdateButton);
    EXPECT_EQ(host->device->calls, Calls{});
}

TEST_P(ReleaseInsideTest, AKeyThatPressesAButton) {
    host->viewControl->onClose = [&] { EndControl(); };
    SetFocus(container.Button(panel::kCloseButton));
    container.Press(VK_RETURN);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

constexpr End kEnds[] = {
    {"Release", [](CContainer& container) { container.Release(); }},
    {"Close", [](CContainer& container) { container.As<IOleObject>()->Close(OLECLOSE_NOSAVE); }},
    {"SetClientSiteAndRelease",
     [](CContainer& container) {
         container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
         container.As<IOleObject>()->SetClientSite(nullptr);
         container.Release();
     }},
    {"InPlaceDeactivate",
     [](CContainer& container) { container.As<IOleInPlaceObject>()->InPlaceDeactivate(); }},
};

INSTANTIATE_TEST_SUITE_P(All, ReleaseInsideTest, testing::ValuesIn(kEnds));

/// A way in which the control's own window begins its UI activation.
struct Beginning {
    const char* name;
    void (*act)(CContainer& container);
};

void PrintTo(const Beginning& beginning, std::ostream* out) { *out << beginning.name; }

class ReleaseInsideOwnActivationTest : public ControlFixture,
                                       public testing::WithParamInterface<Beginning> {
protected:
    /// Lets go of a control inside the call of that name, and returns all calls that came; those
    /// from `returned` on came after it had returned.
    static Calls RunReleasing(CContainer& own, const std::string& call, std::size_t& returned) {
        Calls before;
        own.Record().TakeCalls();
        own.Record().Inside([&](const std::string& made) {
            if (made == call) {
                own.Record().Inside({});
                own.Release();
                before = own.Record().TakeCalls();
            }
        });
        GetParam().act(own);
        own.Pump();
        // The frame and the document may have been given the control after that.
        own.Release();
        own.Pump();
        returned = before.size();
        const Calls after = own.Record().TakeCalls();
        before.insert(before.end(), after.begin(), after.end());
        return before;
    }
};

TEST_P(ReleaseInsideOwnActivationTest, EndsTheControlAfterTheCall) {
    container.Release();
    for (const char* call :
         {"OnUIActivate", "frame.SetActiveObject", "frame.SetBorderSpace",
          "document.SetActiveObject", "document.SetBorderSpace", "OnFocus(true)"}) {
        SCOPED_TRACE(call);
        CContainer own(library, window->Get());
        own.Embed();
        ASSERT_EQ(own.Activate(), S_OK);
        std::size_t returned = 0;
        const Calls calls = RunReleasing(own, call, returned);
        ASSERT_GT(returned, 0u);
        EXPECT_EQ(calls[returned - 1], call);
        EXPECT_EQ(std::ranges::count(calls, "OnUIDeactivate"), 1);
        EXPECT_EQ(std::ranges::count(calls, "OnInPlaceDeactivate"), 1);
        EXPECT_EQ(own.Site().Outstanding(), 0u);
        ExpectNothingLeft();
    }
}

constexpr Beginning kBeginnings[] = {
    {"Click",
     [](CContainer& container) { win32tests::ClickCentre(container.Button(panel::kStatusLog)); }},
    {"FocusForItsWindow", [](CContainer& container) { SetFocus(container.Window()); }},
};

INSTANTIATE_TEST_SUITE_P(All, ReleaseInsideOwnActivationTest, testing::ValuesIn(kBeginnings));

}

}
