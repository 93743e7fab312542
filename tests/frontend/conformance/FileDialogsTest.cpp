#include "tests/frontend/conformance/ConformanceTest.h"
#include "tests/simulator/TemporaryFolder.h"

#include <ostream>

namespace panel {

static void PrintTo(const FileOutcome& outcome, std::ostream* stream) {
    *stream << "kind " << static_cast<int>(outcome.kind) << " code " << outcome.code << " path \""
            << outcome.path << '"';
}

}

namespace conformance {

namespace {

using panel::FileOutcome;

using Texts = std::vector<std::string>;

constexpr panel::ControlId kMethod = 431;

constexpr panel::ControlTemplate kOptionsControls[] = {
    {430, panel::ControlKind::Label, "Method:", {4, 6, 44, 8}},
    {kMethod, panel::ControlKind::DropDownList, "", {52, 4, 77, 14}},
};
constexpr panel::DialogTemplate kOptionsTemplate{430, "", {133, 22}, kOptionsControls};

/// Refuses a file until a method is chosen.
class CMethodHandler final : public panel::IFileDialogHandler {
public:
    void OnInit(panel::IView& view) override {
        events.push_back("init");
        m_view = &view;
        view.AddChoice(kMethod, "Force", 1);
        view.AddChoice(kMethod, "Version", 2);
    }
    void OnCommand(panel::ControlId) override { events.push_back("command"); }
    bool OnFileAccepted() override {
        events.push_back("accepted");
        chosen = m_view->GetSelectedChoice(kMethod);
        if (chosen == panel::kNoChoice && onRefusal) {
            onRefusal();
        }
        return chosen != panel::kNoChoice;
    }

    panel::IView& View() { return *m_view; }

    Events events;
    int chosen = panel::kNoChoice;
    std::function<void()> onRefusal;

private:
    panel::IView* m_view = nullptr;
};

class FileDialogsTest : public ConformanceTest {
protected:
    void SetUp() override {
        Show();
        m_folder.Write("code.bin", "code");
        m_folder.Write("code.Fpg", "code");
        m_folder.Write("plain", "code");
    }

    std::string PathOf(const std::string& name) const { return m_folder.PathOf(name); }

    panel::FileDialog WithOptions() {
        return {.optionsTemplate = &kOptionsTemplate, .optionsHandler = &m_options};
    }

    /// What an open or save dialog delivers for a path that the user names.
    FileOutcome Open(const panel::FileDialog& dialog, const std::string& path) {
        Choose(path);
        return Toolkit().OpenFile(dialog);
    }
    FileOutcome Save(const panel::FileDialog& dialog, const std::string& path) {
        Choose(path);
        return Toolkit().SaveFile(dialog);
    }
    void Choose(const std::string& path) {
        m_driver->ExpectFileDialog(
            [path](IFileDialogUser& user) { EXPECT_TRUE(user.Accept(path)); });
    }

    /// Names a path that is not taken, and gives up.
    void ChooseInVain(const std::string& path) {
        m_driver->ExpectFileDialog([this, path](IFileDialogUser& user) {
            m_driver->ExpectFileRefusal();
            user.Accept(path);
            user.Cancel();
        });
    }

