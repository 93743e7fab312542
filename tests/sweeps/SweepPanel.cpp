#include "tests/sweeps/SweepPanel.h"

#include "interception/InterceptorChain.h"
#include "panel/selftest/SelfTestTemplate.h"
#include "tests/sweeps/OtherObjects.h"

#include <utility>

namespace sweeps {

CSweepPanel::CSweepPanel(const simulator::DeviceDescription& description)
    : m_device(simulator::CDevice::Create(description)),
      m_otherContext(InPlaceOf(host.Context())),
      m_otherAccess(InPlaceOf(host.SubsystemAccess())),
      m_otherConnection(InPlaceOf(host.Connection())) {
    interception = interception::CInterception(std::make_shared<interception::CInterceptorChain>(
        interception::CInterceptorChain::Links{recorder, faults, m_loss}));
    messageService->whileOpen = [this] { OnBoxOpen(); };
}

void CSweepPanel::Arrange(const Plan& plan, const std::vector<CExpectation::Prompt>& prompts) {
    faults->Clear();
    for (const SpoiltCall& spoilt : plan.spoilt) {
        Spoil(spoilt);
    }
    if (plan.lossInCall) {
        faults->RunBefore({*plan.lossInCall}, [this] {
            RaiseState(contract::kSuccess, 5);
            LoseDevice();
        });
    }
    messageService->status = plan.failMessageService ? kNoDisplayStatus : contract::kSuccess;
    m_boxesOpened = 0;
    m_dialogsOpened = 0;
    m_intrusion = plan.intrusion;
    if (m_intrusion) {
        Arrange(*m_intrusion);
    }
    for (const CExpectation::Prompt prompt : prompts) {
        if (prompt == CExpectation::Prompt::PlainBox) {
            desktop->prompts.Answer(1, [this] { OnBoxOpen(); });
        } else {
            desktop->prompts.AnswerDialog([this](auto& dialog) { OnDialogOpen(dialog); });
        }
    }
}

void CSweepPanel::Spoil(const SpoiltCall& spoilt) {
    const bool isDescribed = spoilt.how == Spoiling::Failure;
    if (spoilt.how == Spoiling::Null) {
        faults->DeliverNull({spoilt.call});
    } else {
        faults->Fail({spoilt.call}, {kFaultStatus, isDescribed ? kFaultDescription : ""});
    }
}

void CSweepPanel::Arrange(const Intrusion& intrusion) {
    const auto intrude = [this, event = intrusion.event] { event->raise(*this); };
    if (intrusion.moment == Moment::BeforeCall) {
        faults->RunBefore({intrusion.number}, intrude);
    }
    if (intrusion.moment == Moment::AfterCall) {
        faults->RunAfter({intrusion.number}, intrude);
    }
}

void CSweepPanel::OnBoxOpen() {
    if (desktop->windows.PanelView()) {
        m_behindBoxes.push_back(LookAtView());
    }
    Intrude(Moment::WhileBoxOpen, ++m_boxesOpened);
}

void CSweepPanel::OnDialogOpen(headless::CHeadlessView& dialog) {
    DialogRows& rows = m_dialogs.emplace_back();
    for (int row = 0; row < dialog.GetRowCount(panel::kSelfTestList); ++row) {
        rows.emplace_back(dialog.GetCell(panel::kSelfTestList, row, 0),
                          dialog.GetCell(panel::kSelfTestList, row, 1));
    }
    Intrude(Moment::WhileDialogOpen, ++m_dialogsOpened);
}

void CSweepPanel::Intrude(Moment moment, std::size_t number) {
    if (m_intrusion && m_intrusion->moment == moment && m_intrusion->number == number) {
        m_intrusion->event->raise(*this);
    }
}

// What is seen

Observation CSweepPanel::Take() {
    Observation seen;
    seen.calls = recorder->Calls();
    recorder->Clear();
    seen.statuses = std::exchange(m_statuses, {});
    seen.messages = TakeMessages();
    const auto& boxes = desktop->prompts.Boxes();
    seen.boxes.assign(boxes.begin() + static_cast<std::ptrdiff_t>(m_boxesTaken), boxes.end());
    m_boxesTaken = boxes.size();
    seen.behindBoxes = std::exchange(m_behindBoxes, {});
    seen.dialogs = std::exchange(m_dialogs, {});
    if (desktop->windows.PanelView()) {
        seen.log = Log();
        seen.picture = LookAtView();
    }
    if (panel) {
        seen.kept = LookAtState();
    }
    return seen;
}

Picture CSweepPanel::LookAtView() {
    const headless::CHeadlessView& view = View();
    Picture picture;
    for (const panel::ControlId id : kTextControls) {
        picture.texts[id] = view.GetText(id);
    }
    for (const panel::ControlId id : kSwitchedControls) {
        picture.enabled[id] = view.IsEnabled(id);
    }
    picture.isCloseVisible = view.IsVisible(panel::kCloseButton);
    for (int row = 0; row < RowCount(); ++row) {
        picture.rows.push_back({Row(row), view.GetRowKey(panel::kFileList, row)});
    }
    picture.selection = view.GetSelectedRows(panel::kFileList);
    picture.mark = view.GetSelectionMark(panel::kFileList);
    return picture;
}

Kept CSweepPanel::LookAtState() const {
    const panel::PanelState& state = State();
    return {static_cast<std::int32_t>(state.deviceType),
            static_cast<std::int32_t>(state.deviceMode),
            state.refreshAllowed,
            state.network.ipAddress,
            state.network.subnetMask,
            state.network.gateway,
            state.network.useDhcp,
            state.network.description,
            state.installedPackageVersion};
}

// IStage

void CSweepPanel::SetContextAndRegister() {
    if (panel) {
        Note(panel->SetContextAndRegister(interception.Wrap(host.Context())));
    }
}

void CSweepPanel::SetOtherContext() {
    if (panel) {
        Note(panel->SetContext(interception.Wrap(m_otherContext)));
    }
}

void CSweepPanel::SetOtherContextAndRegister() {
    if (panel) {
        Note(panel->SetContextAndRegister(interception.Wrap(m_otherContext)));
    }
}

void CSweepPanel::CreateView() {
    if (panel) {
        Note(panel->CreateView(nullptr));
    }
}

void CSweepPanel::SetSubsystemAccess() {
    if (panel) {
        Note(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())));
    }
}

