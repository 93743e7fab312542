#include "frontend/qt/PopupMenu.h"

#include "tests/frontend/qt/MenuUser.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

namespace {

const std::vector<panel::MenuItem> kItems = {{1, "Upload"}, {}, {10, "Select &All"}};

class PopupMenuTest : public testing::Test {
protected:
    ~PopupMenuTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    int Show(std::function<void(QMenu&)> act, std::span<const panel::MenuItem> items = kItems) {
        m_prompts.Expect<QMenu>(std::move(act));
        return qt::CPopupMenu(m_owner.get()).Show(items, {100, 100});
    }

    std::unique_ptr<QWidget> m_owner = std::make_unique<QWidget>();
    CPromptHands m_prompts;
};

TEST_F(PopupMenuTest, EitherMouseButtonChooses) {
    EXPECT_EQ(Show([](QMenu& menu) { ChooseFromMenu(menu, 10, Qt::RightButton); }), 10);
    EXPECT_EQ(Show([](QMenu& menu) { ChooseFromMenu(menu, 1, Qt::LeftButton); }), 1);
}

TEST_F(PopupMenuTest, KeysChoose) {
    EXPECT_EQ(Show([](QMenu& menu) {
                  QTest::keyClick(&menu, Qt::Key_Down);
                  QTest::keyClick(&menu, Qt::Key_Return);
              }),
              1);
    EXPECT_EQ(Show([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_A); }), 10);
}

TEST_F(PopupMenuTest, ClickBesideItChoosesNothing) {
    EXPECT_EQ(Show([](QMenu& menu) {
                  QTest::mouseClick(&menu, Qt::LeftButton, {}, {-20, -20});
              }),
              panel::kNoCommand);
}

TEST_F(PopupMenuTest, MenuShowsTheArrowWhileACommandWaits) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    Show([](QMenu& menu) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        ChooseFromMenu(menu, 1);
    });
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(PopupMenuTest, MenuEndedWithItsOwnerChoosesNothing) {
    EXPECT_EQ(Show([this](QMenu&) { m_owner.reset(); }), panel::kNoCommand);
}

TEST_F(PopupMenuTest, MenuOfAnEndedOwnerCanBeShown) {
    qt::CPopupMenu menu(m_owner.get());
    m_owner.reset();
    m_prompts.Expect<QMenu>([](QMenu& shown) { ChooseFromMenu(shown, 1); });
    EXPECT_EQ(menu.Show(kItems, {100, 100}), 1);
}

}

}
