#pragma once

#include "fuzz/support/FuzzedPanel.h"
#include "fuzz/support/Input.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// A panel's life as a stream of bytes tells it: what user, host and device do one thing after the
/// other, what host and device do inside calls and while prompts are open, which calls fail, and
/// how prompts are answered.
///
/// After each step the panel must be idle and its view sound; menus must fit the device. In the end
/// a panel that still can must show a good device and work on it, and then leave nothing behind.
/// The device lives in memory and does what it is told, with files that the workstation has.
class CSession final : private IPerson, private CFuzzedPanel {
public:
    explicit CSession(CInput input);

    void Play();

private:
    using Deed = void (CSession::*)();

    // IPerson
    std::int32_t AnswerBox(const Box& box) override;
    void UseDialog(headless::CHeadlessView& dialog) override;
    int ChooseCommand(std::span<const panel::MenuItem> items) override;
    void UseFileDialog(headless::CHeadlessFileDialog& dialog) override;
    bool CanMakePrompt() override { return !m_input.Happens(16); }
    bool TakeFile(const std::string& path, std::string_view content) override;

    void Begin();
    void Start(bool isReady);
    void PrepareStep();
    void Step();
    void Spoil();
    void NoteLeaks();
    void RequireSound();
    bool CanRecover();
    void Recover();
    void RequireShown();
    void RequireReport();
    void RequireDeletion();
    void Do(std::span<const Deed> deeds);
    void DoAsUser();
    /// At any time.
    void DoAsOthers();
    /// Between the steps alone.
    void DoBetween();
    /// Something that host or device do meanwhile.
    void Interrupt();
    void InterruptPerhaps();

    // The user
    void PressAnyButton();
    void PressMnemonic();
    void PressKey();
    void ClickRow();
    void RightClickRow();
    void SelectRows();
    void UseKeyboard();
    void UseControl(headless::CHeadlessView& dialog);
    void ChooseOptions(headless::CHeadlessView& options);

    // The host
    void ChangeConnectionState();
    void RaiseIgnoredEvents();
    void Go();
    void SetConnection();
    void SetAccess();
    void SetContext();
    void Resize();
    void DestroyView();
    void ReleasePanel();
    void SwitchMessageService();
    void SwitchViewControl();
    void SwitchPolling();
    void ChangeSettings();

    // The device
    void TellMode();
    void TellProgress();
    void ChangeDevice();
    void LoseDevice();
    void ReturnDevice();
    void ExchangeDevice();

    /// Nothing once the panel is gone.
    void DoForPanel(const std::function<contract::Status()>& deed);
    void RaiseState(contract::Status status, std::int32_t state);
    /// Does what may make the panel read its device's type.
    void WatchingType(const std::function<void()>& deed);

    CInput m_input;
    const std::shared_ptr<contract::IContext> m_otherContext;
    const std::shared_ptr<contract::ISubsystemAccess> m_otherAccess;
    const std::shared_ptr<contract::IConnection> m_otherConnection;
    std::shared_ptr<simulator::CDevice> m_device;
    /// The calls of this step that do not do what they should.
    std::vector<std::size_t> m_spoilt;
    /// A call has failed by which the panel lets go of its host.
    bool m_mayLeak = false;
    /// Interruptions inside each other.
    int m_depth = 0;
    int m_updatesAccepted = 0;
    bool m_isPolling = true;
    /// The device's controls were enabled after the last step.
    bool m_hadDevice = false;
    /// The connection has told in this step that the device is gone.
    bool m_isGone = false;
    /// The panel knows another type than the one that its controls were last set for.
    bool m_isTypeNew = false;
    /// The session is over, and the user says yes to everything but updates.
    bool m_isRecovering = false;
    bool m_hasReported = false;
};

}
