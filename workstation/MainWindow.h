#pragma once

#include "contract/panel/Panel.h"
#include "workstation/PanelHost.h"

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace simulator {
class CDevice;
}

namespace workstation {

class CDevicePane;
class CPanelArea;
class CStatusLine;

/// What the program calls itself; followed by the device in the title of its window.
inline constexpr char kWorkstationTitle[] = "KRX-8 Maintenance Workstation";

/// A device that has been opened.
struct OpenedDevice {
    std::filesystem::path folder;
    std::shared_ptr<simulator::CDevice> device;
};

/// The workstation's window: devices at the left, the panel, a status bar.
///
/// A close that comes while a command of the panel is running is remembered and carried out when it
/// has ended.
class CMainWindow : public QMainWindow, private IPanelHostObserver {
public:
    /// `root`: the folder that the devices are listed from; empty for none.
    CMainWindow(std::shared_ptr<contract::IPanel> panel, std::filesystem::path root);
    ~CMainWindow() override;
    CMainWindow(const CMainWindow&) = delete;
    CMainWindow& operator=(const CMainWindow&) = delete;

    /// Starts the panel, with a device connected if one is given, once the window has been painted:
    /// a user sees it before the device has told all about itself. A window that is not to be seen
    /// is not waited for long. Once.
    void Start(const std::optional<OpenedDevice>& device);

    /// Whether nothing waits to be done and no command of the panel is running. To be asked from
    /// the event loop.
    bool IsIdle() { return !m_startPanel && m_panelHost->IsIdle(); }

    /// The widget that holds the panel's view.
    QWidget& PanelHolder();

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void CallLasts(const interception::Operation& operation) override;
    void CallReturned(const interception::Operation& operation) override;
    void ConnectionChanged() override;
    void ProgressReported(const std::string& text, std::uint32_t done,
                          std::uint32_t total) override;
    void CloseRequested() override;

    void BuildLayout();
    void Connect(const std::filesystem::path& folder);
    void Disconnect();
    void ListDevices();
    void StartPanel();
    void CloseWhenIdle();

    const std::filesystem::path m_root;
    CPanelArea& m_area;
    CDevicePane& m_devices;
    CStatusLine& m_status;
    std::filesystem::path m_given;      ///< the device of the start, listed wherever it lies
    std::function<void()> m_startPanel; ///< what Start has put off; empty once it is done
    bool m_hasLastingCall = false;
    bool m_mustClose = false;
    bool m_mayClose = false;
    // Ended by the destructor, before the widgets that the panel's view stands in.
    std::unique_ptr<CPanelHost> m_panelHost;
};

}
