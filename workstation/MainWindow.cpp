#include "workstation/MainWindow.h"

#include "simulator/DeviceFolder.h"
#include "workstation/DevicePane.h"
#include "workstation/PanelArea.h"
#include "workstation/StatusLine.h"
#include "workstation/Text.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace workstation {

namespace {

// A window that starts minimised, for one, is never painted.
constexpr std::chrono::milliseconds kLongestUnpainted{250};
constexpr std::string_view kSwitchPolling = "ProductDetectionControl.SetPollingEnabled";

}

CMainWindow::CMainWindow(std::shared_ptr<contract::IPanel> panel, std::filesystem::path root)
    : m_root(std::move(root)),
      m_area(*new CPanelArea(this)),
      m_devices(*new CDevicePane(this)),
      m_status(*new CStatusLine(this)),
      m_panelHost(
          std::make_unique<CPanelHost>(std::move(panel), static_cast<IPanelHostObserver&>(*this))) {
    setWindowTitle(kWorkstationTitle);
    BuildLayout();
    m_panelHost->CreateView(m_area.Holder());
    const contract::PixelSize natural = m_panelHost->GetNaturalSize();
    m_area.Fit({natural.width, natural.height}, [this](QSize size) {
        m_panelHost->Resize({size.width(), size.height()});
    });
    m_devices.OnConnect([this](const auto& folder) { Connect(folder); });
    m_devices.OnDisconnect([this] { Disconnect(); });
    // As written: the toolkit's own set of keys depends on the desktop, and some have none to quit.
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this,
            [this] { ListDevices(); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this,
            [this] { close(); });
    m_status.ShowPolling(m_panelHost->IsPolling());
    CMainWindow::ConnectionChanged();
    ListDevices();
    resize(sizeHint().boundedTo(screen()->availableSize()));
}

CMainWindow::~CMainWindow() {
    // The panel's end makes device calls, during which the window still handles events: a close
    // must not look for an idle host then.
    m_mayClose = true;
}

void CMainWindow::Start(const std::optional<OpenedDevice>& device) {
    const OpenedDevice opened = device.value_or(OpenedDevice{});
    m_startPanel = [this, opened] { m_panelHost->Start(opened.folder.string(), opened.device); };
    if (device) {
        m_given = device->folder;
        ListDevices();
        m_devices.Choose(device->folder);
    }
    update();
    QTimer::singleShot(kLongestUnpainted, this, [this] { StartPanel(); });
}

QWidget& CMainWindow::PanelHolder() { return m_area.Holder(); }

void CMainWindow::closeEvent(QCloseEvent* event) {
    if (m_mayClose || m_panelHost->IsIdle()) {
        event->accept();
        return;
    }
    event->ignore();
    CloseWhenIdle();
}

void CMainWindow::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    StartPanel();
}

void CMainWindow::CallLasts(const interception::Operation& operation) {
    m_hasLastingCall = true;
    m_status.ShowOperation(operation.name);
}

void CMainWindow::CallReturned(const interception::Operation& operation) {
    if (operation.name == kSwitchPolling) {
        m_status.ShowPolling(m_panelHost->IsPolling());
    }
    if (std::exchange(m_hasLastingCall, false)) {
        m_status.EndOperation();
    }
}

void CMainWindow::ConnectionChanged() {
    const std::filesystem::path folder = m_panelHost->DeviceName();
    const QString name = folder.empty() ? QString() : NameOf(folder);
    m_status.ShowDevice(name, m_panelHost->IsConnected());
    m_devices.Mark(folder, !m_panelHost->IsConnected());
    setWindowTitle(name.isEmpty() ? QString(kWorkstationTitle)
                                  : QString(kWorkstationTitle) + " - " + name);
}

void CMainWindow::ProgressReported(const std::string& text, std::uint32_t done,
                                   std::uint32_t total) {
    m_status.ShowProgress(text, done, total);
}

void CMainWindow::CloseRequested() { CloseWhenIdle(); }

void CMainWindow::BuildLayout() {
    auto* const centre = new QWidget;
    auto* const row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(&m_devices);
    row->addWidget(&m_area, 1);
    setCentralWidget(centre);
    setStatusBar(&m_status);
}

void CMainWindow::Connect(const std::filesystem::path& folder) {
    // Other devices come after that of the start, also for a user who is quicker than the painting.
    StartPanel();
    if (folder == m_panelHost->DeviceName() && !m_panelHost->IsConnected()) {
        m_panelHost->Reconnect();
        return;
    }
    const auto opened = simulator::OpenDevice(folder);
    if (const auto* error = std::get_if<simulator::DescriptionError>(&opened)) {
        QMessageBox box(QMessageBox::Warning, "Connect", {}, QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.setText(QString::fromStdString(error->Message()));
        box.exec();
        return;
    }
    m_panelHost->Connect(folder.string(), std::get<0>(opened));
}

void CMainWindow::Disconnect() {
    StartPanel();
    m_panelHost->Disconnect();
}

void CMainWindow::ListDevices() {
    auto folders = simulator::ListDevices(m_root);
    if (!m_given.empty() && std::ranges::find(folders, m_given) == folders.end()) {
        folders.insert(folders.begin(), m_given);
    }
    m_devices.ShowDevices(folders);
}

// What the panel's host is given here it does from the event loop, so not inside the painting.
void CMainWindow::StartPanel() {
    if (const auto start = std::exchange(m_startPanel, {})) {
        start();
    }
}

void CMainWindow::CloseWhenIdle() {
    if (std::exchange(m_mustClose, true)) {
        return;
    }
    m_panelHost->RunWhenIdle([this] {
        m_mayClose = true;
        close();
    });
}

}
