// What a technician does to a device, from the mouse and the keyboard to the calls.

#include "tests/frontend/qt/RealHandsFixture.h"

#include "frontend/qt/QtToolkit.h"
#include "tests/simulator/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <gmock/gmock.h>

#include <fstream>
#include <numeric>
#include <sstream>

namespace qttests {

namespace {

using testing::ElementsAre;

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

    void ExpectFileDialog(const std::string& path) {
        m_prompts.Expect<QFileDialog>([this, path](QFileDialog& dialog) {
            m_hands.Activate(dialog);
            m_hands.Click(*dialog.findChild<QLineEdit*>("fileNameEdit"));
            m_hands.PressKey("ctrl+a");
            m_hands.Type(QString::fromStdString(path));
            m_hands.PressKey("Return");
        });
    }

    static std::string ReadFile(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        std::ostringstream content;
        content << stream.rdbuf();
        return content.str();
    }

    /// A report without what stands between "TIME: " and the end of that line.
    static std::string WithoutTime(std::string report) {
        const std::string mark = "TIME: ";
        const std::size_t time = report.find(mark) + mark.size();
        return report.erase(time, report.find("\r\n", time) - time);
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
    m_hands.Click(Control(panel::kReportButton));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_messageService->shown.size() == 1; }, 10000));
    EXPECT_THAT(m_messageService->shown.front().text, testing::HasSubstr(path));
    m_messageService->shown.clear();
    const panel::LocalTime now = qt::CQtToolkit().GetLocalTime();
    EXPECT_EQ(WithoutTime(ReadFile(path)), "KRX-20 MAINTENANCE INFO\r\n"
                                           "DATE: " +
                                               now.date +
                                               "\tTIME: \r\n"
                                               "SERIAL NUMBER : 00-00-5E-00-53-14\r\n"
                                               "BOOT SW VER : boot 1.02\r\n"
                                               "APPLICATION SW VER : app 3.04\r\n"
                                               "FPGA CODE VER : fpga 5.06\r\n"
                                               "HW VERSION : HW 2.1\r\n"
                                               "FLASH SIZE (MB) : 8\r\n"
                                               "SRAM SIZE (MB) : 2\r\n");
}

}

}
