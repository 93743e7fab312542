#pragma once

#include "contract/panel/Panel.h"
#include "interception/Interception.h"
#include "simulator/Host.h"
#include "workstation/ConnectionGate.h"
#include "workstation/ModalGuard.h"
#include "workstation/WorkerInterceptor.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace simulator {
class CDevice;
}

namespace workstation {

/// Is told by a panel's host what its user should see. User-interface thread only; calls may come
/// from inside a command of the panel.
class IPanelHostObserver : public ICallObserver {
public:
    /// A device has been connected, disconnected, lost or found again.
    virtual void ConnectionChanged() {}
    /// The device reports progress; see _IProgrammingDeviceControlEvents.
    virtual void ProgressReported(const std::string& /*text*/, std::uint32_t /*done*/,
                                  std::uint32_t /*total*/) {}
    /// The panel asks for the end of its view, which must not come before this returns.
    virtual void CloseRequested() {}
};

/// One panel and the host around it, for the life of a window.
///
/// Devices come and go behind one subsystem and one control, since a panel keeps the first control
/// that it gets. Device and connection calls run on a worker; states of the connection reach the
/// panel only while it is idle. No command of the panel starts while another one, or a refresh,
/// waits for the device or for an answer of the user's; only what it asks can be answered.
/// User-interface thread only.
class CPanelHost {
public:
    /// `panel` is released at the host's end; `observer` must outlive the host.
    CPanelHost(std::shared_ptr<contract::IPanel> panel, IPanelHostObserver& observer);
    ~CPanelHost();
    CPanelHost(const CPanelHost&) = delete;
    CPanelHost& operator=(const CPanelHost&) = delete;

    /// Hands the panel its context and has it make its view in `parent`, which must outlive the
    /// host. Once, before Start.
    void CreateView(QWidget& parent);
    contract::PixelSize GetNaturalSize() const { return m_panel->GetNaturalSize(); }
    void Resize(contract::PixelSize size) { m_panel->Resize(size); }

    /// The rest happens as soon as the panel is idle, in the order of the calls.

    /// Hands the panel its host and gives the start signal, with a device connected unless `device`
    /// is null. Once.
    void Start(std::string name, std::shared_ptr<simulator::CDevice> device);
    /// Connects a device, in place of the one that is connected. After Start.
    void Connect(std::string name, std::shared_ptr<simulator::CDevice> device);
    void Disconnect();
    /// Has a lost device come back, as it is; nothing when none is lost.
    void Reconnect();
    /// Does something of the caller's.
    void RunWhenIdle(CConnectionGate::Action action) { m_gate->RunWhenIdle(std::move(action)); }

    /// Whether nothing waits to be done and no command or refresh of the panel is running. To be
    /// asked from the event loop.
    bool IsIdle() { return m_gate->IsIdle(); }

    /// Name of the device that is connected; empty when there is none. A lost device keeps its name
    /// until another is connected.
    const std::string& DeviceName() const { return m_deviceName; }
    /// Whether a device is connected and not lost.
    bool IsConnected() const { return m_isConnected; }
    /// Whether the host polls for phones. Not while a device call is in progress.
    bool IsPolling() const { return m_host.PollingEnabled(); }

private:
    class CViewControl;
    class CConnectionSink;
    class CProgressSink;

    bool IsPanelBusy() const;
    void HandOver(const std::string& name, std::shared_ptr<simulator::CDevice> device);
    void Swap(const std::string& name, std::shared_ptr<simulator::CDevice> device);
    void GiveAccess();
    void MendHandOver();
    bool HearsConnection() const;
    void Insert(const std::string& name, std::shared_ptr<simulator::CDevice> device);
    void Raise(std::int32_t state);
    void OnConnectionState(std::int32_t state);
    void WatchConnection();
    void WatchProgress();

    IPanelHostObserver& m_observer;
    const CModalGuard m_modalGuard;
    simulator::CHost m_host;
    const std::shared_ptr<CWorkerInterceptor> m_worker;
    const std::shared_ptr<CConnectionGate> m_gate;
    // Subsystems and connection ask about the device, so their calls go to the worker, where they
    // wait for their turn. The context is handed over as it is: it and what it delivers (view
    // control, message service) are the window's own, answer at once and touch widgets.
    const interception::CInterception m_deviceSide;
    const interception::CInterception m_connectionSide;
    const std::shared_ptr<contract::ISubsystemAccess> m_access;
    const std::shared_ptr<contract::IConnection> m_connection;
    // Undo the host's own subscriptions.
    std::function<void()> m_unwatchConnection;
    std::function<void()> m_unwatchProgress;
    std::string m_deviceName;
    bool m_isConnected = false;
    bool m_hasGivenAccess = false;
    std::shared_ptr<contract::IPanel> m_panel;
};

}
