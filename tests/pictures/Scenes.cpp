#include "tests/pictures/Scenes.h"

#include "panel/control/PanelTemplate.h"
#include "simulator/DeviceFolder.h"
#include "tests/frontend/qt/ControlUser.h"
#include "workstation/PanelFactory.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <fstream>
#include <stdexcept>

namespace pictures {

namespace {

constexpr int kUploadPhoneFile = 1;
constexpr int kUploadFpgaCode = 5;
constexpr int kUpdateKrx20Software = 9;
constexpr int kNone = 0;

void Require(bool condition, const char* what) {
    if (!condition) {
        throw std::runtime_error(std::string("not shown: ") + what);
    }
}

void Dismiss(QDialog& dialog) { dialog.reject(); }
void Accept(QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }

/// The folder is listed by a thread of the toolkit's.
void ShowFile(QFileDialog& dialog, const QString& file) {
    dialog.setDirectory(QFileInfo(file).path());
    auto* const list = dialog.findChild<QListView*>("listView");
    const auto isListed = [&] { return list->model()->rowCount(list->rootIndex()) > 0; };
    Require(QTest::qWaitFor(isListed), "the files of the folder");
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QFileInfo(file).fileName());
    QCoreApplication::processEvents();
}

}

void CScenes::TakeAll() {
    TakeNetworkedDevice();
    TakeDeviceThatFails();
    TakeSmallDevice();
}

void CScenes::TakeNetworkedDevice() {
    Start("krx-20", "update-prompt");
    m_camera.Take(*m_window, "workstation");
    TakeHelp();
    TakeMenuCommands();
    ExpectDialog("network", Dismiss);
    Press(panel::kNetworkButton);
    ExpectFileDialog("report-save", m_folder / "krx20maintenance.txt", Accept);
    ExpectDialog("report-saved", Dismiss);
    Press(panel::kReportButton);
    TakeFailure();
    ExpectFileDialog("update-choose", m_folder / "package/Flash/krxxupd.ini", Accept);
    ExpectDialog("update-done", Dismiss);
    Press(panel::kUpdateButton);
}

void CScenes::TakeMenuCommands() {
    SelectRow(4);
    ExpectMenu("menu-krx-20", kNone);
    OpenMenu(4);
    ExpectMenu(nullptr, kUploadPhoneFile);
    ExpectFileDialog("upload-phone-file", m_folder / "package/Flash/krxx/fenwick_2nd.fg", Dismiss);
    OpenMenu(4);
    ExpectMenu(nullptr, kUpdateKrx20Software);
    ExpectFileDialog("upload-image", m_folder / "package/Flash/krxx/software.krx20", Dismiss);
    OpenMenu(4);
    ExpectDialog("delete-question", Dismiss);
    Press(panel::kDeleteButton);
}

// An empty file is one that no device takes.
void CScenes::TakeFailure() {
    const std::filesystem::path file = m_folder / "empty.fg";
    Require(std::ofstream(file).good(), "an empty file");
    ExpectMenu(nullptr, kUploadPhoneFile);
    ExpectFileDialog(nullptr, file, Accept);
    ExpectDialog(nullptr, [this](QDialog& box) {
        for (QAbstractButton* const button : box.findChildren<QAbstractButton*>()) {
            if (button->text().startsWith("Show Details")) {
                button->click();
            }
        }
        QCoreApplication::processEvents();
        m_camera.Take(box, "upload-failed");
        box.reject();
    });
    OpenMenu(4);
}

void CScenes::TakeHelp() {
    Press(panel::kHelpButton);
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "help") {
            m_camera.Take(*window, "help");
            window->close();
        }
    }
}

void CScenes::TakeDeviceThatFails() {
    Start("krx-21");
    ExpectDialog("details", Dismiss);
    Press(panel::kDetailsButton);
}

void CScenes::TakeSmallDevice() {
    Start("krx-8");
    SelectRow(4);
    ExpectMenu("menu-krx-8", kNone);
    OpenMenu(4);
    ExpectMenu(nullptr, kUploadFpgaCode);
    ExpectFileDialog("upload-code", m_folder / "package/Flash/krx8/krx8_fpga.bin", Dismiss);
    OpenMenu(4);
}

void CScenes::Start(const char* device, const char* pictureOfOffer) {
    const std::filesystem::path root = m_folder / "devices";
    const auto opened = simulator::OpenDevice(root / device);
    Require(opened.index() == 0, device);
    m_window = std::make_unique<workstation::CMainWindow>(workstation::CreatePanel(), root);
    ExpectDialog(pictureOfOffer, Dismiss);
    m_window->Start(workstation::OpenedDevice{root / device, std::get<0>(opened)});
    m_window->show();
    Finish();
}

void CScenes::ExpectDialog(const char* picture, ActInDialog act) {
    m_prompts.Expect<QDialog>([this, picture, act = std::move(act)](QDialog& dialog) {
        if (picture) {
            m_camera.Take(dialog, picture);
        }
        act(dialog);
    });
}

void CScenes::ExpectFileDialog(const char* picture, const std::filesystem::path& file,
                               ActInDialog act) {
    ExpectDialog(nullptr, [=, this](QDialog& dialog) {
        ShowFile(dynamic_cast<QFileDialog&>(dialog), QString::fromStdString(file.string()));
        if (picture) {
            m_camera.Take(dialog, picture);
        }
        act(dialog);
    });
}

void CScenes::ExpectMenu(const char* picture, int command) {
    m_prompts.Expect<QMenu>([this, picture, command](QMenu& menu) {
        if (picture) {
            m_camera.Take(menu, picture);
        }
        for (QAction* const action : menu.actions()) {
            if (command != kNone && action->data().toInt() == command) {
                QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
                return;
            }
        }
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
}

void CScenes::Press(panel::ControlId button) {
    dynamic_cast<QPushButton&>(Control(button)).click();
    Finish();
}

void CScenes::SelectRow(int row) { ClickRow(row, Qt::LeftButton); }

void CScenes::OpenMenu(int row) {
    ClickRow(row, Qt::RightButton);
    Finish();
}

void CScenes::ClickRow(int row, Qt::MouseButton button) const {
    auto& list = dynamic_cast<QTableView&>(Control(panel::kFileList));
    const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
    qttests::CControlUser(*list.parentWidget()).Click(*list.viewport(), place, button);
}

void CScenes::Finish() {
    const auto isDone = [this] {
        return m_prompts.GetOutstanding() == 0 && !QApplication::activeModalWidget() &&
               !QApplication::activePopupWidget() && m_window->IsIdle();
    };
    Require(QTest::qWaitFor(isDone, 20'000), "everything that was expected");
    Require(m_prompts.GetUnexpected().empty(), "only what was expected");
}

QWidget& CScenes::Control(panel::ControlId id) const {
    return *qttests::CControlUser(*m_window->findChild<QWidget*>("view-103")).FindWidget(id);
}

}
