#include "frontend/qt/QtToolkit.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

namespace qttests {

namespace {

/// Options that take every file.
class CWillingHandler final : public panel::IFileDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    bool OnFileAccepted() override { return true; }
};

/// The controls of our own in a file dialog, where the user meets them.
class FileDialogOptionsTest : public testing::Test {
protected:
    ~FileDialogOptionsTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    void Show(std::function<void(QFileDialog&)> act) {
        m_prompts.Expect<QFileDialog>([act = std::move(act)](QFileDialog& dialog) {
            act(dialog);
            dialog.reject();
        });
        CWillingHandler handler;
        m_toolkit.OpenFile(
            {.optionsTemplate = &panel::kPhoneFileUploadTemplate, .optionsHandler = &handler});
    }
    static QWidget& Options(const QFileDialog& dialog) {
        return *dialog.findChild<QWidget*>("view-116");
    }
    static QRect PlaceOf(const QWidget& widget, const QFileDialog& dialog) {
        return {widget.mapTo(&dialog, QPoint()), widget.size()};
    }

    CPromptHands m_prompts;
    qt::CQtToolkit m_toolkit;
};

TEST_F(FileDialogOptionsTest, OptionsStandBelowTheListOfFiles) {
    Show([](QFileDialog& dialog) {
        const QRect files = PlaceOf(*dialog.findChild<QTreeView*>("treeView"), dialog);
        EXPECT_GT(PlaceOf(Options(dialog), dialog).top(), files.bottom());
        for (const char* control : {"control-265", "control-267"}) {
            EXPECT_TRUE(dialog.findChild<QComboBox*>(control)->isVisible()) << control;
        }
        EXPECT_EQ(dialog.findChild<QLabel*>("control-264")->text(), "Method:");
        EXPECT_EQ(dialog.findChild<QLabel*>("control-266")->text(), "Destination:");
    });
}

TEST_F(FileDialogOptionsTest, LargerDialogGivesItsRoomToTheListOfFiles) {
    Show([](QFileDialog& dialog) {
        const auto& files = *dialog.findChild<QTreeView*>("treeView");
        const QSize before = files.size();
        const QSize options = Options(dialog).size();
        dialog.resize(dialog.size() + QSize(120, 90));
        ASSERT_TRUE(QTest::qWaitFor([&] { return files.size() != before; }));
        EXPECT_EQ(files.size(), before + QSize(120, 90));
        EXPECT_EQ(Options(dialog).size(), options);
    });
}

}

}
