// What of an expectation is to be seen: boxes, dialogs, writes, the log and the controls.

#include "tests/sweeps/Expectation.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace sweeps {

void CExpectation::Report(const std::string& text, const std::string& caption) {
    Show({text, caption, 0x10, m_failure.status.Code(), m_failure.description});
}

void CExpectation::Warn(const std::string& text, const std::string& caption) {
    Tell(text, caption, 0x30);
}

void CExpectation::Tell(const std::string& text, const std::string& caption, std::uint32_t style,
                        contract::Status status) {
    Show({text, caption, style, status.Code(), ""});
}

std::int32_t CExpectation::Ask(const std::string& text, const std::string& caption) {
    return Show({text, caption, 0x24, 0, ""});
}

std::int32_t CExpectation::Show(const support::Shown& message) {
    constexpr std::int32_t kOk = 1;
    constexpr std::int32_t kNo = 7;
    const std::int32_t chosen = m_answers.question == 0 ? kNo : m_answers.question;
    const std::int32_t answer = message.style == 0x24 ? chosen : kOk;
    const auto show = [&] {
        if (m_plan.failMessageService) {
            return;
        }
        m_seen.messages.push_back(message);
        OpenBox();
    };
    const bool isAnswered =
        Call("Context.QueryMessageService") && Call("MessageService.ShowMessage", show);
    if (!isAnswered || m_plan.failMessageService) {
        ShowPlainBox(message, answer);
    }
    return answer;
}

void CExpectation::ShowPlainBox(const support::Shown& message, std::int32_t answer) {
    char code[40];
    std::snprintf(code, sizeof code, "\r\nHRESULT 0x%08x (%d)",
                  static_cast<unsigned>(message.status), message.status);
    m_seen.boxes.push_back({message.text + code, message.caption, message.style, answer});
    m_prompts.push_back({Prompt::Kind::PlainBox, answer});
    OpenBox();
}

void CExpectation::OpenBox() {
    if (m_picture) {
        m_seen.behindBoxes.push_back(*m_picture);
    }
    Intrude(Moment::WhileBoxOpen, ++m_boxes);
}

bool CExpectation::CanMake(Prompt::Kind kind) {
    if (m_answers.getsNoPrompt) {
        m_prompts.push_back({.kind = kind, .fails = true});
    }
    return !m_answers.getsNoPrompt;
}

void CExpectation::OpenDialog(Prompt::Kind kind, DialogRows rows, std::int32_t answer) {
    m_seen.dialogs.push_back(std::move(rows));
    m_prompts.push_back({kind, answer});
    if (m_picture) {
        m_seen.enabledBehindDialogs.push_back(m_picture->enabled);
    }
    Intrude(Moment::WhileDialogOpen, ++m_dialogs);
}

std::int32_t CExpectation::TakeOfferAnswer() {
    constexpr std::int32_t kNo = 7;
    return m_offers < m_answers.offers.size() ? m_answers.offers[m_offers++] : kNo;
}

void CExpectation::NoteWrite(const std::string& call) {
    m_seen.writes.push_back(
        DescribeWrite(call, waitCursors > 0, isPolling,
                      m_isReleased ? std::nullopt : std::optional(kept.refreshAllowed)));
}

void CExpectation::WriteLine(const std::string& text) { m_log.WritePlain(text, CanReachLog()); }

void CExpectation::SetText(panel::ControlId id, const std::string& text) {
    // The size fields are the ones that can be reached without an initialised view.
    constexpr panel::ControlId kReachableById[] = {panel::kFlashSizeField, panel::kFreeFlashField,
                                                   panel::kRamSizeField, panel::kFreeRamField};
    const bool isReachable =
        m_isWhole || std::find(std::begin(kReachableById), std::end(kReachableById), id) !=
                         std::end(kReachableById);
    if (m_picture && isReachable) {
        m_picture->texts[id] = text;
    }
}

void CExpectation::Enable(panel::ControlId id, bool isEnabled) {
    if (m_picture && m_isWhole) {
        m_picture->enabled[id] = isEnabled;
    }
}

Picture* CExpectation::List() { return m_picture && m_isWhole ? &*m_picture : nullptr; }

}
