#include "frontend/qt/QtToolkit.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace qttests {

namespace {

constexpr panel::ControlTemplate kControls[] = {
    {265, panel::ControlKind::DropDownList, "", {52, 4, 77, 14}, {}, 265},
    {267, panel::ControlKind::DropDownList, "", {52, 21, 77, 14}},
};
constexpr panel::DialogTemplate kOptions{440, "", {133, 39}, kControls};

/// Options that write down the help requests.
class CAskedHandler final : public panel::IFileDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    void OnHelp(std::uint32_t context) override { contexts.push_back(context); }
    bool OnFileAccepted() override { return true; }

    std::vector<std::uint32_t> contexts;
};

class FileDialogHelpTest : public testing::Test {
protected:
    ~FileDialogHelpTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    /// The help requests of F1 on a widget of the dialog.
    template <class Find>
    std::vector<std::uint32_t> AskOn(Find find) {
        m_prompts.Expect<QFileDialog>([find](QFileDialog& dialog) {
            QWidget* const widget = find(dialog);
            EXPECT_NE(widget, nullptr);
            if (widget) {
                QTest::keyClick(widget, Qt::Key_F1);
            }
            dialog.reject();
        });
        CAskedHandler handler;
        m_toolkit.OpenFile({.optionsTemplate = &kOptions, .optionsHandler = &handler});
        return handler.contexts;
    }
    template <class Widget>
    std::vector<std::uint32_t> AskOn(const char* name) {
        return AskOn([name](QFileDialog& dialog) { return dialog.findChild<Widget*>(name); });
    }

    CPromptHands m_prompts;
    qt::CQtToolkit m_toolkit;
};

using Contexts = std::vector<std::uint32_t>;

TEST_F(FileDialogHelpTest, HelpKeyOnAnOptionCarriesItsContext) {
    EXPECT_EQ(AskOn<QComboBox>("control-265"), Contexts{265});
}

TEST_F(FileDialogHelpTest, HelpKeyWhereTheFocusStartsReachesTheOptions) {
    EXPECT_EQ(AskOn([](QFileDialog& dialog) { return dialog.focusWidget(); }), Contexts{0});
}

TEST_F(FileDialogHelpTest, HelpKeyAnywhereInTheWindowReachesTheOptions) {
    EXPECT_EQ(AskOn<QWidget>("control-267"), Contexts{0});
    EXPECT_EQ(AskOn<QLineEdit>("fileNameEdit"), Contexts{0});
    EXPECT_EQ(AskOn<QTreeView>("treeView"), Contexts{0});
    EXPECT_EQ(AskOn([](QFileDialog& dialog) {
                  return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
              }),
              Contexts{0});
    EXPECT_EQ(AskOn([](QFileDialog& dialog) { return &dialog; }), Contexts{0});
}

TEST_F(FileDialogHelpTest, HelpKeyInAnotherWindowDoesNotReachTheOptions) {
    QWidget other;
    EXPECT_EQ(AskOn([&other](QFileDialog&) { return &other; }), Contexts{});
}

}

}
