#include "frontend/qt/FileDialog.h"

#include "frontend/qt/QtToolkit.h"
#include "tests/frontend/qt/FileDialogUser.h"
#include "tests/frontend/qt/PromptHands.h"
#include "tests/simulator/TemporaryFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

namespace qttests {

namespace {

using panel::FileOutcome;

class FileDialogTest : public testing::Test {
protected:
    ~FileDialogTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    std::string PathOf(const std::string& name) const { return (m_folder.Path() / name).string(); }

    void ExpectDialog(std::function<void(QFileDialog&)> act) {
        m_prompts.Expect<QFileDialog>(std::move(act));
    }

    static std::string FolderOf(const QFileDialog& dialog) {
        return dialog.directory().absolutePath().toStdString();
    }

    simulator::CTemporaryFolder m_folder;
    CPromptHands m_prompts;
    qt::CQtToolkit m_toolkit;
};

TEST_F(FileDialogTest, DialogWithoutATitleHasTheToolkitsOwn) {
    ExpectDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open");
        dialog.reject();
    });
    m_toolkit.OpenFile({});
    ExpectDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save As");
        dialog.reject();
    });
    m_toolkit.SaveFile({});
}

TEST_F(FileDialogTest, FirstFilterIsChosen) {
    ExpectDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText(), "Code");
        EXPECT_EQ(dialog.findChild<QFileSystemModel*>()->nameFilters(), QStringList{"*.bin"});
        dialog.reject();
    });
    m_toolkit.OpenFile({.filters = {{"Code", "*.bin"}, {"All files", "*.*"}}});
}

TEST_F(FileDialogTest, StartFolderWithBackslashesIsFound) {
    std::string folder = m_folder.Path().string();
    std::ranges::replace(folder, '/', '\\');
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_EQ(FolderOf(dialog), m_folder.Path().string());
        dialog.reject();
    });
    m_toolkit.OpenFile({.startFolder = folder});
}

TEST_F(FileDialogTest, MissingStartFolderGivesTheNearestAboveIt) {
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_EQ(FolderOf(dialog), m_folder.Path().string());
        dialog.reject();
    });
    m_toolkit.OpenFile({.startFolder = PathOf("missing\\Flash")});
}

TEST_F(FileDialogTest, StartFolderWithNothingButTheRootAboveItGivesTheHomeFolder) {
    for (const char* folder : {"\\Flash", "C:\\Packages\\Flash"}) {
        ExpectDialog([](QFileDialog& dialog) {
            EXPECT_EQ(FolderOf(dialog), QDir::homePath().toStdString());
            dialog.reject();
        });
        m_toolkit.OpenFile({.startFolder = folder});
    }
}

