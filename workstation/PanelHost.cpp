#include "workstation/PanelHost.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Connection.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/HostViewControl.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "interception/InterceptorChain.h"
#include "workstation/EventWatch.h"
#include "workstation/MessageService.h"
#include "workstation/QtEventLoop.h"

#include <QApplication>
#include <QThread>

#include <utility>

namespace workstation {

using contract::kSuccess;
using contract::Status;

class CPanelHost::CViewControl : public contract::IHostViewControl {
public:
    explicit CViewControl(IPanelHostObserver& observer) : m_observer(observer) {}

    Status ClosePanel() override {
        m_observer.CloseRequested();
        return kSuccess;
    }

private:
    IPanelHostObserver& m_observer;
};

class CPanelHost::CConnectionSink : public contract::_IExtConnectionEvents {
public:
    explicit CConnectionSink(CPanelHost& panelHost) : m_panelHost(panelHost) {}

    Status ConnectionStateChanged(Status status, std::int32_t state) override {
        if (status.IsSuccess()) {
            m_panelHost.OnConnectionState(state);
        }
        return kSuccess;
    }
    Status Event2(std::int32_t, std::int32_t) override { return kSuccess; }

private:
    CPanelHost& m_panelHost;
};

class CPanelHost::CProgressSink : public contract::_IProgrammingDeviceControlEvents {
public:
    explicit CProgressSink(IPanelHostObserver& observer) : m_observer(observer) {}

