// What a technician does to a device, from the mouse and the keyboard to the calls.

#include "tests/frontend/qt/RealHandsFixture.h"

#include "tests/simulator/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <gmock/gmock.h>

#include <ctime>
#include <fstream>
#include <numeric>
#include <sstream>

namespace qttests {

namespace {

using testing::AnyOf;

using Calls = std::vector<std::string>;

constexpr int kYes = 6;

class RealHandsCommandsTest : public RealHandsTest {
protected:
    static bool IsIdle() {
        return !QApplication::activePopupWidget() && !QApplication::activeModalWidget();
    }
    bool WaitForCalls(const Calls& calls) const {
        return QTest::qWaitFor([&] { return m_device->calls == calls && IsIdle(); }, 10000);
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

    void TypeFileName(QFileDialog& dialog, const std::string& path) {
        m_hands.Activate(dialog);
        m_hands.TypeFileName(dialog, QString::fromStdString(path));
    }

    void ExpectFileDialog(const std::string& path) {
        m_prompts.Expect<QFileDialog>([this, path](QFileDialog& dialog) {
            TypeFileName(dialog, path);
            m_hands.PressKey("Return");
        });
    }

    /// Goes from control to control until it is there.
    void TabTo(const QWidget& widget) {
        constexpr int kControls = 20;
        for (int i = 0; i < kControls && !widget.hasFocus(); ++i) {
            const QPointer<QWidget> from = QApplication::focusWidget();
            m_hands.PressKey("Tab");
            ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() != from; }));
        }
        EXPECT_TRUE(widget.hasFocus());
    }

    static std::string ReadFile(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        std::ostringstream content;
        content << stream.rdbuf();
        return content.str();
    }

    /// Date and time as this program's locale (RealHandsMain.cpp) writes them, short.
    static std::string ReportTimeLine() {
        const std::time_t now = std::time(nullptr);
        std::tm local{};
        localtime_r(&now, &local);
        char line[60];
        EXPECT_GT(std::strftime(line, sizeof line, "DATE: %d.%m.%y\tTIME: %H:%M\r\n", &local), 0u);
        return line;
    }

    simulator::CTemporaryFolder m_folder;
};

TEST_F(RealHandsCommandsTest, MenuKeyOpensTheMenuAtTheFocusedRow) {
    m_hands.Click(*List().viewport(), PlaceOf(3));
    ASSERT_TRUE(WaitForSelection({3}));
    m_prompts.Expect<QMenu>([this](QMenu& menu) {
        const QRect row = List().visualRect(List().model()->index(3, 0));
        EXPECT_EQ(menu.pos(), List().viewport()->mapToGlobal(row.topLeft()));
        m_hands.PressKey("a");
    });
    m_hands.PressKey("Menu");
    Rows all(kFiles);
    std::iota(all.begin(), all.end(), 0);
    EXPECT_TRUE(WaitForSelection(all));
}

TEST_F(RealHandsCommandsTest, MenuKeyOpensTheMenuInTheCornerOfAListScrolledAside) {
    m_hands.Click(*List().viewport(), PlaceOf(3));
    ASSERT_TRUE(WaitForSelection({3}));
    List().setColumnWidth(0, 600);
    List().horizontalScrollBar()->setValue(40);
    m_prompts.Expect<QMenu>([this](QMenu& menu) {
        EXPECT_EQ(menu.pos(), List().mapToGlobal(QPoint(2, 3)));
        m_hands.PressKey("Escape");
    });
    m_hands.PressKey("Menu");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_prompts.GetOutstanding() == 0 && IsIdle(); }));
}

TEST_F(RealHandsCommandsTest, DeleteKeyDeletesTheSelectedFiles) {
    m_messageService->answers = {kYes};
    m_hands.Click(*List().viewport(), PlaceOf(3));
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(5));
    ASSERT_TRUE(WaitForSelection({3, 4, 5}));
    m_hands.PressKey("Delete");
    EXPECT_TRUE(WaitForCalls({"DeleteFile(22, 3)", "DeleteFile(22, 4)", "DeleteFile(22, 5)"}));
    EXPECT_EQ(m_messageService->shown.size(), 1u);
    m_messageService->shown.clear();
}

TEST_F(RealHandsCommandsTest, PhoneFileIsUploadedWithTheMethodProposed) {
    m_folder.Write("phone.bin", "code");
    const std::string path = (m_folder.Path() / "phone.bin").string();
    ExpectChoiceFromMenu("Upload Phone Code file");
    ExpectFileDialog(path);
    m_hands.Click(*List().viewport(), PlaceOf(2), 3);
    EXPECT_TRUE(WaitForCalls({"UploadPhoneFile(" + path + ", 0, 3)"}));
}

TEST_F(RealHandsCommandsTest, AddressTypedInTheNetworkDialogReachesTheDevice) {
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        m_hands.Activate(dialog);
        QWidget* const field = dialog.findChild<QWidget*>("control-247");
        m_hands.Click(*field->findChildren<QLineEdit*>().at(0));
        m_hands.PressKey("ctrl+a");
        m_hands.Type("10.20.0.7");
        m_hands.PressKey("Return");
    });
    m_hands.Click(Control(panel::kNetworkButton));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            return !m_device->calls.empty() && m_device->calls.back() == "ApplyConfiguration()";
        },
        10000));
    EXPECT_EQ(m_device->calls.front(), "SetIpAddress(0x0700140A)");
}

