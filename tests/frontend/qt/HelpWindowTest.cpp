#include "frontend/qt/HelpWindow.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlockFormat>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace qttests {

namespace {

constexpr const char* kHelp = "# 1 First\n\nSee [the second](topic:2) or [none](topic:9).\n\n"
                              "# 2 Second\n\n| A | B |\n|---|---|\n| one | *two* |\n\n"
                              "# 3 Third\n\n[Away](http://example.com/) and <b>back</b>\n";

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() { Write(kHelp); }

    std::string Path() const { return m_folder.filePath("panel.hlp").toStdString(); }

    void Write(const char* text) const {
        QFile file(m_folder.filePath("panel.hlp"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void Show(std::uint32_t topic) {
        m_window.ShowTopic(Path(), topic, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QTextBrowser& Browser() const { return *m_window.findChild<QTextBrowser*>("help-text"); }
    QPushButton& Button(const char* name) const { return *m_window.findChild<QPushButton*>(name); }
    QString Text() const { return Browser().toPlainText(); }
    /// Takes the next link with the keyboard.
    void FollowLink() {
        QTest::keyClick(&Browser(), Qt::Key_Tab);
        QTest::keyClick(&Browser(), Qt::Key_Return);
    }

    const QTemporaryDir m_folder;
    qt::CHelpWindow m_window;
};

TEST_F(HelpWindowTest, OpensAtItsTopic) {
    Show(1);
    EXPECT_EQ(Text(), "First\nSee the second or none.");
    EXPECT_TRUE(Browser().hasFocus());
}

TEST_F(HelpWindowTest, MarkupIsShownAsWhatItMeans) {
    Show(2);
    EXPECT_EQ(Text().simplified(), "Second A B one two");
}

TEST_F(HelpWindowTest, ParagraphsStandApartAndItemsTogether) {
    Write("# 1 First\n\nOne\n\nTwo\n\n- a\n- b\n\nThree\n");
    Show(1);
    const auto gapAfter = [this](const char* text) {
        return Browser().document()->find(text).blockFormat().bottomMargin();
    };
    EXPECT_GT(gapAfter("One"), 0);
    EXPECT_EQ(gapAfter("a"), 0);
    EXPECT_GT(gapAfter("b"), 0);
}

TEST_F(HelpWindowTest, LinkOpensItsTopicAndBackReturns) {
    Show(1);
    EXPECT_FALSE(Button("help-back").isEnabled());
    FollowLink();
    EXPECT_TRUE(Text().startsWith("Second"));
    QTest::mouseClick(&Button("help-back"), Qt::LeftButton);
    EXPECT_TRUE(Text().startsWith("First"));
    QTest::mouseClick(&Button("help-forward"), Qt::LeftButton);
    EXPECT_TRUE(Text().startsWith("Second"));
}

TEST_F(HelpWindowTest, FirstPageIsAButtonAway) {
    Show(3);
    QTest::mouseClick(&Button("help-first"), Qt::LeftButton);
    EXPECT_TRUE(Text().startsWith("First"));
}

TEST_F(HelpWindowTest, TopicThatIsMissingIsNamedAndTheFirstPageOffered) {
    Show(7);
    EXPECT_EQ(Text(), "There is no page 7 in this help.\nFirst page");
    FollowLink();
    EXPECT_TRUE(Text().startsWith("First"));
}

TEST_F(HelpWindowTest, FirstPageThatIsMissingIsNamed) {
    Write("# 2 Second\n\nText\n");
    Show(1);
    EXPECT_EQ(Text(), "There is no page 1 in this help.\nFirst page");
}

TEST_F(HelpWindowTest, LinksToOtherPlacesLeadNowhere) {
    Show(3);
    const QString before = Text();
    FollowLink();
    EXPECT_EQ(Text(), before);
}

TEST_F(HelpWindowTest, NewTopicReplacesTheOneThatIsShown) {
    Show(1);
    Show(2);
    EXPECT_TRUE(Text().startsWith("Second"));
}

TEST_F(HelpWindowTest, ChangedFileIsReadAgain) {
    Show(1);
    Write("# 1 Changed\n\nText\n");
    Show(1);
    EXPECT_EQ(Text(), "Changed\nText");
}

TEST_F(HelpWindowTest, MissingFileIsNamedAndFoundLater) {
    ASSERT_TRUE(QFile::remove(m_folder.filePath("panel.hlp")));
    Show(1);
    EXPECT_EQ(Text(), "The help file was not found. It was looked for here:\n" +
                          QString::fromStdString(Path()));
    Write(kHelp);
    Show(1);
    EXPECT_TRUE(Text().startsWith("First"));
}

TEST_F(HelpWindowTest, MissingFileIsNamedOnEveryPage) {
    Show(1);
    FollowLink();
    ASSERT_TRUE(QFile::remove(m_folder.filePath("panel.hlp")));
    Show(3);
    for (const char* way : {"help-first", "help-back", "help-back", "help-forward"}) {
        QTest::mouseClick(&Button(way), Qt::LeftButton);
        EXPECT_EQ(Text(), "The help file was not found. It was looked for here:\n" +
                              QString::fromStdString(Path()))
            << way;
    }
    Write(kHelp);
    Show(3);
    EXPECT_TRUE(Text().startsWith("Third"));
}

TEST_F(HelpWindowTest, PathThatLooksLikeMarkupIsShownAsItIs) {
    m_window.ShowTopic(R"(/none/*a*_b_[c](topic:1)<b>&amp;`d`\e~~f~~/x.hlp)", 1, nullptr);
    EXPECT_EQ(Text(), "The help file was not found. It was looked for here:\n"
                      R"(/none/*a*_b_[c](topic:1)<b>&amp;`d`\e~~f~~/x.hlp)");
}

TEST_F(HelpWindowTest, EscapeClosesTheWindow) {
    Show(1);
    QTest::keyClick(&Browser(), Qt::Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

}
}
