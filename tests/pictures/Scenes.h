#pragma once

#include "panel/control/DialogTemplate.h"
#include "tests/frontend/qt/PromptHands.h"
#include "tests/pictures/Camera.h"
#include "workstation/MainWindow.h"

#include <QDialog>
#include <QMenu>

#include <filesystem>
#include <functional>
#include <memory>

namespace pictures {

/// Goes through the commands of the panel with sample devices, and takes a picture of each dialog.
///
/// Everything is real, the device's answers included; only the hands are a program's. Every
/// function throws std::runtime_error when something else is shown than what was expected.
class CScenes {
public:
    /// `folder` holds copies of the samples in "devices" and of the package in "package"; its path
    /// is seen in the pictures of file dialogs.
    CScenes(std::filesystem::path folder, CCamera camera)
        : m_folder(std::move(folder)), m_camera(std::move(camera)) {}

    void TakeAll();

private:
    using ActInDialog = std::function<void(QDialog&)>;

    void TakeNetworkedDevice();
    void TakeDeviceThatFails();
    void TakeSmallDevice();
    void TakeMenuCommands();
    void TakeFailure();
    void TakeHelp();

    /// Opens the window with that device, without the update that is offered.
    void Start(const char* device, const char* pictureOfOffer = nullptr);
    /// The next window is a dialog: takes its picture when it has a name, then acts.
    void ExpectDialog(const char* picture, ActInDialog act);
    void ExpectMenu(const char* picture, int command);
    /// The next is a file dialog: shows a folder with a file chosen, then acts.
    void ExpectFileDialog(const char* picture, const std::filesystem::path& file, ActInDialog act);
    void Press(panel::ControlId button);
    void SelectRow(int row);
    void OpenMenu(int row);
    void ClickRow(int row, Qt::MouseButton button) const;
    /// Until everything expected has come and the panel is idle.
    void Finish();
    QWidget& Control(panel::ControlId id) const;

    const std::filesystem::path m_folder;
    const CCamera m_camera;
    qttests::CPromptHands m_prompts;
    std::unique_ptr<workstation::CMainWindow> m_window;
};

}
