#include "frontend/qt/QtToolkit.h"
#include "panel/control/DialogHandler.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QDialog>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <gtest/gtest.h>

namespace qttests {

namespace {

constexpr panel::ControlTemplate kControls[] = {
    {panel::kOkButton, panel::ControlKind::DefaultButton, "OK", {7, 7, 50, 14}},
};
constexpr panel::DialogTemplate kTemplate{500, "Title [*]", {100, 50}, kControls};

class CSilentHandler final : public panel::IDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
};

/// Ends a window when it is initialised.
class CEndingHandler final : public panel::IDialogHandler {
public:
    explicit CEndingHandler(std::unique_ptr<QWidget>& window) : m_window(window) {}

    void OnInit(panel::IView&) override { m_window.reset(); }
    void OnCommand(panel::ControlId) override {}

private:
    std::unique_ptr<QWidget>& m_window;
};

class QtToolkitTest : public testing::Test {
protected:
    ~QtToolkitTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    static Qt::CursorShape ShownCursor() { return QGuiApplication::overrideCursor()->shape(); }

    static QList<QDialog*> HelpWindows() {
        QList<QDialog*> found;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("help")) {
                found.append(dynamic_cast<QDialog*>(window));
            }
        }
        return found;
    }

    static QString HelpText() {
        return HelpWindows().value(0)->findChild<QTextEdit*>()->toPlainText();
    }

    CSilentHandler m_handler;
    CPromptHands m_prompts;
    qt::CQtToolkit m_toolkit;
};

TEST_F(QtToolkitTest, BoxShowsTheArrowWhileACommandWaits) {
    m_toolkit.PushWaitCursor();
    m_prompts.Expect<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(ShownCursor(), Qt::ArrowCursor);
        box.accept();
    });
    m_toolkit.ShowBox("text", "caption", 0x10);
    EXPECT_EQ(ShownCursor(), Qt::WaitCursor);
    m_toolkit.PopCursor();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(QtToolkitTest, BoxIsModalAndHasNoOwner) {
    QWidget window;
    const auto view = m_toolkit.CreateView(kTemplate, &window, m_handler);
    window.show();
    m_prompts.Expect<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), nullptr);
        EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
        box.accept();
    });
    m_toolkit.ShowBox("text", "caption", 0x10);
}

TEST_F(QtToolkitTest, PopCursorGivesTheHostsCursorBack) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::SizeAllCursor));
    m_toolkit.PushWaitCursor();
    EXPECT_EQ(ShownCursor(), Qt::WaitCursor);
    m_toolkit.PopCursor();
    EXPECT_EQ(ShownCursor(), Qt::SizeAllCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(QtToolkitTest, PopCursorWithoutPushLeavesTheHostsCursor) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::SizeAllCursor));
    m_toolkit.PopCursor();
    EXPECT_EQ(ShownCursor(), Qt::SizeAllCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(QtToolkitTest, DialogHasItsTitleAndAFixedSize) {
    m_prompts.Expect<QDialog>([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Title [*][*]"));
        EXPECT_EQ(dialog.minimumSize(), QSize(175, 81));
        EXPECT_EQ(dialog.maximumSize(), QSize(175, 81));
        dialog.done(0);
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::None);
}

TEST_F(QtToolkitTest, DialogEndedWithItsOwnerCountsAsCancelled) {
    auto window = std::make_unique<QWidget>();
    const auto view = m_toolkit.CreateView(kTemplate, window.get(), m_handler);
    m_prompts.Expect<QDialog>([&](QDialog& dialog) {
        EXPECT_EQ(dialog.parentWidget(), window.get());
        window.reset();
    });
    EXPECT_EQ(m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::PanelParent),
              panel::DialogOutcome::Closed(panel::kCancelButton));
}

TEST_F(QtToolkitTest, DialogEndedWithItsOwnerDuringInitIsNotShown) {
    auto window = std::make_unique<QWidget>();
    const auto view = m_toolkit.CreateView(kTemplate, window.get(), m_handler);
    CEndingHandler handler(window);
    EXPECT_EQ(m_toolkit.RunDialog(kTemplate, handler, panel::Owner::PanelParent),
              panel::DialogOutcome::Closed(panel::kCancelButton));
    EXPECT_EQ(window, nullptr);
}

TEST_F(QtToolkitTest, MissingHelpFileIsNamedInTheWindow) {
    m_toolkit.ShowHelp("/no-such-folder/panel.hlp", 1, panel::Owner::None);
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(HelpWindows().front()->windowTitle(), QStringLiteral("Help"));
    EXPECT_FALSE(HelpWindows().front()->isModal());
    EXPECT_TRUE(HelpText().contains("was not found"));
    EXPECT_TRUE(HelpText().contains("/no-such-folder/panel.hlp"));
}

TEST_F(QtToolkitTest, HelpFileIsShownInTheSameWindowAgain) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("panel.hlp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# 1 First\n\nNothing\n\n# 2 Reset\n\nHow to reset a device\n");
    file.close();
    m_toolkit.ShowHelp("missing", 1, panel::Owner::None);
    m_toolkit.ShowHelp(file.fileName().toStdString(), 2, panel::Owner::None);
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(HelpText(), QStringLiteral("Reset\nHow to reset a device"));
}

