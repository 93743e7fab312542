#pragma once

#include "frontend/headless/HeadlessFileDialog.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/WritingDevice.h"
#include "tests/sweeps/DeviceLoss.h"
#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/Observation.h"
#include "tests/sweeps/Plan.h"
#include "tests/sweeps/Stage.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace sweeps {

/// The stage with the real panel on it: a fixture that is made anew for every run inside one test.
class CSweepPanel final : public support::PanelFixture, public IStage {
public:
    /// On a workstation that has an update package of that version.
    CSweepPanel(const simulator::DeviceDescription& description, const std::string& packageVersion);

    /// Lets things go wrong from here on, and has `prompts` answered.
    void Arrange(const Plan& plan, const std::vector<CExpectation::Prompt>& prompts);
    /// How many of the calls picked by the plan have been reached.
    std::size_t CallsSpoilt() const { return faults->Fired(); }
    int CursorDepth() const { return desktop->cursorDepth; }
    Observation Take();
    /// Ends the panel and checks that nothing is left of it.
    void End() { TearDown(); }
    using PanelFixture::LeftBehind;

    // IStage
    void SetContextAndRegister() override;
    void SetOtherContext() override;
    void SetOtherContextAndRegister() override;
    void CreateView() override;
    void SetSubsystemAccess() override;
    void SetOtherSubsystemAccess() override;
    void SetConnection() override;
    void SetOtherConnection() override;
    void SetNoConnection() override;
    void Go() override;
    void DestroyView() override;
    void ReleasePanel() override { panel.reset(); }
    void RaiseState(contract::Status status, std::int32_t state) override;
    void RaiseConnectionEvent2() override { host.RaiseConnectionEvent2(1, 2); }
    void RaiseMode(std::int32_t mode) override { m_device->RaiseMode(mode); }
    void RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) override;
    void RaiseDeviceEvent3() override { m_device->RaiseEvent3(1, 2); }
    void InsertDevice() override;
    void TellType(std::int32_t type) override { m_writing->toldType = type; }
    void LoseDevice() override;
    void PressButton(panel::ControlId id) override;
    void SelectRows(const std::vector<int>& rows) override;
    void PressKey(std::uint16_t virtualKey) override;
    void RightClick() override;

private:
    void TestBody() override {}

    void Note(contract::Status status) { m_statuses.push_back(status); }
    void Spoil(const SpoiltCall& spoilt);
    void Arrange(const Intrusion& intrusion);
    void Arrange(const CExpectation::Prompt& prompt);
    void NoteWrite(const std::string& call);
    void OnBoxOpen();
    void OnServiceBoxOpen();
    void OnDialogOpen(DialogRows rows);
    void AnswerNetwork(headless::CHeadlessView& dialog);
    void AnswerFileDialog(headless::CHeadlessFileDialog& dialog);
    void Intrude(Moment moment, std::size_t number);
    Picture LookAtView();
    std::map<panel::ControlId, bool> LookWhatIsEnabled();
    Kept LookAtState() const;

    const std::shared_ptr<simulator::CDevice> m_device;
    const std::shared_ptr<support::CWritingDevice> m_writing;
    const std::shared_ptr<contract::ISubsystemAccess> m_access;
    const std::shared_ptr<contract::IContext> m_otherContext;
    const std::shared_ptr<contract::ISubsystemAccess> m_otherAccess;
    const std::shared_ptr<contract::IConnection> m_otherConnection;
    const std::shared_ptr<CDeviceLoss> m_loss = std::make_shared<CDeviceLoss>();
    std::optional<Intrusion> m_intrusion;
    Answers m_answers;
    contract::Status m_updateStatus;
    std::size_t m_boxesOpened = 0;
    std::size_t m_dialogsOpened = 0;
    std::size_t m_boxesTaken = 0;
    std::vector<contract::Status> m_statuses;
    std::vector<Picture> m_behindBoxes;
    std::vector<std::map<panel::ControlId, bool>> m_enabledBehindDialogs;
    std::vector<DialogRows> m_dialogs;
    /// A file dialog has been shown.
    bool m_mayHaveSaved = false;
    std::vector<std::string> m_writes;
    std::vector<panel::ControlId> m_focused;
};

}
