#include "tests/pictures/win32/Scenes.h"

#include "panel/control/PanelTemplate.h"
#include "simulator/DeviceFolder.h"
#include "tests/frontend/win32/FileDialogUser.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/MenuUser.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <stdexcept>

namespace pictures {

namespace {

using win32tests::PromptKind;

constexpr int kUploadPhoneFile = 1;
constexpr int kUploadFpgaCode = 5;
constexpr int kUpdateKrx20Software = 9;
constexpr int kFileRow = 4;
constexpr SIZE kLargerClient{840, 560};
constexpr std::chrono::seconds kPatience(20);

void Require(bool condition, const std::string& what) {
    if (!condition) {
        throw std::runtime_error("not shown: " + what);
    }
}

void Dismiss(HWND) { win32tests::PressKey(VK_ESCAPE); }
void Accept(HWND dialog) { win32tests::ClickCentre(GetDlgItem(dialog, IDOK)); }

/// Where both folder and file are typed, the dialog goes to the folder first.
void ShowFile(HWND dialog, std::filesystem::path file) {
    file.make_preferred();
    win32tests::CFileDialogUser user(dialog);
    Require(!user.Accept(file.parent_path().string()), "the folder of the file");
    user.TypeName(file.filename().string());
}

}

void CScenes::TakeAll() {
    TakeNetworkedDevice();
    TakeDeviceThatFails();
    TakeSmallDevice();
}

void CScenes::TakeNetworkedDevice() {
    Start("krx-20", "update-prompt");
    SelectRow(kFileRow);
    m_camera.Take(m_host->GetWindow(), "panel-krx-20");
    m_host->Resize(kLargerClient);
    m_camera.Take(m_host->GetWindow(), "panel-larger");
    TakeHelp();
    TakeMenuCommands();
    Expect(PromptKind::Dialog, "network", Dismiss);
    Press(panel::kNetworkButton);
    ExpectFile("report-save", m_folder / "krx20maintenance.txt", Accept);
    Expect(PromptKind::Box, "report-saved", Dismiss);
    Press(panel::kReportButton);
    TakeFailure();
    ExpectFile("update-choose", m_folder / "package/Flash/krxxupd.ini", Accept);
    Expect(PromptKind::Box, "update-done", Dismiss);
    Press(panel::kUpdateButton);
}

void CScenes::TakeMenuCommands() {
    ExpectMenu("menu-krx-20", panel::kNoCommand);
    OpenMenu(kFileRow);
    ExpectMenu(nullptr, kUploadPhoneFile);
    ExpectFile("upload-phone-file", m_folder / "package/Flash/krxx/fenwick_2nd.fg", Dismiss);
    OpenMenu(kFileRow);
    ExpectMenu(nullptr, kUpdateKrx20Software);
    ExpectFile("upload-image", m_folder / "package/Flash/krxx/software.krx20", Dismiss);
    OpenMenu(kFileRow);
    Expect(PromptKind::Box, "delete-question", Dismiss);
    Press(panel::kDeleteButton);
}

// An empty file is one that no device takes.
void CScenes::TakeFailure() {
    const std::filesystem::path file = m_folder / "empty.fg";
    Require(std::ofstream(file).good(), "an empty file");
    ExpectMenu(nullptr, kUploadPhoneFile);
    ExpectFile(nullptr, file, Accept);
    Expect(PromptKind::Box, "upload-failed", Dismiss);
    OpenMenu(kFileRow);
}

void CScenes::TakeHelp() {
    Press(panel::kHelpButton);
    const std::vector<HWND> windows = win32tests::OwnWindows();
    const auto help = std::ranges::find_if(windows, win32tests::IsHelpViewer);
    Require(help != windows.end(), "the help");
    m_camera.Take(*help, "help");
    SendMessageW(*help, WM_CLOSE, 0, 0);
    win32tests::Pump();
}

void CScenes::TakeDeviceThatFails() {
    Start("krx-21");
    Expect(PromptKind::Dialog, "details", Dismiss);
    Press(panel::kDetailsButton);
}

void CScenes::TakeSmallDevice() {
    Start("krx-8");
    SelectRow(kFileRow);
    m_camera.Take(m_host->GetWindow(), "panel-krx-8");
    ExpectMenu("menu-krx-8", panel::kNoCommand);
    OpenMenu(kFileRow);
    ExpectMenu(nullptr, kUploadFpgaCode);
    ExpectFile("upload-code", m_folder / "package/Flash/krx8/krx8_fpga.bin", Dismiss);
    OpenMenu(kFileRow);
}

void CScenes::Start(const char* device, const char* pictureOfOffer) {
    m_host.reset();
    const auto opened = simulator::OpenDevice(m_folder / "devices" / device);
    Require(opened.index() == 0, device);
    m_host = std::make_unique<CHost>(m_component, std::get<0>(opened), "Device maintenance");
    Expect(PromptKind::Dialog, pictureOfOffer, Dismiss);
    m_host->Go();
    Finish();
}

// Nothing may be thrown through the system's loop that calls this.
void CScenes::Expect(PromptKind kind, const char* picture, Act act) {
    m_hands.Expect(kind, [this, picture, act = std::move(act)](HWND prompt) {
        try {
            if (picture) {
                m_camera.Take(prompt, picture);
            }
            act(prompt);
        } catch (const std::exception& exception) {
            m_failure = exception.what();
            Dismiss(prompt);
        }
    });
}

void CScenes::ExpectMenu(const char* picture, int command) {
    Expect(PromptKind::Menu, picture,
           [command](HWND menu) { win32tests::ChooseFromMenu(menu, command); });
}

void CScenes::ExpectFile(const char* picture, const std::filesystem::path& file, Act act) {
    Expect(PromptKind::FileDialog, nullptr, [=, this, act = std::move(act)](HWND dialog) {
        ShowFile(dialog, file);
        if (picture) {
            m_camera.Take(dialog, picture);
        }
        act(dialog);
    });
}

void CScenes::Press(panel::ControlId button) {
    Require(win32tests::CWin32ViewUser(m_host->GetView()).Press(button), "a button to press");
    Finish();
}

void CScenes::SelectRow(int row) {
    win32tests::CWin32ViewUser user(m_host->GetView());
    Require(user.ClickRow(panel::kFileList, row, conformance::Modifier::None), "a row to select");
}

void CScenes::OpenMenu(int row) {
    win32tests::CWin32ViewUser user(m_host->GetView());
    Require(user.RightClickRow(panel::kFileList, row), "a row with a menu");
    Finish();
}

void CScenes::Finish() {
    constexpr DWORD kInterval = 20; // ms, unless something happens before
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (m_hands.GetOutstanding() > 0 && std::chrono::steady_clock::now() < end) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, kInterval, QS_ALLINPUT);
        win32tests::Pump();
    }
    if (!m_failure.empty()) {
        throw std::runtime_error(m_failure);
    }
    for (const std::string& prompt : m_hands.GetUnexpected()) {
        throw std::runtime_error("not expected: " + prompt);
    }
    Require(m_hands.GetOutstanding() == 0, "everything that was expected");
}

}
