#include "tests/sweeps/Expectation.h"

#include "interception/Operations.h"
#include "tests/sweeps/ExpectedConnection.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedSelfTests.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace sweeps {

using contract::Status;

namespace {

bool DeliversObject(std::string_view operation) {
    return interception::FindOperation(operation)->delivers == interception::Delivers::Object;
}

bool IsAnsweredByDevice(std::string_view operation) {
    return interception::FindOperation(operation)->provider == interception::Provider::Device;
}

}

/// One call of host, connection, device or view into the panel, which lives until the outermost of
/// them has returned.
class CExpectation::CEntry {
public:
    explicit CEntry(CExpectation& panel) : m_panel(panel) { ++m_panel.m_entries; }
    ~CEntry() {
        if (--m_panel.m_entries == 0 && m_panel.m_isReleased)
            m_panel.EndPanel();
    }
    CEntry(const CEntry&) = delete;
    CEntry& operator=(const CEntry&) = delete;

private:
    CExpectation& m_panel;
};

CExpectation::CExpectation(simulator::DeviceDescription device) : m_device(std::move(device)) {}

void CExpectation::Arrange(const Plan& plan) {
    m_plan = plan;
    m_calls = 0;
    m_callsSpoilt = 0;
    m_boxes = 0;
    m_dialogs = 0;
    m_prompts.clear();
}

Observation CExpectation::Take() {
    Observation seen = std::exchange(m_seen, {});
    seen.picture = m_picture;
    if (m_picture)
        seen.log = m_log.Lines();
    if (!m_isGone)
        seen.kept = kept;
    return seen;
}

bool CExpectation::CanShowADevice() const {
    const bool isKnown = m_device.type >= 1 && m_device.type <= 5;
    return isKnown && m_picture && m_isWhole && held.hearsDevice && !m_isGone;
}

// The host

void CExpectation::SetContextAndRegister() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    const bool isDone = Call("Context.Register", [this] { held.isRegistered = true; });
    m_seen.statuses.push_back(isDone ? contract::kSuccess : FailureStatus());
}

void CExpectation::CreateView() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    m_picture = FreshPicture();
    m_isWhole = Call("Context.QueryHostViewControl");
    if (m_picture)
        m_picture->isCloseVisible = m_isWhole;
    m_seen.statuses.push_back(m_picture ? contract::kSuccess : contract::kUnspecifiedFailure);
}

void CExpectation::SetSubsystemAccess() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    const Status status = ExpectSubsystem(*this);
    if (status.IsFailure())
        Report("Connecting to KxProgrammingDevice subsystem failed", "SetSubsystemAccess");
    m_seen.statuses.push_back(status);
}

void CExpectation::SetConnection() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    if (!held.connection)
        ExpectAttachment(*this);
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::SetNoConnection() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    ExpectDetachment(*this);
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::Go() {
    if (m_isReleased)
        return;
    const CEntry entry(*this);
    bool isConnected = false;
    if (held.connectionState &&
        Call("ConnectionState.IsConnected", [&] { isConnected = m_isInserted; }) && isConnected)
        ExpectTypeRead(*this);
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::DestroyView() {
    if (!m_isReleased)
        m_picture.reset();
}

void CExpectation::ReleasePanel() {
    if (std::exchange(m_isReleased, true))
        return;
    if (m_entries == 0)
        EndPanel();
}

void CExpectation::EndPanel() {
    m_isGone = true;
    m_picture.reset();
    ExpectEnd(*this);
}

// Events

void CExpectation::RaiseState(Status status, std::int32_t state) {
    if (m_isGone || !held.hearsConnection || status.IsFailure())
        return;
    const CEntry entry(*this);
    if (state == 5) {
        ExpectControlsEnabled(*this, false);
        kept.mode = 0;
    } else if (state == 7) {
        m_log.Clear();
        ExpectTypeRead(*this);
    }
}

void CExpectation::RaiseMode(std::int32_t mode) {
    if (m_isGone || !held.hearsDevice)
        return;
    constexpr const char* kNames[] = {"Unknown", "Normal", "Service", "Maintenance"};
    kept.mode = mode;
    const bool isKnown = mode >= 1 && mode <= 3;
    WriteLine(std::string("Programming Device is in ") + kNames[isKnown ? mode : 0] + " mode");
}

void CExpectation::RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) {
    if (m_isGone || !held.hearsDevice)
        return;
    m_log.WriteProgress(text, done, total, CanReachLog());
}

void CExpectation::InsertDevice() {
    m_isInserted = true;
    m_isLost = false;
}

void CExpectation::LoseDevice() {
    m_isInserted = false;
    m_isLost = true;
}

void CExpectation::PressButton(panel::ControlId id) {
    if (m_isReleased || !m_picture || !m_picture->enabled[id])
        return;
    const CEntry entry(*this);
    if (id == panel::kDetailsButton)
        ExpectDetails(*this);
}

