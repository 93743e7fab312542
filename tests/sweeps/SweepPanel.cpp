#include "tests/sweeps/SweepPanel.h"

#include "interception/InterceptorChain.h"
#include "panel/update/SWUpdateInfoTemplate.h"
#include "tests/sweeps/Files.h"
#include "tests/sweeps/OtherObjects.h"
#include "tests/sweeps/Scenario.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace sweeps {

namespace {

std::optional<std::string> TakeReport() {
    std::ifstream file(ReportPath(), std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    const std::string text = (std::ostringstream() << file.rdbuf()).str();
    file.close();
    std::filesystem::remove(ReportPath());
    return text;
}

}

CSweepPanel::CSweepPanel(const simulator::DeviceDescription& description,
                         const std::string& packageVersion)
    : m_device(simulator::CDevice::Create(description)),
      m_writing(std::make_shared<support::CWritingDevice>(host.SubsystemAccess())),
      m_access(m_writing),
      m_otherContext(InPlaceOf(host.Context())),
      m_otherAccess(InPlaceOf(m_access)),
      m_otherConnection(InPlaceOf(host.Connection())) {
    interception = interception::CInterception(std::make_shared<interception::CInterceptorChain>(
        interception::CInterceptorChain::Links{recorder, faults, m_loss}));
    messageService->whileOpen = [this] { OnServiceBoxOpen(); };
    m_writing->answer = [this](const std::string& call) {
        NoteWrite(call);
        return call.starts_with("UpdateFromIniFile(") ? m_updateStatus : contract::kSuccess;
    };
    // Here each offer of an update is expected, or a mistake.
    desktop->prompts.AnswerAlways(panel::kSWUpdateInfoTemplate.id, panel::kNoControl);
    constexpr const char* kKey = "SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate";
    desktop->registry.PutText(kKey, "FlashDir", "C:\\Package");
    desktop->registry.PutText(kKey, "FlashVersion", packageVersion);
    host.SetPollingEnabled(PollsAtFirst(description));
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
    m_answers = plan.answers.value_or(Answers());
    m_updateStatus = plan.updateStatus;
    m_intrusion = plan.intrusion;
    if (m_intrusion) {
        Arrange(*m_intrusion);
    }
    for (const CExpectation::Prompt& prompt : prompts) {
        Arrange(prompt);
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
    seen.enabledBehindDialogs = std::exchange(m_enabledBehindDialogs, {});
    seen.dialogs = std::exchange(m_dialogs, {});
    seen.writes = std::exchange(m_writes, {});
    seen.focused = std::exchange(m_focused, {});
    if (std::exchange(m_mayHaveSaved, false)) {
        seen.report = TakeReport();
    }
    seen.isPolling = host.PollingEnabled();
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
    picture.enabled = LookWhatIsEnabled();
    picture.isCloseVisible = view.IsVisible(panel::kCloseButton);
    picture.isProgressVisible =
        view.IsVisible(panel::kProgressBar) || view.IsVisible(panel::kTaskLabel);
    for (int row = 0; row < RowCount(); ++row) {
        picture.rows.push_back({Row(row), view.GetRowKey(panel::kFileList, row)});
    }
    picture.selection = view.GetSelectedRows(panel::kFileList);
    picture.mark = view.GetSelectionMark(panel::kFileList);
    return picture;
}

std::map<panel::ControlId, bool> CSweepPanel::LookWhatIsEnabled() {
    std::map<panel::ControlId, bool> enabled;
    for (const panel::ControlId id : kSwitchedControls) {
        enabled[id] = View().IsEnabled(id);
    }
    return enabled;
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
        Note(panel->SetContextAndRegister(HandOver(host.Context())));
    }
}

void CSweepPanel::SetOtherContext() {
    if (panel) {
        Note(panel->SetContext(HandOver(m_otherContext)));
    }
}

void CSweepPanel::SetOtherContextAndRegister() {
    if (panel) {
        Note(panel->SetContextAndRegister(HandOver(m_otherContext)));
    }
}

void CSweepPanel::CreateView() {
    if (panel) {
        Note(panel->CreateView(nullptr));
    }
}

void CSweepPanel::SetSubsystemAccess() {
    if (panel) {
        Note(panel->SetSubsystemAccess(HandOver(m_access)));
    }
}

void CSweepPanel::SetOtherSubsystemAccess() {
    if (panel) {
        Note(panel->SetSubsystemAccess(HandOver(m_otherAccess)));
    }
}

void CSweepPanel::SetConnection() {
    if (panel) {
        Note(panel->SetConnection(HandOver(host.Connection())));
    }
}

void CSweepPanel::SetOtherConnection() {
    if (panel) {
        Note(panel->SetConnection(HandOver(m_otherConnection)));
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

void CSweepPanel::SelectRows(const std::vector<int>& rows) {
    if (!desktop->windows.PanelView()) {
        return;
    }
    for (int row = 0; row < RowCount(); ++row) {
        View().SelectRow(panel::kFileList, row, std::ranges::find(rows, row) != rows.end());
    }
    for (const int row : rows) {
        View().SetSelectionMark(panel::kFileList, row);
    }
}

void CSweepPanel::PressKey(std::uint16_t virtualKey) {
    if (!panel || !desktop->windows.PanelView() ||
        !View().PressKeyInList(panel::kFileList, virtualKey)) {
        return;
    }
    if (desktop->windows.PanelView() && View().IsEnabled(panel::kFileList)) {
        m_focused.push_back(View().GetFocus());
    }
}

void CSweepPanel::RightClick() {
    if (panel && desktop->windows.PanelView()) {
        const auto selected = View().GetSelectedRows(panel::kFileList);
        View().RightClick(panel::kFileList, selected.empty() ? panel::kNoRow : selected.front());
    }
}

}
