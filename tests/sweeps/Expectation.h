#pragma once

#include "simulator/DeviceDescription.h"
#include "tests/sweeps/ExpectedConnection.h"
#include "tests/sweeps/ExpectedLog.h"
#include "tests/sweeps/Observation.h"
#include "tests/sweeps/Plan.h"
#include "tests/sweeps/Stage.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sweeps {

/// What is to be seen of a panel, worked out without the panel.
///
/// A stage like the real one: the same scenario and the same plan are played to it, and it notes
/// what the panel has to call, say and show. What the panel does with its device stands in tables
/// beside it (Expected*.cpp), which know nothing of the code under test.
class CExpectation final : public IStage {
public:
    /// What the toolkit shows, and the button or command with which it is left.
    struct Prompt {
        enum class Kind { PlainBox, SelfTests, Offer, Network, Menu, OpenFile, SaveFile };

        Kind kind;
        std::int32_t answer = 0;
        /// The system cannot make it.
        bool fails = false;
    };

    /// A panel with a device, on a workstation that has an update package of that version.
    CExpectation(simulator::DeviceDescription device, std::string packageVersion);

    /// Lets things go wrong from here on; calls and boxes count from here.
    void Arrange(const Plan& plan);
    /// What was to be seen since the start or the last Take.
    Observation Take();
    /// Prompts of the toolkit, in the order in which they are answered, and boxes of both kinds,
    /// since Arrange.
    const std::vector<Prompt>& Prompts() const { return m_prompts; }
    std::size_t Boxes() const { return m_boxes; }
    std::size_t Dialogs() const { return m_dialogs; }
    /// The number of the box that comes after the first call that was spoilt.
    std::size_t BoxAfterFault() const { return m_boxAfterFault; }
    /// The calls that belong to a refresh or to a listing of the files, in order.
    const std::vector<std::size_t>& CallsOfRefresh() const { return m_callsOfRefresh; }
    /// How many of the calls picked by the plan are reached.
    std::size_t CallsSpoilt() const { return m_callsSpoilt; }
    /// Whether the device is shown in full from the next refresh on: it is a known one, the view
    /// was initialised and still exists, and the panel hears the device.
    bool CanShowADevice() const;