TEST_F(QtToolkitTest, EscapeClosesHelpAndItCanBeShownAgain) {
    m_toolkit.ShowHelp("missing", 1, panel::Owner::None);
    QTest::keyClick(HelpWindows().front(), Qt::Key_Escape);
    EXPECT_FALSE(HelpWindows().front()->isVisible());
    m_toolkit.ShowHelp("missing", 1, panel::Owner::None);
    EXPECT_TRUE(HelpWindows().front()->isVisible());
}

TEST_F(QtToolkitTest, HelpOverADialogBelongsToIt) {
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        m_toolkit.ShowHelp("missing", 1, panel::Owner::ActiveWindow);
        EXPECT_EQ(HelpWindows().front()->parentWidget(), &dialog);
        dialog.done(0);
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::None);
    m_toolkit.ShowHelp("missing", 1, panel::Owner::None);
    EXPECT_EQ(HelpWindows().size(), 1);
}

TEST_F(QtToolkitTest, HelpOverADialogStaysForTheDialogsOwner) {
    QWidget window;
    const auto view = m_toolkit.CreateView(kTemplate, &window, m_handler);
    window.show();
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        m_toolkit.ShowHelp("/no-such-folder/panel.hlp", 1, panel::Owner::ActiveWindow);
        HelpWindows().front()->setGeometry(20, 30, 300, 200);
        dialog.done(0);
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::PanelParent);
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_TRUE(HelpWindows().front()->isVisible());
    EXPECT_EQ(HelpWindows().front()->parentWidget(), &window);
    EXPECT_EQ(HelpWindows().front()->geometry(), QRect(20, 30, 300, 200));
    EXPECT_TRUE(HelpText().contains("/no-such-folder/panel.hlp"));
}

TEST_F(QtToolkitTest, HelpClosedOverADialogStaysClosed) {
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        m_toolkit.ShowHelp("missing", 1, panel::Owner::ActiveWindow);
        HelpWindows().front()->reject();
        dialog.done(0);
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::None);
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_FALSE(HelpWindows().front()->isVisible());
}

TEST_F(QtToolkitTest, HelpOverADialogGoesWithTheWindowThatBothBelongTo) {
    auto window = std::make_unique<QWidget>();
    const auto view = m_toolkit.CreateView(kTemplate, window.get(), m_handler);
    window->show();
    m_prompts.Expect<QDialog>([&](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        m_toolkit.ShowHelp("missing", 1, panel::Owner::ActiveWindow);
        window.reset();
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::PanelParent);
    EXPECT_EQ(HelpWindows().size(), 0);
}

TEST_F(QtToolkitTest, PathSeparatorIsThatOfThePathsDelivered) {
    EXPECT_EQ(m_toolkit.GetPathSeparator(), '/');
}

TEST_F(QtToolkitTest, LocalTimeIsTheSystemsShortDateAndTime) {
    const auto read = [] {
        const QLocale locale = QLocale::system();
        const QDateTime now = QDateTime::currentDateTime();
        return std::pair(locale.toString(now.date(), QLocale::ShortFormat).toStdString(),
                         locale.toString(now.time(), QLocale::ShortFormat).toStdString());
    };
    const auto before = read();
    const panel::LocalTime now = m_toolkit.GetLocalTime();
    const std::pair shown(now.date, now.time);
    EXPECT_TRUE(shown == before || shown == read()) << now.date << ' ' << now.time;
}

TEST_F(QtToolkitTest, ComponentFolderHoldsThisProgram) {
    EXPECT_EQ(m_toolkit.GetComponentFolder(), QCoreApplication::applicationDirPath().toStdString());
}

TEST_F(QtToolkitTest, TraceWritesToTheErrorStream) {
    testing::internal::CaptureStderr();
    m_toolkit.Trace("Class::Method: line\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Class::Method: line\n");
}

}

}