TEST_F(RealHandsCommandsTest, ReportIsSavedWhereTheUserNamesIt) {
    const std::string path = (m_folder.Path() / "report.txt").string();
    ExpectFileDialog((m_folder.Path() / "report").string());
    const std::string before = ReportTimeLine();
    m_hands.Click(Control(panel::kReportButton));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_messageService->shown.size() == 1; }, 10000));
    EXPECT_EQ(m_messageService->shown.front().text,
              "Information about the Programming Device is saved.\n\nThe full path to the report "
              "file is:\n" +
                  path);
    m_messageService->shown.clear();
    const auto report = [](const std::string& timeLine) {
        return "KRX-20 MAINTENANCE INFO\r\n" + timeLine +
               "SERIAL NUMBER : 00-00-5E-00-53-14\r\n"
               "BOOT SW VER : boot 1.02\r\n"
               "APPLICATION SW VER : app 3.04\r\n"
               "FPGA CODE VER : fpga 5.06\r\n"
               "HW VERSION : HW 2.1\r\n"
               "FLASH SIZE (MB) : 8\r\n"
               "SRAM SIZE (MB) : 2\r\n";
    };
    // The minute may have passed meanwhile.
    EXPECT_THAT(ReadFile(path), AnyOf(report(before), report(ReportTimeLine())));
}

TEST_F(RealHandsCommandsTest, MethodAndDestinationAreChosenByKeyboard) {
    m_folder.Write("phone.bin", "code");
    const std::string path = (m_folder.Path() / "phone.bin").string();
    ExpectChoiceFromMenu("Upload Phone Code file");
    m_prompts.Expect<QFileDialog>([this, path](QFileDialog& dialog) {
        TypeFileName(dialog, path);
        TabTo(*dialog.findChild<QComboBox*>("control-265"));
        m_hands.PressKey("Up");
        m_hands.PressKey("Up");
        TabTo(*dialog.findChild<QComboBox*>("control-267"));
        m_hands.PressKey("Down");
        m_hands.PressKey("Down");
        m_hands.PressKey("alt+o");
    });
    m_hands.Click(*List().viewport(), PlaceOf(2), 3);
    constexpr const char* kForceToFlash = ", 2, 1)";
    EXPECT_TRUE(WaitForCalls({"UploadPhoneFile(" + path + kForceToFlash}));
}

TEST_F(RealHandsCommandsTest, SelectedFilesAreMovedToTheMemoryCard) {
    m_hands.Click(*List().viewport(), PlaceOf(3));
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(4));
    ASSERT_TRUE(WaitForSelection({3, 4}));
    ExpectChoiceFromMenu("Move file to external storage");
    m_hands.Click(*List().viewport(), PlaceOf(4), 3);
    EXPECT_TRUE(WaitForCalls({"MoveFile(22, 3, 3, 0)", "MoveFile(22, 4, 3, 0)"}));
}

TEST_F(RealHandsCommandsTest, ImageChosenFromTheMenuIsUploaded) {
    m_folder.Write("software.krx20", "image");
    const std::string path = (m_folder.Path() / "software.krx20").string();
    ExpectChoiceFromMenu("Update KRX-20 software");
    ExpectFileDialog(path);
    m_hands.Click(*List().viewport(), PlaceOf(2), 3);
    EXPECT_TRUE(WaitForCalls({"UploadCode(" + path + ", -1, -1, -1)"}));
}

TEST_F(RealHandsCommandsTest, UpdateButtonUpdatesFromTheFileNamed) {
    m_folder.Write("bench.ini", "[package]");
    const std::string path = (m_folder.Path() / "bench.ini").string();
    ExpectFileDialog(path);
    m_hands.Click(Control(panel::kUpdateButton));
    ASSERT_TRUE(WaitForCalls({"UpdateFromIniFile(" + path + ")"}));
    ASSERT_EQ(m_messageService->shown.size(), 1u);
    EXPECT_EQ(m_messageService->shown.front().text, "Prommer SW updated succesfully.");
    m_messageService->shown.clear();
}

TEST_F(RealHandsCommandsTest, ResetButtonResetsTheDevice) {
    m_hands.Click(Control(panel::kResetButton));
    EXPECT_TRUE(WaitForCalls({"RequestMode(4)"}));
}

TEST_F(RealHandsCommandsTest, MediaTickedInTheNetworkDialogAreFormatted) {
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        m_hands.Activate(dialog);
        m_hands.Click(*dialog.findChild<QWidget*>("control-250"), QPoint(8, 8));
        m_hands.PressKey("Tab");
        m_hands.PressKey("space");
        m_hands.PressKey("Return");
    });
    m_hands.Click(Control(panel::kNetworkButton));
    EXPECT_TRUE(WaitForCalls({"PrepareMedia(1)", "PrepareMedia(2)", "SetDhcp(false)",
                              "SetSubnetMask(0x00FFFFFF)", "SetGateway(0xFE00A8C0)",
                              "SetDescription(bench 3)", "ApplyConfiguration()", "RequestMode(1)",
                              "RerunMediaTests(0x00012000)"}));
}

}

}
