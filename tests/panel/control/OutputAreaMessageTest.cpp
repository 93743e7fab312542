// The messages of COutputArea; its log and progress are in OutputAreaTest.cpp.

#include "panel/control/OutputArea.h"

#include "contract/ErrorInfo.h"
#include "tests/support/PanelFixture.h"

#include <cstdint>
#include <optional>

namespace {

using namespace panel;
using namespace support;
using headless::ShownBox;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr contract::Status kUnspecified = contract::Status::FromBits(0x80004005);

class OutputAreaMessageTest : public PanelFixture {
protected:
    std::int32_t Show(std::optional<std::string_view> text, std::optional<std::string_view> caption,
                      std::optional<std::string_view> description = "door open",
                      std::uint32_t style = 0x10) {
        return panel->Output().ShowMessage(text, caption, kUnspecified, description, style);
    }
    const std::vector<ShownBox>& Boxes() { return desktop->prompts.Boxes(); }
};

TEST_F(OutputAreaMessageTest, MessageGoesToTheHostsService) {
    StartView();
    messageService->answers = {1};
    EXPECT_EQ(Show("Can't delete file", "Prommer Maintenance"), 1);
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"Can't delete file", "Prommer Maintenance", 0x10,
                                                  -2147467259, "door open"}));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(OutputAreaMessageTest, EveryMessageHasNoOwnerAndIsShown) {
    StartView();
    Show("a", "b");
    panel->Output().ReportError("c", "d", kUnspecified);
    ASSERT_EQ(messageService->messages.size(), 2u);
    for (const contract::Message& message : messageService->messages) {
        EXPECT_EQ(message.owner, 0);
        EXPECT_EQ(message.showFlag, 1);
    }
}

TEST_F(OutputAreaMessageTest, GivenOwnerAndShowFlagReachTheService) {
    StartView();
    panel->Output().ShowMessage("a", "b", kUnspecified, "", 0x10, 3, 4);
    panel->Output().ReportError("a", "b", kUnspecified, 0x30, 5, 6);
    ASSERT_EQ(messageService->messages.size(), 2u);
    EXPECT_EQ(messageService->messages[0].showFlag, 3);
    EXPECT_EQ(messageService->messages[0].owner, 4);
    EXPECT_EQ(messageService->messages[1].showFlag, 5);
    EXPECT_EQ(messageService->messages[1].owner, 6);
    EXPECT_EQ(messageService->messages[1].style, 0x30u);
}

TEST_F(OutputAreaMessageTest, AnswerOfAQuestionIsReturned) {
    StartView();
    messageService->answers = {6, 7};
    EXPECT_EQ(Show("Update?", "Prommer Maintenance", "", 0x24), 6);
    EXPECT_EQ(Show("Update?", "Prommer Maintenance", "", 0x24), 7);
    EXPECT_EQ(messageService->messages[0].style, 0x24u);
}

TEST_F(OutputAreaMessageTest, MissingTextOrCaptionShowsNothing) {
    StartView();
    TakeCalls();
    EXPECT_EQ(Show(std::nullopt, "Prommer Maintenance"), -1);
    EXPECT_EQ(Show("Can't delete file", std::nullopt), -1);
    EXPECT_EQ(panel->Output().ReportError(std::nullopt, "Prommer Maintenance", kUnspecified), -1);
    EXPECT_EQ(panel->Output().ReportError("Can't delete file", std::nullopt, kUnspecified), -1);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(OutputAreaMessageTest, EmptyTextAndCaptionAreShown) {
    StartView();
    EXPECT_EQ(Show("", ""), 1);
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"", "", 0x10, -2147467259, "door open"}));
}

TEST_F(OutputAreaMessageTest, MissingDescriptionIsPassedAsEmpty) {
    StartView();
    Show("a", "b", std::nullopt);
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"a", "b", 0x10, -2147467259, ""}));
}

TEST_F(OutputAreaMessageTest, ServiceIsAskedForEachMessageAndReleased) {
    StartView();
    TakeCalls();
    const auto references = messageService.use_count();
    Show("a", "b");
    Show("a", "b");
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Context.QueryMessageService", "MessageService.ShowMessage",
                            "Context.QueryMessageService", "MessageService.ShowMessage"));
    EXPECT_EQ(messageService.use_count(), references);
}

