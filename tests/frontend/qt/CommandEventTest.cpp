#include "frontend/qt/CommandEvent.h"

#include "frontend/qt/QtToolkit.h"
#include "panel/control/DialogHandler.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>
#include <gtest/gtest.h>

#include <vector>

namespace qttests {

namespace {

constexpr panel::ControlId kButton = 20;
constexpr panel::ControlTemplate kControls[] = {
    {kButton, panel::ControlKind::Button, "Button", {7, 7, 50, 14}},
};
constexpr panel::DialogTemplate kTemplate{500, "Title", {100, 50}, kControls};

class CRecordingHandler final : public panel::IDialogHandler {
public:
    void OnInit(panel::IView& view) override { m_view = &view; }
    void OnCommand(panel::ControlId id) override {
        m_commands.push_back(id);
        if (id == panel::kCancelButton) {
            m_view->EndDialog(0);
        }
    }

    panel::IView* m_view = nullptr;
    std::vector<panel::ControlId> m_commands;
};

/// A host that notes who asks, and objects if it is told to.
class CHostFilter final : public QObject {
public:
    CHostFilter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == qt::kCommandEvent) {
            m_askers.push_back(watched->objectName());
            event->setAccepted(!m_objects);
        }
        return false;
    }

    bool m_objects = false;
    std::vector<QString> m_askers;
};

class CommandEventTest : public testing::Test {
protected:
    ~CommandEventTest() override { EXPECT_TRUE(m_prompts.GetUnexpected().empty()); }

    QPushButton& Button() { return *m_window.findChild<QPushButton*>("control-20"); }

    CHostFilter m_host;
    CPromptHands m_prompts;
    CRecordingHandler m_handler;
    qt::CQtToolkit m_toolkit;
    QWidget m_window;
    std::unique_ptr<panel::IView> m_view = m_toolkit.CreateView(kTemplate, &m_window, m_handler);
};

TEST_F(CommandEventTest, PressIsAskedForAndHandedOn) {
    Button().click();
    EXPECT_EQ(m_host.m_askers, (std::vector<QString>{"control-20"}));
    EXPECT_EQ(m_handler.m_commands, (std::vector<panel::ControlId>{kButton}));
}

TEST_F(CommandEventTest, PressThatTheHostObjectsToIsDropped) {
    m_host.m_objects = true;
    Button().click();
    EXPECT_TRUE(m_handler.m_commands.empty());
    m_host.m_objects = false;
    Button().click();
    EXPECT_EQ(m_handler.m_commands, (std::vector<panel::ControlId>{kButton}));
}

TEST_F(CommandEventTest, DialogStaysOpenWhileTheHostObjects) {
    m_prompts.Expect<QDialog>([this](QDialog& dialog) {
        m_host.m_objects = true;
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(m_handler.m_commands.empty());
        m_host.m_objects = false;
        dialog.close();
        EXPECT_FALSE(dialog.isVisible());
    });
    m_toolkit.RunDialog(kTemplate, m_handler, panel::Owner::None);
    EXPECT_EQ(m_handler.m_commands, (std::vector<panel::ControlId>{panel::kCancelButton}));
    EXPECT_EQ(m_host.m_askers, (std::vector<QString>{"dialog-500", "dialog-500"}));
}

}

}
