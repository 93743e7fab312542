#include "fuzz/panel/Session.h"

#include "fuzz/panel/WorkshopDevice.h"
#include "fuzz/panel/Workstation.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/SoundView.h"
#include "tests/sweeps/OtherObjects.h"

#include <algorithm>
#include <iterator>

namespace fuzz {

namespace {

/// Enough for a device to come, be worked on and go; few enough for many sessions.
constexpr int kMostSteps = 24;
constexpr int kMostSpoilt = 3;
constexpr int kDeepest = 3;

/// Where one of these fails the host goes on holding the panel's sink or member.
constexpr std::string_view kLettingGo[] = {"QueryBaseObject", "FindEventSource", "Unsubscribe",
                                           "Unregister"};

bool LetsGo(std::string_view operation) {
    return std::ranges::any_of(
        kLettingGo, [operation](std::string_view name) { return operation.ends_with(name); });
}

}

CSession::CSession(CInput input)
    : CFuzzedPanel(static_cast<IPerson&>(*this)),
      m_input(input),
      m_otherContext(sweeps::InPlaceOf(host.Context())),
      m_otherAccess(sweeps::InPlaceOf(host.SubsystemAccess())),
      m_otherConnection(sweeps::InPlaceOf(host.Connection())) {}

void CSession::Play() {
    Begin();
    for (int step = 0; step < kMostSteps && !m_input.IsEmpty(); ++step) {
        Step();
        RequireSound();
    }
    Recover();
    m_mayLeak ? Release() : End();
}

/// The first bytes tell the device, the next one what is unusual.
void CSession::Begin() {
    m_device = simulator::CDevice::Create(MakeDevice(m_input));
    const unsigned oddities = m_input.Byte();
    const auto is = [oddities](int bit) { return (oddities >> bit & 1) != 0; };
    if (is(0)) {
        host.SetHostViewControl(nullptr);
    }
    if (is(1)) {
        host.SetMessageService(nullptr);
    }
    desktop->iconError = is(2) ? 5 : 0;
    desktop->pathSeparator = is(3) ? '\\' : '/';
    m_isPolling = !is(4);
    host.SetPollingEnabled(m_isPolling);
    desktop->registry.PutText(kSettingsKey, "FlashDir", PackageFolder());
    desktop->registry.PutText(kSettingsKey, "FlashVersion", is(5) ? "3.0.1" : "2.5");
    host.InsertDevice(m_device);
    PrepareStep();
    Start(!is(6));
    NoteLeaks();
    RequireSound();
}

/// As a host does it, whatever comes of each step.
void CSession::Start(bool isReady) {
    DoForPanel([this] { return panel->SetContextAndRegister(interception.Wrap(host.Context())); });
    DoForPanel([this] { return panel->CreateView(nullptr); });
    DoForPanel([this] { return panel->SetSubsystemAccess(interception.Wrap(Access())); });
    DoForPanel([this] { return panel->SetConnection(interception.Wrap(host.Connection())); });
    if (isReady) {
        RaiseState(contract::kSuccess, contract::kConnectionDeviceReady);
    }
}

void CSession::DoForPanel(const std::function<contract::Status()>& deed) {
    if (panel) {
        static_cast<void>(deed());
    }
}

void CSession::PrepareStep() {
    m_updatesAccepted = 0;
    m_isGone = false;
    faults->Clear();
    recorder->Clear();
    Spoil();
}

void CSession::Step() {
    PrepareStep();
    const int who = m_input.Below(6);
    if (who == 4) {
        DoAsOthers();
    } else if (who == 5) {
        DoBetween();
    } else {
        DoAsUser();
    }
    NoteLeaks();
}

void CSession::Spoil() {
    m_spoilt.clear();
    for (int count = m_input.Below(kMostSpoilt + 1); count > 0; --count) {
        const std::size_t number = std::size_t{1} + m_input.Byte();
        const auto interrupt = [this] { Interrupt(); };
        const int how = m_input.Below(5);
        if (how == 0) {
            faults->Fail({number}, {contract::kUnspecifiedFailure, "The line is noisy."});
        } else if (how == 1) {
            faults->Fail({number}, {contract::kInvalidPointer, ""});
        } else if (how == 2) {
            faults->DeliverNull({number});
        } else if (how == 3) {
            faults->RunBefore({number}, interrupt);
        } else {
            faults->RunAfter({number}, interrupt);
        }
        if (how < 3) {
            m_spoilt.push_back(number);
        }
    }
}

void CSession::NoteLeaks() {
    const auto calls = recorder->Calls();
    m_mayLeak = m_mayLeak || std::ranges::any_of(m_spoilt, [&](std::size_t number) {
                    return number <= calls.size() && LetsGo(calls[number - 1]);
                });
}

void CSession::RequireSound() {
    RequireIdle();
    const headless::CHeadlessView* view = PanelView();
    if (view && panel) {
        RequireSoundView(*view, State());
        const bool hasDevice = view->IsEnabled(panel::kFileList);
        Require(hasDevice || m_isGone || !m_hadDevice, "what was enabled is so again");
        m_hadDevice = hasDevice;
        if (!m_isTypeNew) {
            RequireControlsOfType(*view, State().deviceType);
        }
    }
    Require(faults->Fired() > 0 || host.PollingEnabled() == m_isPolling,
            "polling is left as it was found");
    m_isPolling = host.PollingEnabled();
}

void CSession::Do(std::span<const Deed> deeds) {
    const auto index = static_cast<std::size_t>(m_input.Below(static_cast<int>(deeds.size())));
    (this->*deeds[index])();
}

void CSession::Interrupt() {
    if (m_depth < kDeepest) {
        ++m_depth;
        DoAsOthers();
        --m_depth;
    }
}

void CSession::InterruptPerhaps() {
    if (m_input.Happens(4)) {
        Interrupt();
    }
}

}
