#pragma once

#include <QStatusBar>
#include <QTimer>

#include <cstdint>
#include <string>
#include <string_view>

class QLabel;
class QProgressBar;

namespace workstation {

/// The bottom line of the window: the device connected, what it is doing and how far it is, and
/// whether the host polls for phones.
class CStatusLine : public QStatusBar {
public:
    explicit CStatusLine(QWidget* parent);

    /// `name` empty: no device.
    void ShowDevice(const QString& name, bool isConnected);
    void ShowPolling(bool isOn);
    /// An operation of that name lasts.
    void ShowOperation(std::string_view operation);
    /// The operation reports; `total` 0 leaves the bar as it is.
    void ShowProgress(const std::string& text, std::uint32_t done, std::uint32_t total);
    /// Takes operation and progress away, unless the next one comes at once.
    void EndOperation();

private:
    void Clear();

    QLabel& m_device;
    QLabel& m_operation;
    QProgressBar& m_progress;
    QLabel& m_polling;
    QTimer m_clearing;
    bool m_operationLasts = false;
};

}
