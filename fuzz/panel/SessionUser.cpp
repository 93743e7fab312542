// What the user does in a session, and how prompts are answered.

#include "fuzz/panel/Session.h"

#include "frontend/headless/HeadlessFileDialog.h"
#include "fuzz/panel/Workstation.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/SoundView.h"
#include "fuzz/support/Utf8Oracle.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "panel/netconf/KRX10ConfTemplate.h"
#include "panel/update/SWUpdateInfoTemplate.h"

#include <iterator>

namespace fuzz {

namespace {

using headless::CHeadlessView;

constexpr std::int32_t kOk = 1;
constexpr std::int32_t kYes = 6;
constexpr std::int32_t kNo = 7;
constexpr int kDialogFails = 12290;
constexpr int kMostMoves = 4;
/// A refused update offers itself again from inside the refresh that it ends with.
constexpr int kMostUpdates = 3;

constexpr panel::ControlId kButtons[] = {
    panel::kUpdateButton,  panel::kDeleteButton,  panel::kReportButton, panel::kResetButton,
    panel::kDetailsButton, panel::kNetworkButton, panel::kCloseButton,  panel::kHelpButton};

constexpr std::uint16_t kPageDown = 0x22;
constexpr std::uint16_t kEnd = 0x23;
constexpr std::uint16_t kHome = 0x24;
constexpr std::uint16_t kDown = 0x28;
constexpr std::uint16_t kLetterA = 0x41;
constexpr std::uint16_t kKeys[] = {
    panel::kDeleteKey, panel::kContextMenuKey, kPageDown, kEnd, kHome, kDown, kLetterA};

/// One more than there are, which is none.
int RowFrom(CInput& input, const CHeadlessView& view) {
    const int row = input.Below(view.GetRowCount(panel::kFileList) + 1);
    return row - 1;
}

}

void CSession::DoAsUser() {
    static constexpr Deed kDeeds[] = {
        &CSession::PressAnyButton, &CSession::RightClickRow, &CSession::SelectRows,
        &CSession::PressKey,       &CSession::ClickRow,      &CSession::UseKeyboard,
        &CSession::PressAnyButton, &CSession::RightClickRow, &CSession::PressMnemonic,
    };
    if (PanelView()) {
        Do(kDeeds);
    }
}

void CSession::PressAnyButton() {
    PressButton(kButtons[m_input.Below(static_cast<int>(std::size(kButtons)))]);
}

void CSession::PressMnemonic() {
    constexpr int kLetters = 26;
    View().PressMnemonic(static_cast<char>('a' + m_input.Below(kLetters)));
}

void CSession::PressKey() {
    View().PressKeyInList(panel::kFileList,
                          kKeys[m_input.Below(static_cast<int>(std::size(kKeys)))]);
}

void CSession::ClickRow() {
    const int row = RowFrom(m_input, View());
    View().ClickRow(panel::kFileList, row, static_cast<headless::Modifier>(m_input.Below(3)));
}

void CSession::RightClickRow() { View().RightClick(panel::kFileList, RowFrom(m_input, View())); }

void CSession::SelectRows() {
    const unsigned rows = m_input.Byte();
    for (int row = 0; row < RowCount(); ++row) {
        View().SelectRow(panel::kFileList, row, (rows >> row % 8 & 1) != 0);
    }
    View().SetSelectionMark(panel::kFileList, RowFrom(m_input, View()));
}

void CSession::UseKeyboard() {
    switch (m_input.Below(4)) {
    case 0:
        View().PressTab();
        break;
    case 1:
        View().RequestHelp();
        break;
    case 2:
        View().PressReturn();
        break;
    default:
        View().PressEscape();
    }
}

std::int32_t CSession::AnswerBox(const Box& box) {
    Require(!box.text.empty() && !box.caption.empty(), "a box has a text and a caption");
    Require(IsUtf8(box.text) && IsUtf8(box.description), "a box is UTF-8");
    InterruptPerhaps();
    if (!box.IsQuestion()) {
        return kOk;
    }
    return m_isRecovering || m_input.Below(2) != 0 ? kYes : kNo;
}

void CSession::UseDialog(CHeadlessView& dialog) {
    InterruptPerhaps();
    for (int moves = m_input.Below(kMostMoves + 1); moves > 0; --moves) {
        UseControl(dialog);
    }
    const bool isOffer = dialog.Template().id == panel::kSWUpdateInfoTemplate.id;
    const bool isAccepted = m_input.Below(2) != 0 && (!isOffer || m_updatesAccepted < kMostUpdates);
    m_updatesAccepted += isOffer && isAccepted ? 1 : 0;
    dialog.Press(isAccepted ? (isOffer ? panel::kYesButton : panel::kOkButton)
                            : (isOffer ? panel::kNoButton : panel::kCancelButton));
}

void CSession::UseControl(CHeadlessView& dialog) {
    switch (m_input.Below(8)) {
    case 0:
        dialog.Toggle(panel::kUseDhcpBox);
        break;
    case 1:
        dialog.Toggle(panel::kInternalFlashBox);
        break;
    case 2:
        dialog.Toggle(panel::kPcCardBox);
        break;
    case 3:
        dialog.TypeAddress(panel::kIpAddressEdit, m_input.Number32());
        break;
    case 4:
        dialog.TypeAddress(panel::kSubnetMaskEdit, 0xFFFFFF00);
        dialog.TypeAddress(panel::kGatewayEdit, m_input.Number32());
        break;
    case 5:
        dialog.TypeText(panel::kDescriptionEdit, std::string(m_input.Byte(), 'd') + "\xC3\xA9");
        break;
    case 6:
        dialog.RequestHelp();
        break;
    default:
        dialog.PressTab();
    }
}

int CSession::ChooseCommand(std::span<const panel::MenuItem> items) {
    // What happens inside a call while the menu is made may change what is selected meanwhile.
    if (faults->Fired() == 0) {
        RequireSoundMenu(items, View(), State());
    }
    InterruptPerhaps();
    const int chosen = m_input.Below(static_cast<int>(items.size()) + 1);
    return chosen == 0 ? panel::kNoCommand : items[static_cast<std::size_t>(chosen) - 1].command;
}

void CSession::UseFileDialog(headless::CHeadlessFileDialog& dialog) {
    InterruptPerhaps();
    if (m_isRecovering) {
        dialog.Accept("/report");
        return;
    }
    if (dialog.Options()) {
        ChooseOptions(*dialog.Options());
    }
    const std::vector<std::string>& paths = PathsToChoose();
    const auto chosen = static_cast<std::size_t>(m_input.Below(static_cast<int>(paths.size()) + 2));
    if (chosen == 0) {
        dialog.Cancel();
    } else if (chosen <= paths.size()) {
        dialog.Accept(paths[chosen - 1]);
    } else {
        dialog.Fail(kDialogFails);
    }
}

void CSession::ChooseOptions(CHeadlessView& options) {
    options.SelectChoice(panel::kUploadMethodList, 3 - m_input.Below(5));
    options.SelectChoice(panel::kUploadDestinationList, m_input.Below(5));
    if (m_input.Happens(8)) {
        options.LoseChoiceData(panel::kUploadDestinationList);
    }
}

bool CSession::TakeFile(const std::string&, std::string_view content) {
    Require(IsUtf8(content) && content.ends_with("\r\n"), "a report is whole lines of UTF-8");
    m_hasReported = true;
    return !m_input.Happens(4);
}

}