    // IStage
    void SetContextAndRegister() override;
    void SetOtherContext() override;
    void SetOtherContextAndRegister() override;
    void CreateView() override;
    void SetSubsystemAccess() override;
    void SetOtherSubsystemAccess() override { SetSubsystemAccess(); }
    void SetConnection() override;
    void SetOtherConnection() override;
    void SetNoConnection() override;
    void Go() override;
    void DestroyView() override;
    void ReleasePanel() override;
    void RaiseState(contract::Status status, std::int32_t state) override;
    void RaiseConnectionEvent2() override {}
    void RaiseMode(std::int32_t mode) override;
    void RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) override;
    void RaiseDeviceEvent3() override {}
    void InsertDevice() override;
    void TellType(std::int32_t type) override { m_toldType = type; }
    void LoseDevice() override;
    void PressButton(panel::ControlId id) override;
    void SelectRows(const std::vector<int>& rows) override;
    void PressKey(std::uint16_t virtualKey) override;
    void RightClick() override;

    // For the tables of what is expected

    using Effect = std::function<void()>;

    /// One call of the panel; `effect` is what the other side does. False when it fails.
    bool Call(std::string_view operation, const Effect& effect = {});
    /// Several, up to the first that fails.
    bool CallInTurn(std::initializer_list<std::string_view> operations);
    /// What counts as a call that failed, though nobody could be called.
    void FailWithoutCall(contract::Status status) { m_failure = {status, ""}; }
    /// The status of the call that failed last.
    contract::Status FailureStatus() const { return m_failure.status; }

    /// The error report of the call that failed last.
    void Report(const std::string& text, const std::string& caption);
    void Warn(const std::string& text, const std::string& caption);
    /// A box of that style that no failure causes.
    void Tell(const std::string& text, const std::string& caption, std::uint32_t style,
              contract::Status status = contract::kSuccess);
    /// A question, and the button with which it is answered.
    std::int32_t Ask(const std::string& text, const std::string& caption);
    void WriteLine(const std::string& text);
    /// Whether a dialog of the panel, or its menu, can be made.
    bool CanMake(Prompt::Kind kind);
    /// A dialog or menu, open. `kind` is one that is left by `answer`.
    void OpenDialog(Prompt::Kind kind, DialogRows rows, std::int32_t answer = 0);
    /// The user's answer to the next offer of an update.
    std::int32_t TakeOfferAnswer();
    const Answers& UserAnswers() const { return m_answers; }
    contract::Status UpdateStatus() const { return m_plan.updateStatus; }
    /// What a call wrote to the device.
    void NoteWrite(const std::string& call);
    void NoteReport(const std::string& text) { m_seen.report = text; }

    /// Nothing for a control that cannot be reached: no view, or one left uninitialised.
    void SetText(panel::ControlId id, const std::string& text);
    void Enable(panel::ControlId id, bool isEnabled);
    /// The file list; null when it cannot be reached.
    Picture* List();

    const simulator::DeviceDescription& Device() const { return m_device; }
    /// What the device says it is.
    std::int32_t ToldType() const { return m_toldType; }
    const std::string& PackageVersion() const { return m_packageVersion; }

    Kept kept;
    bool isPolling;
    int waitCursors = 0;
    /// Refreshes and listings under way.
    int refreshes = 0;
    /// What the dialog of a phone file's upload proposes.
    std::int32_t uploadMethod = 3;
    std::int32_t uploadDestination = 0;
    /// Counts the fillings of the file list begun.
    std::uint64_t fillings = 0;
    /// What the panel holds of its host.
    struct {
        Handed context = Handed::None;
        /// Known once the call that registers has returned.
        bool isRegistered = false;
        bool subsystem = false;
        bool control = false;
        bool hearsDevice = false;
        Handed connection = Handed::None;
        bool connectionState = false;
        /// The one of this connection, and how many there were.
        std::uint64_t subscription = 0;
        std::uint64_t subscriptions = 0;
        /// Those by which events come, and those whose cookie is known, as it is once the call that
        /// subscribes has returned.
        std::set<std::uint64_t> heardConnections;
        std::set<std::uint64_t> connectionCookies;
    } held;

private:
    class CEntry;

    void Register(Handed context);
    void Connect(Handed connection);

    struct Failing {
        contract::Status status;
        std::string description;
    };

    bool Spoils(std::size_t call, std::string_view operation);
    void Intrude(Moment moment, std::size_t number);
    std::int32_t Show(const support::Shown& message);
    void ShowPlainBox(const support::Shown& message, std::int32_t answer);
    void OpenBox();
    bool CanReachLog() const { return m_picture && m_isWhole; }
    void EndPanel();

    const simulator::DeviceDescription m_device;
    std::int32_t m_toldType;
    const std::string m_packageVersion;
    Plan m_plan;
    Answers m_answers;
    std::size_t m_offers = 0;
    std::vector<std::size_t> m_callsOfRefresh;
    std::size_t m_calls = 0;
    std::size_t m_callsSpoilt = 0;
    std::size_t m_boxes = 0;
    std::size_t m_boxAfterFault = 0;
    std::size_t m_dialogs = 0;
    std::vector<Prompt> m_prompts;
    Failing m_failure;
    Observation m_seen;
    std::optional<Picture> m_picture;
    bool m_hadView = false;
    bool m_isWhole = false;
    CExpectedLog m_log;
    bool m_isInserted = false;
    bool m_isLost = false;
    int m_entries = 0;
    bool m_isReleased = false;
    bool m_isGone = false;
};

}