// Without the service

constexpr const char* kPlainText = "Can't delete file\r\nHRESULT 0x80004005 (-2147467259)";

TEST_F(OutputAreaMessageTest, HostWithoutServiceGetsAPlainBox) {
    host.SetMessageService(nullptr);
    StartView();
    desktop->prompts.Answer(1);
    EXPECT_EQ(Show("Can't delete file", "Prommer Maintenance"), 1);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{kPlainText, "Prommer Maintenance", 0x10, 1}));
}

TEST_F(OutputAreaMessageTest, PanelWithoutContextGetsAPlainBox) {
    desktop->prompts.Answer(1);
    EXPECT_EQ(Show("Can't delete file", "Prommer Maintenance"), 1);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{kPlainText, "Prommer Maintenance", 0x10, 1}));
}

TEST_F(OutputAreaMessageTest, ServiceThatFailsGetsAPlainBox) {
    StartView();
    faults->Fail({1, "MessageService.ShowMessage"});
    desktop->prompts.Answer(1);
    EXPECT_EQ(Show("Can't delete file", "Prommer Maintenance"), 1);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{kPlainText, "Prommer Maintenance", 0x10, 1}));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(OutputAreaMessageTest, ServiceThatIsNullGetsAPlainBox) {
    StartView();
    faults->DeliverNull({1, "Context.QueryMessageService"});
    desktop->prompts.Answer(1);
    EXPECT_EQ(Show("Can't delete file", "Prommer Maintenance"), 1);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{kPlainText, "Prommer Maintenance", 0x10, 1}));
    EXPECT_EQ(faults->Fired(), 1u);
}

TEST_F(OutputAreaMessageTest, ServiceIsTriedAgainAfterAFailure) {
    StartView();
    faults->Fail({1, "Context.QueryMessageService"});
    desktop->prompts.Answer(1);
    Show("first", "b");
    Show("second", "b");
    EXPECT_EQ(Boxes().size(), 1u);
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"second", "b", 0x10, -2147467259, "door open"}));
}

TEST_F(OutputAreaMessageTest, PlainQuestionReturnsTheButton) {
    desktop->prompts.Answer(6);
    desktop->prompts.Answer(7);
    EXPECT_EQ(Show("Update?", "Prommer Maintenance", "", 0x24), 6);
    EXPECT_EQ(Show("Update?", "Prommer Maintenance", "", 0x24), 7);
    EXPECT_EQ(Boxes().at(0).style, 0x24u);
}

TEST_F(OutputAreaMessageTest, PlainBoxOfASuccessNamesItsCodeToo) {
    desktop->prompts.Answer(1);
    panel->Output().ShowMessage("Done", "Prommer Maintenance", contract::kSuccess, "", 0x40);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{"Done\r\nHRESULT 0x00000000 (0)",
                                              "Prommer Maintenance", 0x40, 1}));
}

TEST_F(OutputAreaMessageTest, PlainBoxShowsDeviceTextsAsTheyAre) {
    desktop->prompts.Answer(1);
    panel->Output().ReportError("100% of %s", "%d", contract::Status(0x041B1010));
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{"100% of %s\r\nHRESULT 0x041b1010 (68882448)", "%d",
                                              0x10, 1}));
}

// Reports

TEST_F(OutputAreaMessageTest, ReportCarriesTheDescriptionOfTheFailingCall) {
    StartView();
    contract::SetErrorInfo("The file is locked");
    EXPECT_EQ(panel->Output().ReportError("Can't delete file", "Prommer Maintenance", kUnspecified),
              1);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport("Can't delete file", "Prommer Maintenance",
                                                        kUnspecified, "The file is locked")));
}

TEST_F(OutputAreaMessageTest, ReportTakesTheDescription) {
    StartView();
    contract::SetErrorInfo("The file is locked");
    panel->Output().ReportError("first", "b", kUnspecified);
    panel->Output().ReportError("second", "b", kUnspecified);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("first", "b", kUnspecified, "The file is locked"),
                            ErrorReport("second", "b", kUnspecified, "")));
}

TEST_F(OutputAreaMessageTest, MessageDoesNotPickUpADescription) {
    StartView();
    contract::SetErrorInfo("The file is locked");
    Show("a", "b", "");
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"a", "b", 0x10, -2147467259, ""}));
}

}
