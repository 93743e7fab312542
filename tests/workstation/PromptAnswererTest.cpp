#include "workstation/PromptAnswerer.h"

#include "tests/workstation/Until.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QMessageBox>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PromptAnswererTest : public testing::Test {
protected:
    static int Ask(const char* text, QMessageBox::StandardButtons buttons) {
        QMessageBox box(QMessageBox::Question, "Caption", text, buttons);
        return box.exec();
    }

    QWidget m_mainWindow;
    std::vector<std::string> m_told;
    workstation::CPromptAnswerer m_answerer{
        m_mainWindow, [this](const std::string& box) { m_told.push_back(box); }};
};

TEST_F(PromptAnswererTest, NoticeIsToldAndAnsweredWithOk) {
    EXPECT_EQ(Ask("Text", QMessageBox::Ok), QMessageBox::Ok);
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    Text\nAnswered: OK\n"));
}

TEST_F(PromptAnswererTest, QuestionIsAnsweredWithNo) {
    EXPECT_EQ(Ask("Really?", QMessageBox::Yes | QMessageBox::No), QMessageBox::No);
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    Really?\nAnswered: No\n"));
}

TEST_F(PromptAnswererTest, EachLineOfABoxIsIndented) {
    Ask("First  \nsecond", QMessageBox::Ok);
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    First\n    second\nAnswered: OK\n"));
}

TEST_F(PromptAnswererTest, BoxWithOtherButtonsIsToldAndClosed) {
    EXPECT_EQ(Ask("Text", QMessageBox::Retry | QMessageBox::Cancel), QDialog::Rejected);
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    Text\nAnswered: closed\n"));
}

TEST_F(PromptAnswererTest, DetailsAreToldBelowTheText) {
    QMessageBox box(QMessageBox::Critical, "Caption", "Text", QMessageBox::Ok);
    box.setDetailedText("HRESULT\nreason");
    box.exec();
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    Text\n    HRESULT\n    reason\n"
                                    "Answered: OK\n"));
}

TEST_F(PromptAnswererTest, BoxesInARowAreAllAnswered) {
    Ask("First", QMessageBox::Ok);
    Ask("Second", QMessageBox::Ok);
    EXPECT_THAT(m_told, ElementsAre("Box \"Caption\":\n    First\nAnswered: OK\n",
                                    "Box \"Caption\":\n    Second\nAnswered: OK\n"));
}

TEST_F(PromptAnswererTest, DialogIsToldAndRejected) {
    QDialog dialog;
    dialog.setWindowTitle("Offer");
    QLabel first("First", &dialog);
    QLabel hidden("Hidden", &dialog);
    hidden.hide();
    QLabel second("Second", &dialog);
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_THAT(m_told, ElementsAre("Box \"Offer\":\n    First\n    Second\nAnswered: closed\n"));
}

TEST_F(PromptAnswererTest, OtherWindowIsClosedAndTheMainOneIsNot) {
    QWidget other;
    m_mainWindow.show();
    other.show();
    EXPECT_TRUE(Until([&] { return !other.isVisible(); }));
    EXPECT_TRUE(m_mainWindow.isVisible());
}

TEST_F(PromptAnswererTest, WindowThatEndsBeforeItsAnswerIsForgotten) {
    { QDialog().show(); }
    QCoreApplication::processEvents();
    EXPECT_THAT(m_told, IsEmpty());
}

}