void CSweepPanel::SetOtherSubsystemAccess() {
    if (panel) {
        Note(panel->SetSubsystemAccess(interception.Wrap(m_otherAccess)));
    }
}

void CSweepPanel::SetConnection() {
    if (panel) {
        Note(panel->SetConnection(interception.Wrap(host.Connection())));
    }
}

void CSweepPanel::SetOtherConnection() {
    if (panel) {
        Note(panel->SetConnection(interception.Wrap(m_otherConnection)));
    }
}

void CSweepPanel::SetNoConnection() {
    if (panel) {
        Note(panel->SetConnection(nullptr));
    }
}

void CSweepPanel::Go() {
    if (panel) {
        Note(panel->Go());
    }
}

void CSweepPanel::DestroyView() {
    if (panel) {
        panel->DestroyView();
    }
}

void CSweepPanel::RaiseState(contract::Status status, std::int32_t state) {
    host.RaiseConnectionState(status, state);
}

void CSweepPanel::RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) {
    m_device->RaiseMessage(text, done, total);
}

void CSweepPanel::InsertDevice() {
    m_loss->isLost = false;
    if (!host.Device()) {
        host.InsertDevice(m_device);
    }
}

void CSweepPanel::LoseDevice() {
    host.RemoveDevice();
    m_loss->isLost = true;
}

void CSweepPanel::PressButton(panel::ControlId id) {
    if (panel && desktop->windows.PanelView()) {
        View().Press(id);
    }
}

}
