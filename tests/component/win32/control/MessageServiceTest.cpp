// The host's message boxes, found by their class.

#include "tests/component/win32/control/ControlFixture.h"

#include "contract/ErrorInfo.h"
#include "panel/control/PanelTemplate.h"
#include "tests/support/win32/MessageServiceClass.h"

#include <commctrl.h>

namespace controltests {

namespace {

using support::CMessageServiceDouble;
using support::Shown;

class MessageServiceFixture : public ControlFixture {
protected:
    void TearDown() override {
        m_services.reset();
        ControlFixture::TearDown();
    }

    void RegisterService() {
        host->messageService = service;
        m_services.emplace(bridge);
        m_services->SetContext(host);
    }

    const std::shared_ptr<CMessageServiceDouble> service =
        std::make_shared<CMessageServiceDouble>();

private:
    std::optional<support::CMessageServices> m_services;
};

class MessageServiceTest : public MessageServiceFixture {
protected:
    void SetUp() override {
        StartConnected();
        host->device->inside = [](const std::string& call) {
            if (call != "RequestMode(4)") {
                return contract::kSuccess;
            }
            contract::SetErrorInfo("The plug is loose");
            return contract::kUnspecifiedFailure;
        };
    }
};

TEST_F(MessageServiceTest, ServiceOfTheHostShowsTheReportWithItsDescription) {
    RegisterService();
    EXPECT_TRUE(Press(panel::kResetButton));
    const Shown expected{"Resetting prommer.", "Prommer Maintenance", 0x10, E_FAIL,
                         "The plug is loose"};
    EXPECT_EQ(service->shown, std::vector{expected});
}

TEST_F(MessageServiceTest, AnswerOfTheServiceCounts) {
    RegisterService();
    service->answers = {6};
    User().ClickRow(panel::kFileList, 2);
    EXPECT_TRUE(Press(panel::kDeleteButton));
    EXPECT_EQ(host->device->calls, Calls{"DeleteFile(22, 3)"});
}

TEST_F(MessageServiceTest, ServiceThatFailsLeavesThePlainBox) {
    RegisterService();
    service->status = contract::kUnspecifiedFailure;
    prompts.ExpectBox(1);
    EXPECT_TRUE(Press(panel::kResetButton));
    EXPECT_EQ(prompts.Boxes().at(0).text, "Resetting prommer.\nHRESULT 0x80004005 (-2147467259)");
}

TEST_F(MessageServiceTest, HostWithoutServiceGetsThePlainBox) {
    prompts.ExpectBox(1);
    EXPECT_TRUE(Press(panel::kResetButton));
    EXPECT_EQ(prompts.Boxes().at(0).caption, "Prommer Maintenance");
    EXPECT_EQ(prompts.Boxes().at(0).style, 0x10u);
}

TEST_F(MessageServiceTest, ControlReleasedInsideTheServiceEnds) {
    RegisterService();
    service->whileOpen = [&] { container.Release(); };
    Press(panel::kResetButton);
    EXPECT_EQ(service->shown.size(), 1u);
}

class NoContextTest : public MessageServiceFixture {};

TEST_F(NoContextTest, ServiceIsFoundByItsClassAllTheSame) {
    RegisterService();
    EXPECT_EQ(container.As<ISetSubsystemAccess>()->SetSubsystemAccess(nullptr), E_POINTER);
    const Shown expected{"Connecting to KxProgrammingDevice subsystem failed", "SetSubsystemAccess",
                         0x10, E_POINTER, ""};
    EXPECT_EQ(service->shown, std::vector{expected});
}

TEST_F(NoContextTest, ServiceDoesNotMakeTheViewMoreThanABareOne) {
    RegisterService();
    container.Embed();
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_FALSE(IsWindowVisible(container.Button(panel::kCloseButton)));
    const auto header = reinterpret_cast<HWND>(
        SendMessageW(container.Button(panel::kFileList), LVM_GETHEADER, 0, 0));
    EXPECT_EQ(Header_GetItemCount(header), 0);
}

}

}
