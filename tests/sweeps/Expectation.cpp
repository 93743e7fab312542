#include "tests/sweeps/Expectation.h"

#include "interception/Operations.h"
#include "tests/support/Border.h"
#include "tests/sweeps/ExpectationEntry.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/Scenario.h"

#include <algorithm>
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

CExpectation::CExpectation(simulator::DeviceDescription device, std::string packageVersion)
    : isPolling(PollsAtFirst(device)),
      m_device(std::move(device)),
      m_toldType(m_device.type),
      m_packageVersion(std::move(packageVersion)) {}

void CExpectation::Arrange(const Plan& plan) {
    m_plan = plan;
    m_answers = plan.answers.value_or(Answers());
    m_offers = 0;
    m_callsOfRefresh.clear();
    m_calls = 0;
    m_callsSpoilt = 0;
    m_boxes = 0;
    m_boxAfterFault = 0;
    m_dialogs = 0;
    m_prompts.clear();
}

Observation CExpectation::Take() {
    Observation seen = std::exchange(m_seen, {});
    seen.isPolling = isPolling;
    seen.picture = m_picture;
    if (m_picture) {
        seen.log = m_log.Lines();
    }
    if (!m_isGone) {
        seen.kept = kept;
    }
    return seen;
}

bool CExpectation::CanShowADevice() const {
    const bool isKnown = m_toldType >= 1 && m_toldType <= 5;
    return isKnown && m_picture && m_isWhole && held.hearsDevice && !m_isGone;
}

// The host

void CExpectation::SetContextAndRegister() { Register(Handed::First); }

void CExpectation::SetOtherContextAndRegister() { Register(Handed::Other); }

void CExpectation::Register(Handed context) {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    m_seen.statuses.push_back(ExpectRegistration(*this, context));
}

void CExpectation::SetOtherContext() {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    ExpectContext(*this, Handed::Other);
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::CreateView() {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    if (std::exchange(m_hadView, true)) {
        m_seen.statuses.push_back(contract::kUnspecifiedFailure);
        return;
    }
    m_picture = FreshPicture();
    m_isWhole = Call("Context.QueryHostViewControl");
    if (m_picture) {
        m_picture->isCloseVisible = m_isWhole;
    }
    m_seen.statuses.push_back(m_picture ? contract::kSuccess : contract::kUnspecifiedFailure);
}

void CExpectation::SetSubsystemAccess() {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    const Status status = ExpectSubsystem(*this);
    if (status.IsFailure()) {
        Report("Connecting to KxProgrammingDevice subsystem failed", "SetSubsystemAccess");
    }
    m_seen.statuses.push_back(status);
}

void CExpectation::SetConnection() { Connect(Handed::First); }

void CExpectation::SetOtherConnection() { Connect(Handed::Other); }

void CExpectation::SetNoConnection() { Connect(Handed::None); }

void CExpectation::Connect(Handed connection) {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    ExpectConnection(*this, connection);
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::Go() {
    if (m_isReleased) {
        return;
    }
    const CEntry entry(*this);
    bool isConnected = false;
    if (held.connectionState &&
        Call("ConnectionState.IsConnected", [&] { isConnected = m_isInserted; }) && isConnected) {
        ExpectTypeRead(*this);
    }
    m_seen.statuses.push_back(contract::kSuccess);
}

void CExpectation::DestroyView() {
    if (!m_isReleased) {
        m_picture.reset();
    }
}

void CExpectation::ReleasePanel() {
    if (std::exchange(m_isReleased, true)) {
        return;
    }
    if (m_entries == 0) {
        EndPanel();
    }
}

void CExpectation::EndPanel() {
    m_isGone = true;
    m_picture.reset();
    ExpectEnd(*this);
}

// Events

void CExpectation::RaiseState(Status status, std::int32_t state) {
    if (m_isGone || held.heardConnections.empty() || status.IsFailure()) {
        return;
    }
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
    if (m_isGone || !held.hearsDevice) {
        return;
    }
    constexpr const char* kNames[] = {"Unknown", "Normal", "Service", "Maintenance"};
    kept.mode = mode;
    const bool isKnown = mode >= 1 && mode <= 3;
    WriteLine(std::string("Programming Device is in ") + kNames[isKnown ? mode : 0] + " mode");
}

void CExpectation::RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) {
    if (m_isGone || !held.hearsDevice) {
        return;
    }
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

// What the panel does

bool CExpectation::Call(std::string_view operation, const Effect& effect) {
    const std::size_t call = ++m_calls;
    if (refreshes > 0) {
        m_callsOfRefresh.push_back(call);
    }
    m_seen.calls.push_back(operation);
    Intrude(Moment::BeforeCall, call);
    if (m_plan.lossInCall == call) {
        ++m_callsSpoilt;
        RaiseState(contract::kSuccess, 5);
        LoseDevice();
    }
    if (Spoils(call, operation)) {
        return false;
    }
    if (effect) {
        effect();
    }
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
        const bool isQuery = operation.find(".Query") != std::string_view::npos ||
                             support::CBorder::RefusesNull(operation);
        m_failure = {Status::FromBits(isQuery ? 0x80004002 : 0x80004003), ""};
    } else if (m_isLost && IsAnsweredByDevice(operation)) {
        m_failure = {kLostStatus, kLostDescription};
        return true;
    } else {
        return false;
    }
    if (m_callsSpoilt++ == 0) {
        m_boxAfterFault = m_boxes + 1;
    }
    return true;
}

bool CExpectation::CallInTurn(std::initializer_list<std::string_view> operations) {
    return std::all_of(operations.begin(), operations.end(),
                       [this](std::string_view operation) { return Call(operation); });
}

void CExpectation::Intrude(Moment moment, std::size_t number) {
    const auto& intrusion = m_plan.intrusion;
    if (!intrusion || intrusion->moment != moment || intrusion->number != number) {
        return;
    }
    const Event& event = *intrusion->event;
    m_callsSpoilt += moment == Moment::BeforeCall || moment == Moment::AfterCall ? 1 : 0;
    event.raise(*this);
}

}