    Status ModeChanged(std::int32_t) override { return kSuccess; }
    Status DeviceMessage(const std::string& text, std::uint32_t done,
                         std::uint32_t total) override {
        m_observer.ProgressReported(text, done, total);
        return kSuccess;
    }
    Status Event3(std::int32_t, std::int32_t) override { return kSuccess; }

private:
    IPanelHostObserver& m_observer;
};

CPanelHost::CPanelHost(std::shared_ptr<contract::IPanel> panel, IPanelHostObserver& observer)
    : m_observer(observer),
      m_worker(std::make_shared<CWorkerInterceptor>(std::make_unique<CQtEventLoop>(), observer)),
      m_gate(std::make_shared<CConnectionGate>([this] { return IsPanelBusy(); })),
      m_deviceSide(m_worker),
      m_connectionSide(std::make_shared<interception::CInterceptorChain>(
          interception::CInterceptorChain::Links{m_worker, m_gate})),
      m_access(m_deviceSide.Wrap(m_host.SubsystemAccess())),
      m_connection(m_connectionSide.Wrap(m_host.Connection())),
      m_panel(std::move(panel)) {
    m_host.SetHostViewControl(std::make_shared<CViewControl>(observer));
}

CPanelHost::~CPanelHost() {
    for (const auto& unwatch : {m_unwatchConnection, m_unwatchProgress}) {
        if (unwatch) {
            unwatch();
        }
    }
    m_panel->DestroyView();
}

void CPanelHost::CreateView(QWidget& parent) {
    m_host.SetMessageService(std::make_shared<CMessageService>(parent));
    // A panel that cannot register or make a view shows none; there is nothing to do about it here.
    static_cast<void>(m_panel->SetContextAndRegister(m_host.Context()));
    static_cast<void>(m_panel->CreateView(&parent));
}

void CPanelHost::Start(std::string name, std::shared_ptr<simulator::CDevice> device) {
    RunWhenIdle(
        [this, name = std::move(name), device = std::move(device)] { HandOver(name, device); });
}

void CPanelHost::Connect(std::string name, std::shared_ptr<simulator::CDevice> device) {
    RunWhenIdle([this, name = std::move(name), device = std::move(device)] { Swap(name, device); });
}

void CPanelHost::Disconnect() {
    RunWhenIdle([this] { Swap({}, nullptr); });
}

void CPanelHost::Reconnect() {
    RunWhenIdle([this] {
        MendHandOver();
        const CConnectionGate::COpening opening(*m_gate);
        m_host.BringBackLostDevice();
    });
}

// Handlers run at level 1 of the event loop; a deeper one means that a command, or one of its
// boxes, menus and device calls, waits below. Boxes are asked for as well, since a program without
// a main loop (a test) counts from one level less.
bool CPanelHost::IsPanelBusy() const {
    return m_worker->IsBusy() || QThread::currentThread()->loopLevel() > 1 ||
           QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

void CPanelHost::HandOver(const std::string& name, std::shared_ptr<simulator::CDevice> device) {
    // First the device: its knobs may concern the connecting itself.
    if (device) {
        Insert(name, std::move(device));
    }
    GiveAccess();
    static_cast<void>(m_panel->SetConnection(m_connection));
    WatchConnection();
    WatchProgress();
    if (m_isConnected && !m_host.Device()) {
        // Lost before anybody could hear of it.
        OnConnectionState(contract::kConnectionDeviceGone);
    }
    // The start signal has the panel read a device that is there, so it gets no state 7 for it.
    static_cast<void>(m_panel->Go());
}

void CPanelHost::Swap(const std::string& name, std::shared_ptr<simulator::CDevice> device) {
    if (m_isConnected) {
        Raise(contract::kConnectionDeviceGone);
    }
    m_host.RemoveDevice();
    m_deviceName.clear();
    if (device) {
        Insert(name, std::move(device));
        MendHandOver();
        Raise(contract::kConnectionDeviceReady);
    }
    m_observer.ConnectionChanged();
}

void CPanelHost::GiveAccess() {
    // A failure is the panel's to report.
    m_hasGivenAccess = m_panel->SetSubsystemAccess(m_access).IsSuccess();
}

// Much of the hand-over is done once, and the knobs of the device that is there then may fail it.
// The devices after it would never be seen.
void CPanelHost::MendHandOver() {
    if (!m_hasGivenAccess) {
        GiveAccess();
    }
    if (!HearsConnection()) {
        // The one that the panel holds already changes nothing.
        static_cast<void>(m_panel->SetConnection(nullptr));
        static_cast<void>(m_panel->SetConnection(m_connection));
    }
    if (!m_unwatchConnection) {
        WatchConnection();
    }
    if (!m_unwatchProgress) {
        WatchProgress();
    }
}

bool CPanelHost::HearsConnection() const {
    const std::size_t ownSinks = m_unwatchConnection ? 1 : 0;
    return m_host.ConnectionSubscriberCount() > ownSinks;
}

void CPanelHost::Insert(const std::string& name, std::shared_ptr<simulator::CDevice> device) {
    m_host.InsertDevice(std::move(device));
    m_deviceName = name;
    m_isConnected = true;
    m_observer.ConnectionChanged();
}

void CPanelHost::Raise(std::int32_t state) {
    const CConnectionGate::COpening opening(*m_gate);
    m_host.RaiseConnectionState(kSuccess, state);
}

void CPanelHost::OnConnectionState(std::int32_t state) {
    if (state != contract::kConnectionDeviceGone && state != contract::kConnectionDeviceReady) {
        return;
    }
    m_isConnected = state == contract::kConnectionDeviceReady;
    m_observer.ConnectionChanged();
}

void CPanelHost::WatchConnection() {
    m_unwatchConnection = Watch<contract::_IExtConnectionEvents>(
        *m_connection, std::make_shared<CConnectionSink>(*this));
}

void CPanelHost::WatchProgress() {
    std::shared_ptr<contract::ISubsystem> subsystem;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> devices;
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    if (m_access->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem).IsFailure() ||
        !subsystem || subsystem->QueryProgrammingDeviceSubsystem(devices).IsFailure() || !devices ||
        devices->get_ProgrammingDeviceControl(control).IsFailure() || !control) {
        return;
    }
    m_unwatchProgress = Watch<contract::_IProgrammingDeviceControlEvents>(
        *control, std::make_shared<CProgressSink>(m_observer));
}

}