    simulator::CTemporaryFolder m_folder;
    CMethodHandler m_options;
};

TEST_F(FileDialogsTest, OpenDeliversTheFullPath) {
    EXPECT_EQ(Open({}, PathOf("code.bin")), FileOutcome::Accepted(PathOf("code.bin")));
}

TEST_F(FileDialogsTest, SaveDeliversThePathOfANewFile) {
    EXPECT_EQ(Save({}, PathOf("new.txt")), FileOutcome::Accepted(PathOf("new.txt")));
}

TEST_F(FileDialogsTest, SaveTakesAnExistingFileWithoutAQuestion) {
    EXPECT_EQ(Save({}, PathOf("code.bin")), FileOutcome::Accepted(PathOf("code.bin")));
    EXPECT_TRUE(m_driver->Boxes().empty());
}

TEST_F(FileDialogsTest, CancelDeliversNothing) {
    m_driver->ExpectFileDialog([](IFileDialogUser& user) { user.Cancel(); });
    EXPECT_EQ(Toolkit().OpenFile({}), FileOutcome::Cancelled());
    m_driver->ExpectFileDialog([](IFileDialogUser& user) { user.Cancel(); });
    EXPECT_EQ(Toolkit().SaveFile({}), FileOutcome::Cancelled());
}

TEST_F(FileDialogsTest, TitleNameAndFiltersAreShown) {
    m_driver->ExpectFileDialog([](IFileDialogUser& user) {
        EXPECT_EQ(user.ShownTitle(), "Where to <b>save</b>");
        EXPECT_EQ(user.ShownName(), "krx8maintenance.txt");
        EXPECT_EQ(user.ShownFilters(), (Texts{"Text documents (*.txt)", "All files"}));
    });
    Toolkit().SaveFile({.title = "Where to <b>save</b>",
                        .filters = {{"Text documents (*.txt)", "*.txt"}, {"All files", "*.*"}},
                        .fileName = "krx8maintenance.txt"});
}

TEST_F(FileDialogsTest, FilterWithoutPatternIsShownByItsDescription) {
    m_driver->ExpectFileDialog([](IFileDialogUser& user) {
        EXPECT_EQ(user.ShownFilters(), Texts{"Everything (you have)"});
    });
    Toolkit().OpenFile({.filters = {{"Everything (you have)", ""}}});
}

TEST_F(FileDialogsTest, NameWithoutExtensionIsOpenedWithTheDefaultOne) {
    const panel::FileDialog dialog{.defaultExtension = "Fpga files"};
    if (m_driver->OpensByCompletedName()) {
        EXPECT_EQ(Open(dialog, PathOf("code")), FileOutcome::Accepted(PathOf("code.Fpg")));
        return;
    }
    m_driver->ExpectFileDialog([this](IFileDialogUser& user) {
        m_driver->ExpectBox(1);
        EXPECT_FALSE(user.Accept(PathOf("code")));
        EXPECT_TRUE(user.Accept(PathOf("code.Fpg")));
    });
    EXPECT_EQ(Toolkit().OpenFile(dialog), FileOutcome::Accepted(PathOf("code.Fpg")));
}

TEST_F(FileDialogsTest, NameWithoutExtensionIsSavedWithTheDefaultOne) {
    EXPECT_EQ(Save({.defaultExtension = "txt"}, PathOf("report")),
              FileOutcome::Accepted(PathOf("report.txt")));
}

TEST_F(FileDialogsTest, NameThatExistsAsTypedIsOpenedWithoutExtension) {
    EXPECT_EQ(Open({.defaultExtension = "txt"}, PathOf("plain")),
              FileOutcome::Accepted(PathOf("plain")));
}

TEST_F(FileDialogsTest, NameWithAnExtensionKeepsIt) {
    EXPECT_EQ(Save({.defaultExtension = "txt"}, PathOf("report.log")),
              FileOutcome::Accepted(PathOf("report.log")));
}

TEST_F(FileDialogsTest, PathThatFillsTheBufferIsDelivered) {
    const std::string path = PathOf("code.bin");
    EXPECT_EQ(Open({.pathCapacity = path.size() + 1}, path), FileOutcome::Accepted(path));
}

TEST_F(FileDialogsTest, PathBeyondTheBufferIsNotDelivered) {
    const std::string path = PathOf("code.bin");
    ChooseInVain(path);
    EXPECT_EQ(Toolkit().OpenFile({.pathCapacity = path.size()}).path, "");
    ChooseInVain(path);
    EXPECT_EQ(Toolkit().SaveFile({.pathCapacity = path.size()}).path, "");
}

TEST_F(FileDialogsTest, NonAsciiNameIsDelivered) {
    const std::string name = "\xC3\x84nderung \xE2\x82\xAC & (b).bin";
    m_folder.Write(name, "code");
    EXPECT_EQ(Open({}, PathOf(name)), FileOutcome::Accepted(PathOf(name)));
}

TEST_F(FileDialogsTest, OptionsAreInitialisedAndAskedOnce) {
    m_driver->ExpectFileDialog([this](IFileDialogUser& user) {
        EXPECT_EQ(user.Options().ShownText(430), "Method:");
        EXPECT_EQ(user.Options().ShownChoices(kMethod), (Texts{"Force", "Version"}));
        EXPECT_TRUE(user.Options().Choose(kMethod, "Version"));
        EXPECT_TRUE(user.Accept(PathOf("code.bin")));
    });
    EXPECT_EQ(Toolkit().OpenFile(WithOptions()), FileOutcome::Accepted(PathOf("code.bin")));
    EXPECT_EQ(m_options.events, (Events{"init", "accepted"}));
    EXPECT_EQ(m_options.chosen, 1);
}

TEST_F(FileDialogsTest, RefusedFileLeavesTheDialogOpen) {
    m_driver->ExpectFileDialog([this](IFileDialogUser& user) {
        EXPECT_FALSE(user.Accept(PathOf("code.bin")));
        EXPECT_TRUE(user.Options().Choose(kMethod, "Force"));
        EXPECT_TRUE(user.Accept(PathOf("plain")));
    });
    EXPECT_EQ(Toolkit().OpenFile(WithOptions()), FileOutcome::Accepted(PathOf("plain")));
    EXPECT_EQ(m_options.events, (Events{"init", "accepted", "accepted"}));
}

TEST_F(FileDialogsTest, RefusalMayShowABox) {
    m_options.onRefusal = [this] { Toolkit().ShowBox("Method not selected", "Upload", 0x30); };
    m_driver->ExpectFileDialog([this](IFileDialogUser& user) {
        m_driver->ExpectBox(1);
        EXPECT_FALSE(user.Accept(PathOf("code.bin")));
        EXPECT_EQ(m_driver->Boxes().size(), 1u);
        user.Cancel();
    });
    EXPECT_EQ(Toolkit().OpenFile(WithOptions()), FileOutcome::Cancelled());
    EXPECT_EQ(m_options.events, (Events{"init", "accepted"}));
}

TEST_F(FileDialogsTest, RefusalMayGiveTheFocusToAnOption) {
    m_options.onRefusal = [this] {
        Toolkit().ShowBox("Method not selected", "Upload", 0x30);
        m_options.View().SetFocus(kMethod);
    };
    m_driver->ExpectFileDialog([this](IFileDialogUser& user) {
        m_driver->ExpectBox(1);
        EXPECT_FALSE(user.Accept(PathOf("code.bin")));
        EXPECT_EQ(m_options.View().GetFocus(), kMethod);
        user.Cancel();
    });
    EXPECT_EQ(Toolkit().OpenFile(WithOptions()), FileOutcome::Cancelled());
}

TEST_F(FileDialogsTest, CancelAsksTheOptionsNothing) {
    m_driver->ExpectFileDialog([](IFileDialogUser& user) { user.Cancel(); });
    EXPECT_EQ(Toolkit().OpenFile(WithOptions()), FileOutcome::Cancelled());
    EXPECT_EQ(m_options.events, Events{"init"});
}

TEST_F(FileDialogsTest, PathBeyondTheBufferAsksTheOptionsNothing) {
    panel::FileDialog dialog = WithOptions();
    dialog.pathCapacity = 3;
    ChooseInVain(PathOf("code.bin"));
    EXPECT_EQ(Toolkit().OpenFile(dialog).path, "");
    EXPECT_EQ(m_options.events, Events{"init"});
}

TEST_F(FileDialogsTest, DialogKeepsTheWaitCursorForAfterwards) {
    Toolkit().PushWaitCursor();
    m_driver->ExpectFileDialog([](IFileDialogUser& user) { user.Cancel(); });
    Toolkit().OpenFile({});
    EXPECT_TRUE(m_driver->IsWaitCursorShown());
    Toolkit().PopCursor();
}

TEST_F(FileDialogsTest, DialogOfEachOwnerCanBeRun) {
    for (const panel::Owner owner : {panel::Owner::None, panel::Owner::Panel,
                                     panel::Owner::PanelParent, panel::Owner::ActiveWindow}) {
        EXPECT_EQ(Open({.owner = owner}, PathOf("plain")), FileOutcome::Accepted(PathOf("plain")));
    }
}

TEST_F(FileDialogsTest, LocalTimeHasDateAndTime) {
    const panel::LocalTime now = Toolkit().GetLocalTime();
    EXPECT_NE(now.date, "");
    EXPECT_NE(now.time, "");
}

}

}
