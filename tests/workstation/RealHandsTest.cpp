// The whole program's window with a device in a folder, from the mouse and the keyboard to the
// bytes that are stored.

#include "tests/frontend/qt/RealHands.h"
#include "component/loader/ComponentLibrary.h"
#include "simulator/Device.h"
#include "simulator/DeviceFolder.h"
#include "tests/frontend/qt/PromptHands.h"
#include "tests/simulator/TemporaryFolder.h"
#include "tests/workstation/Until.h"
#include "workstation/MainWindow.h"
#include "workstation/PanelFactory.h"
#include "workstation/PanelPicture.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <variant>

namespace {

using testing::HasSubstr;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return (std::ostringstream() << stream.rdbuf()).str();
}

/// Does something when a window goes.
class HideWatch final : public QObject {
public:
    HideWatch(QWidget& window, std::function<void()> act) : m_act(std::move(act)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Hide) {
            m_act();
        }
        return false;
    }

private:
    const std::function<void()> m_act;
};

/// A copy of the sample KRX-20, whose package 2.5.13 is as new as the machine's unless a test says
/// otherwise.
class WorkstationHandsTest : public testing::Test {
protected:
    WorkstationHandsTest() {
        std::filesystem::copy(std::filesystem::path(KRX8_SAMPLES) / "krx-20", Folder(),
                              std::filesystem::copy_options::recursive);
        SetPackageVersion("2.5.13");
    }
    ~WorkstationHandsTest() override {
        EXPECT_THAT(m_prompts.GetUnexpected(), testing::IsEmpty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    std::filesystem::path Folder() const { return m_root.Path() / "bench"; }

    void SetPackageVersion(const std::string& version) {
        std::ofstream settings(qgetenv("KRX8_REGISTRY").toStdString());
        settings << R"({ "SOFTWARE/Vantor Mobile Phones/WstShared/Common/FlashUpdate":
                         { "FlashDir": ")"
                 << KRX8_PACKAGE << R"(", "FlashVersion": ")" << version << "\" } }";
        settings.close();
        ASSERT_TRUE(settings);
        ASSERT_TRUE(component::CComponentLibrary(KRX8_COMPONENT).Register().IsSuccess());
    }

    void SlowDown(const std::string& operation, int milliseconds) {
        std::string text = ReadFile(Folder() / "device.json");
        const std::string knob = R"("latency": { "operationsMs": { ")" + operation +
                                 "\": " + std::to_string(milliseconds) + " } },\n  ";
        text.insert(text.find("\"model\""), knob);
        std::ofstream(Folder() / "device.json") << text;
    }

    void StartWindow() {
        m_window = std::make_unique<workstation::CMainWindow>(workstation::CreatePanel(),
                                                              std::filesystem::path());
        m_window->show();
        m_hands.Activate(*m_window);
        const auto opened = simulator::OpenDevice(Folder());
        ASSERT_TRUE(std::holds_alternative<std::shared_ptr<simulator::CDevice>>(opened));
        m_window->Start(workstation::OpenedDevice{Folder(), std::get<0>(opened)});
        ASSERT_TRUE(WaitUntilIdle());
    }
    bool WaitUntilIdle() {
        return Until([this] { return m_window->IsIdle(); });
    }

    /// The size of the stored file of that name; -1 when the device has none.
    std::int32_t StoredSize(const std::string& name) const {
        const auto device = simulator::ReadDeviceFolder(Folder());
        if (const auto* description = std::get_if<simulator::DeviceDescription>(&device)) {
            for (const simulator::StoredFile& file : description->files) {
                if (file.name == name) {
                    return file.sizeBytes;
                }
            }
        }
        return -1;
    }

    void ExpectChoiceFromMenu(const QString& text) {
        m_prompts.Expect<QMenu>([this, text](QMenu& menu) {
            for (QAction* const action : menu.actions()) {
                if (action->text() == text) {
                    m_hands.Click(menu, menu.actionGeometry(action).center());
                }
            }
        });
    }

    void RightClickList() const {
        const auto& list = *m_window->findChild<QTableView*>();
        m_hands.Click(*list.viewport(), list.visualRect(list.model()->index(2, 0)).center(), 3);
    }

    void ExpectFileDialog(const std::string& path) {
        m_prompts.Expect<QFileDialog>([this, path](QFileDialog& dialog) {
            m_hands.Activate(dialog);
            m_hands.TypeFileName(dialog, QString::fromStdString(path));
            m_hands.PressKey("Return");
        });
    }

    /// Acts once, from a timer, while the device carries out what the status bar calls so.
    void OnceOperationLasts(const QString& name, std::function<void()> act) {
        auto* const timer = new QTimer(m_window.get());
        const auto* const label = m_window->findChild<QLabel*>("operation");
        QObject::connect(timer, &QTimer::timeout, [=, act = std::move(act)] {
            if (label->text().contains(name)) {
                timer->stop();
                act();
            }
        });
        timer->start(1);
    }

    /// What the panel shows beside that label.
    std::string Field(const std::string& label) const {
        for (const auto& field : workstation::ReadPanelPicture(m_window->PanelHolder()).fields) {
            if (field.label == label) {
                return field.value;
            }
        }
        return "no such field";
    }

    simulator::CTemporaryFolder m_root;
    qttests::CPromptHands m_prompts;
    qttests::CRealHands m_hands;
    std::unique_ptr<workstation::CMainWindow> m_window;
};

TEST_F(WorkstationHandsTest, CloseDuringAnUploadEndsTheWindowOnceTheFileIsStored) {
    const std::string content = std::string(300000, 'x') + "the end";
    m_root.Write("long.bin", content);
    SlowDown("ProgrammingDeviceControl.UploadPhoneFile", 500);
    StartWindow();
    bool isRequested = false;
    OnceOperationLasts("Upload phone file", [&] {
        isRequested = true;
        EXPECT_EQ(StoredSize("long.bin"), -1);
        m_hands.RequestClose(*m_window);
    });
    std::int32_t storedAtEnd = -1;
    const HideWatch watch(*m_window, [&] { storedAtEnd = StoredSize("long.bin"); });
    ExpectChoiceFromMenu("Upload Phone Code file");
    ExpectFileDialog((m_root.Path() / "long.bin").string());
    RightClickList();
    ASSERT_TRUE(Until([this] { return !m_window->isVisible(); }));
    EXPECT_TRUE(isRequested);
    EXPECT_EQ(storedAtEnd, 300007);
    EXPECT_EQ(ReadFile(Folder() / "files" / "long.bin"), content);
}

TEST_F(WorkstationHandsTest, UpdateAcceptedInThePromptIsCarriedOutAndShown) {
    SetPackageVersion("5.2.0");
    std::string before;
    m_prompts.Expect<QDialog>([&](QDialog& offer) {
        before = Field("Application SW") + " and " + Field("FPGA");
        EXPECT_EQ(offer.findChild<QLabel*>("control-241")->text(), "005.002.000");
        EXPECT_EQ(offer.findChild<QLabel*>("control-243")->text(), "002.005.013");
        m_hands.Activate(offer);
        m_hands.PressKey("Return");
    });
    m_prompts.Expect<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Prommer SW updated succesfully.");
        m_hands.Activate(box);
        m_hands.PressKey("Return");
    });
    StartWindow();
    EXPECT_EQ(before, "2.5.13 and 1.18");
    EXPECT_EQ(Field("Application SW") + " and " + Field("FPGA"), "2.8.0 and 1.21");
    const auto device = simulator::ReadDeviceFolder(Folder());
    EXPECT_EQ(std::get<simulator::DeviceDescription>(device).software.application, "2.8.0");
    EXPECT_GT(StoredSize("emmc_alg.fg"), 0);
    const auto log = workstation::ReadPanelPicture(m_window->PanelHolder()).logLines;
    EXPECT_THAT(log, testing::Contains("Currently installed Flash Update Package in Programming "
                                       "Device is: 005.002.000"));
}

}
