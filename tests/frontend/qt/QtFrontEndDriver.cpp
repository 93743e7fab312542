#include "tests/frontend/qt/QtFrontEndDriver.h"

#include "frontend/qt/QtView.h"
#include "tests/frontend/qt/FileDialogUser.h"
#include "tests/frontend/qt/MenuUser.h"
#include "tests/frontend/qt/QtViewUser.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

#include <utility>

namespace qttests {

namespace {

constexpr std::int32_t kOk = 1;
constexpr std::int32_t kYes = 6;

conformance::ShownBox Read(const QMessageBox& box) {
    constexpr std::uint32_t kIcons[] = {0x00, 0x40, 0x30, 0x10, 0x20}; // as QMessageBox::Icon
    const bool isQuestion = box.standardButtons() == (QMessageBox::Yes | QMessageBox::No);
    EXPECT_TRUE(isQuestion || box.standardButtons() == QMessageBox::Ok);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    return {box.text().toStdString(), box.windowTitle().toStdString(),
            kIcons[box.icon()] | (isQuestion ? 0x04u : 0x00u)};
}

QPushButton* FindButton(const QMessageBox& box, std::int32_t button) {
    const auto which = button == kOk    ? QMessageBox::Ok
                       : button == kYes ? QMessageBox::Yes
                                        : QMessageBox::No;
    return dynamic_cast<QPushButton*>(box.button(which));
}

}

CQtFrontEndDriver::~CQtFrontEndDriver() {
    for (const std::string& prompt : m_prompts.GetUnexpected()) {
        ADD_FAILURE() << "unexpected prompt: " << prompt;
    }
    EXPECT_EQ(m_prompts.GetOutstanding(), 0u) << "expected prompts did not come";
}

std::unique_ptr<panel::IView>
CQtFrontEndDriver::CreateView(const panel::DialogTemplate& dialogTemplate,
                              panel::IDialogHandler& handler) {
    auto view = m_toolkit.CreateView(dialogTemplate, &m_window, handler);
    const panel::Size size = view->GetClientSize();
    m_window.resize(size.width, size.height);
    m_window.show();
    m_window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    return view;
}

std::unique_ptr<panel::IView>
CQtFrontEndDriver::CreateViewInVain(const panel::DialogTemplate& dialogTemplate,
                                    panel::IDialogHandler& handler) {
    return m_toolkit.CreateView(dialogTemplate, nullptr, handler);
}

conformance::IViewUser& CQtFrontEndDriver::UserOf(panel::IView& view) {
    return AddUser(*dynamic_cast<qt::CQtView&>(view).GetWidget());
}

conformance::IViewUser& CQtFrontEndDriver::AddUser(QWidget& view) {
    m_users.push_back(std::make_unique<CQtViewUser>(view));
    return *m_users.back();
}

void CQtFrontEndDriver::ExpectBox(std::int32_t button, std::function<void()> whileOpen) {
    m_prompts.Expect<QMessageBox>([this, button, whileOpen](QMessageBox& box) {
        m_boxes.push_back(Read(box));
        if (whileOpen) {
            whileOpen();
        }
        QPushButton* const toPress = FindButton(box, button);
        ASSERT_NE(toPress, nullptr);
        QTest::mouseClick(toPress, Qt::LeftButton);
    });
}

void CQtFrontEndDriver::ExpectBoxAndEscape() {
    m_prompts.Expect<QMessageBox>([this](QMessageBox& box) {
        m_boxes.push_back(Read(box));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
}

void CQtFrontEndDriver::ExpectDialog(std::function<void(conformance::IViewUser&)> act) {
    m_prompts.Expect<QDialog>([this, act](QDialog& dialog) {
        const QPointer<QDialog> open(&dialog);
        QWidget* const view =
            dialog.findChildren<QWidget*>(QRegularExpression("^view-[0-9]+$")).value(0);
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        act(AddUser(*view));
        if (open && open->isVisible()) {
            QTest::keyClick(open, Qt::Key_Escape);
        }
        if (open && open->isVisible()) {
            open->done(2);
        }
    });
}

void CQtFrontEndDriver::ExpectMenu(int command, std::function<void()> whileOpen) {
    m_prompts.Expect<QMenu>([this, command, whileOpen](QMenu& menu) {
        m_menus.push_back(ReadMenu(menu));
        if (whileOpen) {
            whileOpen();
        }
        ChooseFromMenu(menu, command);
    });
}

void CQtFrontEndDriver::ExpectFileDialog(std::function<void(conformance::IFileDialogUser&)> act) {
    m_prompts.Expect<QFileDialog>([act](QFileDialog& dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        CFileDialogUser user(dialog);
        act(user);
        user.Cancel();
    });
}

void CQtFrontEndDriver::ExpectFileRefusal() {
    m_prompts.Expect<QMessageBox>([](QMessageBox& box) { box.accept(); });
}

bool CQtFrontEndDriver::IsWaitCursorShown() {
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

bool CQtFrontEndDriver::IsHelpViewerShown() {
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("help") && window->isVisible()) {
            return true;
        }
    }
    return false;
}

}

namespace conformance {

std::unique_ptr<IFrontEndDriver> MakeDriver() {
    return std::make_unique<qttests::CQtFrontEndDriver>();
}

}