TEST_F(FileDialogTest, SizesAndDatesAreShownWhole) {
    m_folder.Write("a_name_that_is_rather_long_for_a_file.bin", std::string(32'432, 'x'));
    ExpectDialog([](QFileDialog& dialog) {
        auto& files = *dialog.findChild<QTreeView*>("treeView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return files.indexAt(QPoint(5, 5)).isValid(); }));
        for (int column = 1; column < files.model()->columnCount(); ++column) {
            const QAbstractItemView& view = files;
            EXPECT_GE(files.columnWidth(column), view.sizeHintForColumn(column)) << column;
        }
        dialog.reject();
    });
    m_toolkit.OpenFile({.startFolder = m_folder.Path().string()});
}

TEST_F(FileDialogTest, ProposedNameIsTakenInTheStartFolder) {
    ExpectDialog([](QFileDialog& dialog) { CFileDialogUser(dialog).PressAccept(); });
    EXPECT_EQ(
        m_toolkit.SaveFile({.fileName = "report.txt", .startFolder = m_folder.Path().string()}),
        FileOutcome::Accepted(PathOf("report.txt")));
}

TEST_F(FileDialogTest, ReturnInTheNameFieldTakesTheFile) {
    m_folder.Write("code.bin", "code");
    ExpectDialog([this](QFileDialog& dialog) {
        CFileDialogUser user(dialog);
        user.SetName(PathOf("code.bin"));
        user.PressReturn();
    });
    EXPECT_EQ(m_toolkit.OpenFile({}), FileOutcome::Accepted(PathOf("code.bin")));
}

TEST_F(FileDialogTest, OpenButtonWaitsForAFileThatExists) {
    m_folder.Write("code.bin", "code");
    ExpectDialog([this](QFileDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        const auto* const open =
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        name->setText(QString::fromStdString(PathOf("other")));
        EXPECT_FALSE(open->isEnabled());
        name->setText(QString::fromStdString(PathOf("code")));
        EXPECT_TRUE(open->isEnabled());
        dialog.reject();
    });
    m_toolkit.OpenFile({.defaultExtension = "bin"});
}

TEST_F(FileDialogTest, MissingFileIsSaidAndTheDialogStaysOpen) {
    ExpectDialog([this](QFileDialog& dialog) {
        m_prompts.Expect<QMessageBox>([](QMessageBox& box) { box.accept(); });
        CFileDialogUser user(dialog);
        user.SetName(PathOf("missing.bin"));
        user.PressReturn();
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.OpenFile({}), FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, MissingFolderIsSaidAndTheDialogStaysOpen) {
    ExpectDialog([this](QFileDialog& dialog) {
        m_prompts.Expect<QMessageBox>([this](QMessageBox& box) {
            EXPECT_EQ(box.text().toStdString(), PathOf("missing") + "\nThe folder was not found.");
            box.accept();
        });
        CFileDialogUser user(dialog);
        user.SetName(PathOf("missing/report.txt"));
        user.PressReturn();
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.SaveFile({}), FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, PathThatIsTooLongIsSaidAndTheDialogStaysOpen) {
    ExpectDialog([this](QFileDialog& dialog) {
        m_prompts.Expect<QMessageBox>([this, &dialog](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), dialog.windowTitle());
            EXPECT_EQ(box.text().toStdString(),
                      PathOf("report.txt") + "\nThe path is too long. Choose a shorter name, or a "
                                             "folder with a shorter path.");
            box.accept();
        });
        CFileDialogUser user(dialog);
        EXPECT_FALSE(user.Accept(PathOf("report.txt")));
        EXPECT_TRUE(user.Accept(PathOf("a.txt")));
    });
    EXPECT_EQ(m_toolkit.SaveFile({.pathCapacity = PathOf("report.txt").size()}),
              FileOutcome::Accepted(PathOf("a.txt")));
}

TEST_F(FileDialogTest, PathThatIsTooLongWithItsExtensionIsRefused) {
    ExpectDialog([this](QFileDialog& dialog) {
        m_prompts.Expect<QMessageBox>([](QMessageBox& box) { box.accept(); });
        EXPECT_FALSE(CFileDialogUser(dialog).Accept(PathOf("report")));
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.SaveFile(
                  {.defaultExtension = "txt", .pathCapacity = PathOf("report.txt").size()}),
              FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, PathThatIsTooLongIsShownByItsEnds) {
    ExpectDialog([this](QFileDialog& dialog) {
        m_prompts.Expect<QMessageBox>([&dialog](QMessageBox& box) {
            EXPECT_LE(box.width(), dialog.width() + 200);
            EXPECT_TRUE(box.text().contains("xxx.txt\nThe path is too long."));
            box.accept();
        });
        EXPECT_FALSE(CFileDialogUser(dialog).Accept(PathOf(std::string(300, 'x') + ".txt")));
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.SaveFile({}), FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, FolderWithATooLongPathIsEnteredAllTheSame) {
    m_folder.Write("sub/code.bin", "code");
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_FALSE(CFileDialogUser(dialog).Accept(PathOf("sub")));
        EXPECT_EQ(FolderOf(dialog), PathOf("sub"));
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.OpenFile({.pathCapacity = 3}), FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, FolderIsEnteredRatherThanTaken) {
    m_folder.Write("sub/code.bin", "code");
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_FALSE(CFileDialogUser(dialog).Accept(PathOf("sub")));
        EXPECT_EQ(FolderOf(dialog), PathOf("sub"));
        dialog.reject();
    });
    EXPECT_EQ(m_toolkit.OpenFile({.defaultExtension = "bin"}), FileOutcome::Cancelled());
}

TEST_F(FileDialogTest, PathIsDeliveredWithoutDots) {
    m_folder.Write("code.bin", "code");
    m_folder.Write("sub/other.bin", "code");
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_TRUE(CFileDialogUser(dialog).Accept(PathOf("sub/../code.bin")));
    });
    EXPECT_EQ(m_toolkit.OpenFile({}), FileOutcome::Accepted(PathOf("code.bin")));
}

TEST_F(FileDialogTest, SavedNameGetsItsExtensionThoughAFileWithoutExists) {
    m_folder.Write("report", "old");
    ExpectDialog([this](QFileDialog& dialog) {
        EXPECT_TRUE(CFileDialogUser(dialog).Accept(PathOf("report")));
    });
    EXPECT_EQ(m_toolkit.SaveFile({.defaultExtension = "txt"}),
              FileOutcome::Accepted(PathOf("report.txt")));
}

TEST_F(FileDialogTest, DialogShowsTheArrowWhileACommandWaits) {
    m_toolkit.PushWaitCursor();
    ExpectDialog([](QFileDialog& dialog) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        dialog.reject();
    });
    m_toolkit.OpenFile({});
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    m_toolkit.PopCursor();
}

TEST_F(FileDialogTest, DialogEndedWithItsOwnerCountsAsCancelled) {
    auto owner = std::make_unique<QWidget>();
    ExpectDialog([&](QFileDialog&) { owner.reset(); });
    EXPECT_EQ(qt::RunFileDialog({}, qt::CFileDialog::Kind::Open, owner.get()),
              FileOutcome::Cancelled());
}

/// Ends the dialog's owner when asked for the file.
class CEndingHandler final : public panel::IFileDialogHandler {
public:
    explicit CEndingHandler(std::unique_ptr<QWidget>& owner) : m_owner(owner) {}

    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    bool OnFileAccepted() override {
        m_owner.reset();
        return true;
    }

private:
    std::unique_ptr<QWidget>& m_owner;
};

TEST_F(FileDialogTest, OwnerMayEndWhileTheOptionsAreAsked) {
    constexpr panel::DialogTemplate kNoControls{440, "", {133, 39}, {}};
    auto owner = std::make_unique<QWidget>();
    CEndingHandler handler(owner);
    ExpectDialog([this](QFileDialog& dialog) {
        CFileDialogUser user(dialog);
        user.SetName(PathOf("report.txt"));
        user.PressReturn();
    });
    EXPECT_EQ(qt::RunFileDialog({.optionsTemplate = &kNoControls, .optionsHandler = &handler},
                                qt::CFileDialog::Kind::Save, owner.get()),
              FileOutcome::Cancelled());
    EXPECT_EQ(owner, nullptr);
}

}

}
