#pragma once

#include "panel/control/DialogTemplate.h"
#include "tests/frontend/win32/PromptHands.h"
#include "tests/pictures/win32/Camera.h"
#include "tests/pictures/win32/Host.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace pictures {

/// Goes through the commands of the panel with sample devices, and takes a picture of each window.
///
/// Everything is real, the device's answers included; only the hands are a program's. Every
/// function throws std::runtime_error when something else is shown than what was expected.
class CScenes {
public:
    /// `folder` holds copies of the samples in "devices" and of the package in "package"; its path
    /// is seen in the pictures of file dialogs.
    CScenes(const support::CLoadedComponent& component, std::filesystem::path folder,
            const CCamera& camera)
        : m_component(component), m_folder(std::move(folder)), m_camera(camera) {}

    void TakeAll();

private:
    using Act = std::function<void(HWND)>;

    void TakeNetworkedDevice();
    void TakeDeviceThatFails();
    void TakeSmallDevice();
    void TakeMenuCommands();
    void TakeFailure();
    void TakeHelp();

    /// Shows the device in a window of its own, without the update that is offered.
    void Start(const char* device, const char* pictureOfOffer = nullptr);
    /// The next prompt is of that kind: takes its picture when it has a name, then acts.
    void Expect(win32tests::PromptKind kind, const char* picture, Act act);
    void ExpectMenu(const char* picture, int command);
    /// The next is a file dialog: shows a folder with a file chosen, then acts.
    void ExpectFile(const char* picture, const std::filesystem::path& file, Act act);
    void Press(panel::ControlId button);
    void SelectRow(int row);
    void OpenMenu(int row);
    /// Until everything expected has come.
    void Finish();

    const support::CLoadedComponent& m_component;
    const std::filesystem::path m_folder;
    const CCamera& m_camera;
    win32tests::CPromptHands m_hands;
    std::unique_ptr<CHost> m_host;
    std::string m_failure;
};

}
