#pragma once

#include <QWidget>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <vector>

class QListWidget;
class QPushButton;

namespace workstation {

/// The devices at the left of the window, with the buttons that connect and disconnect them.
///
/// Mnemonics are chosen beside the panel's own (U, D, R, S, E, K, C, H), with which they share a
/// window. A press is subject to qt::kCommandEvent, like one of the panel's buttons.
class CDevicePane : public QWidget {
public:
    using Folder = std::filesystem::path;

    explicit CDevicePane(QWidget* parent);

    /// Called with the folder that the user wants connected.
    void OnConnect(std::function<void(const Folder&)> connect);
    void OnDisconnect(std::function<void()> disconnect);

    /// Shows these folders by their names; the choice stays where it can.
    void ShowDevices(const std::vector<Folder>& folders);
    /// Makes a folder the current one.
    void Choose(const Folder& folder);
    /// Marks the folder of the device that is connected, or that was and is gone; an empty one
    /// marks none. Connecting the one that is gone means bringing it back, and is called so.
    void Mark(const Folder& connected, bool isGone = false);

private:
    void ConnectCurrent();
    const Folder& FolderAt(int row) const { return m_folders[static_cast<std::size_t>(row)]; }
    bool IsConnected(int row) const;
    void UpdateButtons();

    QListWidget& m_list;
    QPushButton& m_connectButton;
    QPushButton& m_disconnectButton;
    std::function<void(const Folder&)> m_connect;
    // Beside the rows, since a folder's name may be no text: it is bytes that only the file system
    // need understand.
    std::vector<Folder> m_folders;
    Folder m_connected;
    bool m_isGone = false;
};

}
