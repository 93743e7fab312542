#include "frontend/qt/AddressField.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace qttests {

namespace {

using Texts = std::vector<std::string>;

/// An address field between two other fields, in an active window.
class AddressFieldTest : public testing::Test {
protected:
    AddressFieldTest() {
        auto* const rows = new QVBoxLayout(&m_window);
        rows->addWidget(&m_before);
        rows->addWidget(&m_field);
        rows->addWidget(&m_after);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }

    QLineEdit& Part(int index) { return *m_field.findChildren<QLineEdit*>().at(index); }
    /// The part that the keyboard is in; -1 when it is in none.
    int FocusedPart() {
        for (int index = 0; index < 4; ++index) {
            if (Part(index).hasFocus()) {
                return index;
            }
        }
        return -1;
    }
    Texts Shown() {
        Texts texts;
        for (const QLineEdit* const part : m_field.findChildren<QLineEdit*>()) {
            texts.push_back(part->text().toStdString());
        }
        return texts;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void Type(const char* text) {
        for (; *text != '\0'; ++text) {
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
    void Paste(const char* text) {
        QApplication::clipboard()->setText(QString::fromLatin1(text));
        Press(Qt::Key_V, Qt::ControlModifier);
    }

    QWidget m_window;
    QLineEdit m_before;
    qt::CAddressField m_field{nullptr};
    QLineEdit m_after;
};

TEST_F(AddressFieldTest, TypedWithDotsFillsThePartsInTurn) {
    Type("10.20.0.7");
    EXPECT_EQ(Shown(), (Texts{"10", "20", "0", "7"}));
    EXPECT_EQ(m_field.GetAddress(), 0x0A140007u);
}

TEST_F(AddressFieldTest, BlankMovesOnLikeADot) {
    Type("10 20 0 7");
    EXPECT_EQ(m_field.GetAddress(), 0x0A140007u);
}

TEST_F(AddressFieldTest, ThirdDigitMovesOnByItself) {
    Type("192168100200");
    EXPECT_EQ(Shown(), (Texts{"192", "168", "100", "200"}));
}

TEST_F(AddressFieldTest, DotAfterAThirdDigitSkipsNoPart) {
    Type("192.168.100.200");
    EXPECT_EQ(m_field.GetAddress(), 0xC0A864C8u);
}

TEST_F(AddressFieldTest, DotInAnEmptyPartStaysThere) {
    Type("..");
    EXPECT_EQ(FocusedPart(), 0);
}

TEST_F(AddressFieldTest, LettersAndSignsAreRefused) {
    Type("1a-2+,x");
    EXPECT_EQ(Shown(), (Texts{"12", "", "", ""}));
}

TEST_F(AddressFieldTest, NumberAbove255IsCutAndLeft) {
    Type("300");
    EXPECT_EQ(Part(0).text(), "255");
    EXPECT_EQ(FocusedPart(), 1);
}

TEST_F(AddressFieldTest, NumberAbove255ShowsWhatItCountsAsBeforeItsPartIsLeft) {
    Part(3).setFocus();
    Type("999");
    EXPECT_EQ(FocusedPart(), 3);
    EXPECT_EQ(Part(3).text(), "255");
    EXPECT_EQ(m_field.GetAddress(), 0x000000FFu);
}

TEST_F(AddressFieldTest, NumberAbove255IsCutHoweverItCameToBe) {
    m_field.SetAddress(0x01020319);
    Part(3).setFocus();
    Part(3).setCursorPosition(0);
    Type("9");
    EXPECT_EQ(Shown(), (Texts{"1", "2", "3", "255"}));
    Part(1).setFocus();
    Part(1).selectAll();
    Paste("256");
    EXPECT_EQ(Shown(), (Texts{"1", "255", "3", "255"}));
}

TEST_F(AddressFieldTest, LeadingZerosGoWhenThePartIsLeft) {
    Type("010.");
    EXPECT_EQ(Part(0).text(), "10");
}

TEST_F(AddressFieldTest, EmptyPartStaysEmptyAndCountsAsZero) {
    m_field.SetAddress(0x01020304);
    Part(1).clear();
    Part(1).setFocus();
    m_after.setFocus();
    EXPECT_EQ(Shown(), (Texts{"1", "", "3", "4"}));
    EXPECT_EQ(m_field.GetAddress(), 0x01000304u);
}

TEST_F(AddressFieldTest, ArrowsCrossThePartsAtTheirEnds) {
    m_field.SetAddress(0x0C22384E);
    Part(0).setCursorPosition(1);
    Press(Qt::Key_Right);
    EXPECT_EQ(FocusedPart(), 0);
    Press(Qt::Key_Right);
    EXPECT_EQ(FocusedPart(), 1);
    EXPECT_EQ(Part(1).cursorPosition(), 0);
    Press(Qt::Key_Left);
    EXPECT_EQ(FocusedPart(), 0);
    EXPECT_EQ(Part(0).cursorPosition(), 2);
}

TEST_F(AddressFieldTest, BackspaceAtTheStartGoesBackAPart) {
    Type("12.");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(FocusedPart(), 0);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Part(0).text(), "1");
}

TEST_F(AddressFieldTest, ArrowsStopAtTheEndsOfTheField) {
    Part(0).setCursorPosition(0);
    Press(Qt::Key_Left);
    EXPECT_EQ(FocusedPart(), 0);
    Part(3).setFocus();
    Press(Qt::Key_Right);
    EXPECT_EQ(FocusedPart(), 3);
}

TEST_F(AddressFieldTest, FieldIsOneStopOfTheTabKey) {
    m_before.setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusedPart(), 0);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(m_after.hasFocus());
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusedPart(), 0);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(m_before.hasFocus());
}

TEST_F(AddressFieldTest, TabLeavesTheFieldFromAnyPart) {
    Part(2).setFocus();
    Press(Qt::Key_Tab);
    EXPECT_TRUE(m_after.hasFocus());
    Part(2).setFocus();
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(m_before.hasFocus());
}

TEST_F(AddressFieldTest, WholeAddressIsPastedIntoAnyPart) {
    for (int part = 0; part < 4; ++part) {
        m_field.SetAddress(0);
        Part(part).setFocus();
        Paste(" 192.168.0.1\n");
        EXPECT_EQ(m_field.GetAddress(), 0xC0A80001u) << part;
    }
}

TEST_F(AddressFieldTest, WhatIsNoAddressIsNotPasted) {
    m_field.SetAddress(0x01020304);
    for (const char* const text : {"300.1.1.1", "1.2.3", "1.2.3.4.5", "a.b.c.d", "1..2.3",
                                   "-1.2.3.4", "www.example.com", ""}) {
        Paste(text);
        EXPECT_EQ(m_field.GetAddress(), 0x01020304u) << text;
    }
}

TEST_F(AddressFieldTest, DigitsArePastedIntoThePart) {
    Part(1).setFocus();
    Paste("42");
    EXPECT_EQ(Shown(), (Texts{"", "42", "", ""}));
    Paste("1234");
    EXPECT_EQ(Shown(), (Texts{"", "42", "", ""}));
}

TEST_F(AddressFieldTest, ContextMenuCopiesAndPastesTheWholeAddress) {
    QApplication::clipboard()->setText("10.0.0.1");
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(5, 5),
                              m_field.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&Part(2), &request);
    auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions().at(1)->trigger();
    EXPECT_EQ(m_field.GetAddress(), 0x0A000001u);
    m_field.SetAddress(0xC0A80114);
    menu->actions().at(0)->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "192.168.1.20");
    menu->close();
}

TEST_F(AddressFieldTest, PartsAreNamedForAccessibilityTools) {
    m_field.NameParts("Gateway:");
    EXPECT_EQ(Part(0).accessibleName(), "Gateway: part 1");
    EXPECT_EQ(Part(3).accessibleName(), "Gateway: part 4");
}

}

}
