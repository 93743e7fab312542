// How the user answers what the panel asks in a sweep.

#include "panel/files/PhoneFileUploadTemplate.h"
#include "panel/netconf/KRX10ConfTemplate.h"
#include "panel/selftest/SelfTestTemplate.h"
#include "panel/update/SWUpdateInfoTemplate.h"
#include "tests/sweeps/Files.h"
#include "tests/sweeps/SweepPanel.h"

#include <utility>

namespace sweeps {

namespace {

using headless::CHeadlessFileDialog;
using headless::CHeadlessView;

DialogRows SelfTestRows(const CHeadlessView& dialog) {
    DialogRows rows;
    for (int row = 0; row < dialog.GetRowCount(panel::kSelfTestList); ++row) {
        rows.emplace_back(dialog.GetCell(panel::kSelfTestList, row, 0),
                          dialog.GetCell(panel::kSelfTestList, row, 1));
    }
    return rows;
}

DialogRows OfferRows(const CHeadlessView& dialog) {
    return {
        {dialog.GetText(panel::kUpdateInfoMessage), ""},
        {dialog.GetText(panel::kPackageVersionText), dialog.GetText(panel::kDeviceVersionText)}};
}

DialogRows NetworkRows(const CHeadlessView& dialog) {
    const auto dotted = [&](panel::ControlId field) {
        const std::uint32_t address = dialog.GetAddress(field);
        return std::to_string(address >> 24) + "." + std::to_string(address >> 16 & 0xFF) + "." +
               std::to_string(address >> 8 & 0xFF) + "." + std::to_string(address & 0xFF);
    };
    const bool formats =
        dialog.IsChecked(panel::kInternalFlashBox) || dialog.IsChecked(panel::kPcCardBox);
    return {{"IP address", dotted(panel::kIpAddressEdit)},
            {"Subnet mask", dotted(panel::kSubnetMaskEdit)},
            {"Gateway", dotted(panel::kGatewayEdit)},
            {"DHCP", dialog.IsChecked(panel::kUseDhcpBox) ? "yes" : "no"},
            {"Description", dialog.GetText(panel::kDescriptionEdit)},
            {"Formatting", formats ? "some" : "none"}};
}

DialogRows MenuRows(const headless::ShownMenu& menu) {
    DialogRows rows;
    for (const panel::MenuItem& item : menu.items) {
        rows.emplace_back(std::to_string(item.command), item.text);
    }
    return rows;
}

DialogRows FileRows(const panel::FileDialog& dialog) {
    DialogRows rows{{dialog.title, dialog.startFolder}, {dialog.fileName, dialog.defaultExtension}};
    for (const panel::FileFilter& filter : dialog.filters) {
        rows.emplace_back(filter.description, filter.pattern);
    }
    return rows;
}

/// The options that are proposed, by number.
std::pair<std::string, std::string> OptionsRow(const CHeadlessView& options) {
    return {std::to_string(options.GetSelectedChoice(panel::kUploadMethodList)),
            std::to_string(options.GetSelectedChoice(panel::kUploadDestinationList))};
}

void ChooseOptions(CHeadlessView& options, FileChoice choice) {
    constexpr int kFlashing = 3;
    const bool leavesMethod = choice == FileChoice::WithoutMethod;
    const bool leavesDestination = choice == FileChoice::WithoutDestination;
    options.SelectChoice(panel::kUploadMethodList, leavesMethod ? panel::kNoChoice : kFlashing);
    options.SelectChoice(panel::kUploadDestinationList, leavesDestination ? panel::kNoChoice : 0);
    if (choice == FileChoice::UnreadableMethod) {
        options.LoseChoiceData(panel::kUploadMethodList);
    } else if (choice == FileChoice::UnreadableDestination) {
        options.LoseChoiceData(panel::kUploadDestinationList);
    }
}

std::string PathToName(headless::FileDialogKind kind, FileChoice choice) {
    if (choice == FileChoice::InNoFolder) {
        return PathInNoFolder();
    }
    if (choice == FileChoice::WithoutPath) {
        return "";
    }
    return kind == headless::FileDialogKind::Save ? ReportPath() : kChosenPath;
}

}

void CSweepPanel::Arrange(const CExpectation::Prompt& prompt) {
    using enum CExpectation::Prompt::Kind;
    headless::CPromptQueue& prompts = desktop->prompts;
    const std::int32_t answer = prompt.answer;
    if (prompt.fails) {
        prompt.kind == Menu ? prompts.FailMenu(kNoPromptError) : prompts.FailDialog(kNoPromptError);
        return;
    }
    switch (prompt.kind) {
    case PlainBox:
        prompts.Answer(answer, [this] { OnBoxOpen(); });
        break;
    case SelfTests:
        prompts.AnswerDialog([this](CHeadlessView& dialog) { OnDialogOpen(SelfTestRows(dialog)); });
        break;
    case Offer:
        prompts.AnswerDialog([this, answer](CHeadlessView& dialog) {
            OnDialogOpen(OfferRows(dialog));
            dialog.Press(static_cast<panel::ControlId>(answer));
        });
        break;
    case Network:
        prompts.AnswerDialog([this](CHeadlessView& dialog) { AnswerNetwork(dialog); });
        break;
    case Menu:
        prompts.AnswerMenu(answer,
                           [this] { OnDialogOpen(MenuRows(desktop->prompts.Menus().back())); });
        break;
    case OpenFile:
    case SaveFile:
        prompts.AnswerFileDialog([this](CHeadlessFileDialog& dialog) { AnswerFileDialog(dialog); });
        break;
    }
}

void CSweepPanel::AnswerNetwork(CHeadlessView& dialog) {
    OnDialogOpen(NetworkRows(dialog));
    const NetworkAnswer& answer = m_answers.network;
    if (dialog.IsChecked(panel::kUseDhcpBox) != answer.usesDhcp) {
        dialog.Toggle(panel::kUseDhcpBox);
    }
    dialog.TypeAddress(panel::kIpAddressEdit, 0x0A000002);
    dialog.TypeText(panel::kDescriptionEdit, "bench 4");
    if (answer.formatsFlash) {
        dialog.Toggle(panel::kInternalFlashBox);
    }
    if (answer.formatsPcCard) {
        dialog.Toggle(panel::kPcCardBox);
    }
    dialog.Press(answer.isConfirmed ? panel::kOkButton : panel::kCancelButton);
}

void CSweepPanel::AnswerFileDialog(CHeadlessFileDialog& dialog) {
    m_mayHaveSaved = true;
    const headless::FileDialogKind kind = desktop->prompts.FileDialogs().back().kind;
    DialogRows rows = FileRows(dialog.Dialog());
    CHeadlessView* const options = dialog.Options();
    if (options) {
        rows.push_back(OptionsRow(*options));
    }
    OnDialogOpen(std::move(rows));
    if (m_answers.file == FileChoice::Cancelled) {
        dialog.Cancel();
    } else if (m_answers.file == FileChoice::Failed) {
        dialog.Fail(12290);
    } else {
        if (options) {
            ChooseOptions(*options, m_answers.file);
        }
        dialog.Accept(PathToName(kind, m_answers.file));
    }
}

void CSweepPanel::OnServiceBoxOpen() {
    constexpr std::uint32_t kQuestion = 0x24;
    const bool isQuestion = messageService->shown.back().style == kQuestion;
    EXPECT_EQ(messageService->messages.back().owner, 0);
    EXPECT_EQ(messageService->messages.back().showFlag, 1);
    OnBoxOpen();
    if (isQuestion && m_answers.question != 0) {
        messageService->answers.push_back(m_answers.question);
    }
}

void CSweepPanel::OnBoxOpen() {
    if (desktop->windows.PanelView()) {
        m_behindBoxes.push_back(LookAtView());
    }
    Intrude(Moment::WhileBoxOpen, ++m_boxesOpened);
}

void CSweepPanel::OnDialogOpen(DialogRows rows) {
    m_dialogs.push_back(std::move(rows));
    if (desktop->windows.PanelView()) {
        m_enabledBehindDialogs.push_back(LookWhatIsEnabled());
    }
    Intrude(Moment::WhileDialogOpen, ++m_dialogsOpened);
}

void CSweepPanel::NoteWrite(const std::string& call) {
    m_writes.push_back(DescribeWrite(call, desktop->cursorDepth > 0, host.PollingEnabled(),
                                     panel ? std::optional(State().refreshAllowed) : std::nullopt));
}

void CSweepPanel::Intrude(Moment moment, std::size_t number) {
    if (m_intrusion && m_intrusion->moment == moment && m_intrusion->number == number) {
        m_intrusion->event->raise(*this);
    }
}

}
