#include "frontend/qt/EditField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

namespace {

class EditFieldTest : public testing::Test {
protected:
    void Type(const char* text) { QTest::keyClicks(&m_field, QString::fromLatin1(text)); }

    qt::CEditField m_field{nullptr};
};

TEST_F(EditFieldTest, TextBeyondTheLimitCanOnlyBecomeShorter) {
    m_field.SetLimit(4);
    m_field.ShowText("123456");
    m_field.setCursorPosition(6);
    Type("x");
    EXPECT_EQ(m_field.text(), "123456");
    QTest::keyClick(&m_field, Qt::Key_Backspace);
    Type("x");
    EXPECT_EQ(m_field.text(), "12345");
    QTest::keyClick(&m_field, Qt::Key_Backspace);
    QTest::keyClick(&m_field, Qt::Key_Backspace);
    Type("xy");
    EXPECT_EQ(m_field.text(), "123x");
}

TEST_F(EditFieldTest, CursorStaysWhereTheUserShortensALongText) {
    m_field.SetLimit(2);
    m_field.ShowText("abcdef");
    m_field.setCursorPosition(3);
    QTest::keyClick(&m_field, Qt::Key_Backspace);
    EXPECT_EQ(m_field.text(), "abdef");
    EXPECT_EQ(m_field.cursorPosition(), 2);
}

TEST_F(EditFieldTest, PasteStopsAtTheLimitBetweenCharacters) {
    m_field.SetLimit(3);
    QGuiApplication::clipboard()->setText(QString::fromUtf8("ab\xF0\x9F\x94\xA7"));
    m_field.paste();
    EXPECT_EQ(m_field.text(), "ab");
}

TEST_F(EditFieldTest, LimitOfNothingTakesNothing) {
    m_field.SetLimit(0);
    Type("x");
    EXPECT_EQ(m_field.text(), "");
}

TEST_F(EditFieldTest, LongTextShowsItsBeginning) {
    m_field.resize(40, 20);
    m_field.ShowText("a text much longer than the field is wide");
    EXPECT_EQ(m_field.cursorPosition(), 0);
}

}

}