// What the panel does

bool CExpectation::Call(std::string_view operation, const Effect& effect) {
    const std::size_t call = ++m_calls;
    m_seen.calls.push_back(operation);
    Intrude(Moment::BeforeCall, call);
    if (m_plan.lossInCall == call) {
        ++m_callsSpoilt;
        RaiseState(contract::kSuccess, 5);
        LoseDevice();
    }
    if (Spoils(call, operation))
        return false;
    if (effect)
        effect();
    Intrude(Moment::AfterCall, call);
    return true;
}

bool CExpectation::Spoils(std::size_t call, std::string_view operation) {
    const auto spoilt = std::find_if(m_plan.spoilt.begin(), m_plan.spoilt.end(),
                                     [call](const SpoiltCall& each) { return each.call == call; });
    const bool isPicked = spoilt != m_plan.spoilt.end();
    if (isPicked && spoilt->how != Spoiling::Null) {
        const bool isDescribed = spoilt->how == Spoiling::Failure;
        m_failure = {kFaultStatus, isDescribed ? kFaultDescription : ""};
    } else if (isPicked && DeliversObject(operation)) {
        const bool isQuery = operation.find(".Query") != std::string_view::npos;
        m_failure = {Status::FromBits(isQuery ? 0x80004002 : 0x80004003), ""};
    } else if (m_isLost && IsAnsweredByDevice(operation)) {
        m_failure = {kLostStatus, kLostDescription};
        return true;
    } else {
        return false;
    }
    ++m_callsSpoilt;
    return true;
}

bool CExpectation::CallInTurn(std::initializer_list<std::string_view> operations) {
    return std::all_of(operations.begin(), operations.end(),
                       [this](std::string_view operation) { return Call(operation); });
}

void CExpectation::Intrude(Moment moment, std::size_t number) {
    const auto& intrusion = m_plan.intrusion;
    if (!intrusion || intrusion->moment != moment || intrusion->number != number)
        return;
    const Event& event = *intrusion->event;
    m_callsSpoilt += moment == Moment::BeforeCall || moment == Moment::AfterCall ? 1 : 0;
    event.raise(*this);
}

void CExpectation::Report(const std::string& text, const std::string& caption) {
    Show({text, caption, 0x10, m_failure.status.Code(), m_failure.description});
}

void CExpectation::Warn(const std::string& text, const std::string& caption) {
    Show({text, caption, 0x30, 0, ""});
}

void CExpectation::Show(const support::Shown& message) {
    const auto show = [&] {
        if (m_plan.failMessageService)
            return;
        m_seen.messages.push_back(message);
        OpenBox();
    };
    const bool isAnswered =
        Call("Context.QueryMessageService") && Call("MessageService.ShowMessage", show);
    if (!isAnswered || m_plan.failMessageService)
        ShowPlainBox(message);
}

void CExpectation::ShowPlainBox(const support::Shown& message) {
    constexpr std::int32_t kOk = 1;
    char code[40];
    std::snprintf(code, sizeof code, "\r\nHRESULT 0x%08x (%d)",
                  static_cast<unsigned>(message.status), message.status);
    m_seen.boxes.push_back({message.text + code, message.caption, message.style, kOk});
    m_prompts.push_back(Prompt::PlainBox);
    OpenBox();
}

void CExpectation::OpenBox() {
    if (m_picture)
        m_seen.behindBoxes.push_back(*m_picture);
    Intrude(Moment::WhileBoxOpen, ++m_boxes);
}

void CExpectation::OpenDialog(DialogRows rows) {
    m_seen.dialogs.push_back(std::move(rows));
    m_prompts.push_back(Prompt::Dialog);
    Intrude(Moment::WhileDialogOpen, ++m_dialogs);
}

void CExpectation::WriteLine(const std::string& text) { m_log.WritePlain(text, CanReachLog()); }

void CExpectation::SetText(panel::ControlId id, const std::string& text) {
    // The size fields are the ones that can be reached without an initialised view.
    constexpr panel::ControlId kReachableById[] = {panel::kFlashSizeField, panel::kFreeFlashField,
                                                   panel::kRamSizeField, panel::kFreeRamField};
    const bool isReachable =
        m_isWhole || std::find(std::begin(kReachableById), std::end(kReachableById), id) !=
                         std::end(kReachableById);
    if (m_picture && isReachable)
        m_picture->texts[id] = text;
}

void CExpectation::Enable(panel::ControlId id, bool isEnabled) {
    if (m_picture && m_isWhole)
        m_picture->enabled[id] = isEnabled;
}

Picture* CExpectation::List() { return m_picture && m_isWhole ? &*m_picture : nullptr; }

}
