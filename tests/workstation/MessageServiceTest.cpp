#include "workstation/MessageService.h"

#include "workstation/PromptAnswerer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using contract::Message;
using contract::Status;
using testing::ElementsAre;

constexpr Status kFailed = contract::kUnspecifiedFailure;

class MessageServiceTest : public testing::Test {
protected:
    using Hands = std::function<void(QMessageBox&)>;

    /// Shows the message; the hands get its box as soon as it waits. The button pressed, or nothing
    /// when showing failed.
    std::optional<int> Show(const Message& message, const Hands& hands) {
        QTimer look;
        int shown = 0;
        QObject::connect(&look, &QTimer::timeout, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box && box->isVisible() && shown == 0) {
                ++shown;
                hands(*box);
            }
        });
        look.start(0);
        std::int32_t button = -1;
        const Status status = m_service.ShowMessage(message, button);
        EXPECT_EQ(shown, status.IsSuccess() ? 1 : 0);
        return status.IsSuccess() ? std::optional(button) : std::nullopt;
    }

    std::optional<int> ShowAndPressEscape(const Message& message) {
        return Show(message, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    }

    static void Click(QMessageBox& box, QMessageBox::StandardButton button) {
        QTest::mouseClick(box.button(button), Qt::LeftButton);
    }

    static QPushButton* DetailsButton(const QMessageBox& box) {
        for (QAbstractButton* const button : box.buttons()) {
            if (box.standardButton(button) == QMessageBox::NoButton) {
                return qobject_cast<QPushButton*>(button);
            }
        }
        return nullptr;
    }

    static Message Plain(const char* text, const char* caption, std::uint32_t style) {
        Message message;
        message.text = text;
        message.caption = caption;
        message.style = style;
        return message;
    }

    static Message Error(Status status, const char* description) {
        Message message = Plain("Text", "Caption", 0x10);
        message.status = status;
        message.description = description;
        return message;
    }

    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    workstation::CMessageService m_service{*m_window};
};

// Text, caption, icon

TEST_F(MessageServiceTest, BoxShowsTextAndCaptionAsTheyAre) {
    const Message message =
        Plain("<b>First</b> & more\r\nsecond\nM\xC3\xBCller", "Caption [*]", 0x40);
    Show(message, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>First</b> & more\nsecond\nMüller");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Caption [*][*]");
        box.accept();
    });
}

TEST_F(MessageServiceTest, StyleChoosesTheIcon) {
    const std::vector<std::pair<std::uint32_t, QMessageBox::Icon>> icons = {
        {0x00, QMessageBox::NoIcon},
        {0x10, QMessageBox::Critical},
        {0x24, QMessageBox::Question},
        {0x30, QMessageBox::Warning},
        {0x40, QMessageBox::Information}};
    for (const auto& [style, icon] : icons) {
        Show(Plain("Text", "Caption", style), [expected = icon](QMessageBox& box) {
            EXPECT_EQ(box.icon(), expected);
            box.done(QMessageBox::Ok);
        });
    }
}

// Buttons

TEST_F(MessageServiceTest, NoticeHasOkAlone) {
    EXPECT_EQ(Show(Plain("Text", "Caption", 0x30),
                   [](QMessageBox& box) {
                       EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
                       Click(box, QMessageBox::Ok);
                   }),
              1);
}

TEST_F(MessageServiceTest, QuestionHasYesAndNo) {
    const Message question = Plain("Really?", "Caption", 0x24);
    EXPECT_EQ(Show(question,
                   [](QMessageBox& box) {
                       EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
                       Click(box, QMessageBox::Yes);
                   }),
              6);
    EXPECT_EQ(Show(question, [](QMessageBox& box) { Click(box, QMessageBox::No); }), 7);
}

TEST_F(MessageServiceTest, CancelIsTwo) {
    const auto cancel = [](QMessageBox& box) { Click(box, QMessageBox::Cancel); };
    EXPECT_EQ(Show(Plain("Text", "Caption", 0x01), cancel), 2);
    EXPECT_EQ(Show(Plain("Text", "Caption", 0x03), cancel), 2);
}

TEST_F(MessageServiceTest, EscapeAnswersWithTheButtonThatChangesNothing) {
    EXPECT_EQ(ShowAndPressEscape(Plain("Text", "Caption", 0x10)), 1);
    EXPECT_EQ(ShowAndPressEscape(Plain("Text", "Caption", 0x01)), 2);
    EXPECT_EQ(ShowAndPressEscape(Plain("Text", "Caption", 0x03)), 2);
    EXPECT_EQ(ShowAndPressEscape(Plain("Text", "Caption", 0x24)), 7);
}

TEST_F(MessageServiceTest, CloseBoxAnswersNoToAQuestion) {
    EXPECT_EQ(Show(Plain("Really?", "Caption", 0x24), [](QMessageBox& box) { box.close(); }), 7);
}

TEST_F(MessageServiceTest, EscapeWorksBesideDetails) {
    EXPECT_EQ(ShowAndPressEscape(Error(kFailed, "Description")), 1);
}

TEST_F(MessageServiceTest, ButtonsNobodyAsksForFailAndLeaveTheAnswer) {
    for (const std::uint32_t style : {0x02u, 0x05u, 0x06u, 0x0Fu}) {
        std::int32_t button = -1;
        EXPECT_EQ(m_service.ShowMessage(Plain("Text", "C", style), button),
                  contract::kUnspecifiedFailure);
        EXPECT_EQ(button, -1);
    }
}

// Status and description

TEST_F(MessageServiceTest, FailureCanBeUnfoldedAndCopied) {
    Show(Error(kFailed, "The device\r\ndoes not answer."), [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Text");
        ASSERT_NE(DetailsButton(box), nullptr);
        auto* const details = box.findChild<QTextEdit*>();
        ASSERT_NE(details, nullptr);
        EXPECT_FALSE(details->isVisible());
        QTest::mouseClick(DetailsButton(box), Qt::LeftButton);
        EXPECT_TRUE(details->isVisible());
        EXPECT_EQ(details->toPlainText(), "HRESULT 0x80004005 (-2147467259)\n"
                                          "The device\ndoes not answer.");
        QTest::keyClick(details, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(details, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), details->toPlainText());
        box.accept();
    });
}

TEST_F(MessageServiceTest, FailureWithoutDescriptionHasItsStatusAlone) {
    Show(Error(Status(-1), ""), [](QMessageBox& box) {
        EXPECT_EQ(box.detailedText(), "HRESULT 0xffffffff (-1)");
        box.accept();
    });
}

TEST_F(MessageServiceTest, SuccessWithAWarningHasItsStatusToo) {
    Show(Error(contract::kPartialUpdate, ""), [](QMessageBox& box) {
        EXPECT_EQ(box.detailedText(), "HRESULT 0x041b1010 (68882448)");
        box.accept();
    });
}

TEST_F(MessageServiceTest, NothingTechnicalStandsUnderStatusZero) {
    Show(Error(contract::kSuccess, "Left by another call"), [](QMessageBox& box) {
        EXPECT_EQ(box.detailedText(), "");
        EXPECT_EQ(DetailsButton(box), nullptr);
        EXPECT_EQ(box.informativeText(), "");
        box.accept();
    });
}

// The window around it

TEST_F(MessageServiceTest, BoxStandsInFrontOfTheWindow) {
    Show(Error(kFailed, ""), [this](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), m_window.get());
        EXPECT_TRUE(box.isModal());
        box.accept();
    });
}

TEST_F(MessageServiceTest, BoxStandsInFrontOfTheDialogThatIsOpen) {
    QDialog dialog(m_window.get());
    dialog.open();
    Show(Error(kFailed, ""), [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &dialog);
        box.accept();
    });
}

TEST_F(MessageServiceTest, BoxWhoseWindowEndsIsAnsweredAsByEscape) {
    auto dialog = std::make_unique<QDialog>(m_window.get());
    dialog->open();
    EXPECT_EQ(Show(Plain("Really?", "Caption", 0x24), [&](QMessageBox&) { dialog.reset(); }), 7);
}

TEST_F(MessageServiceTest, ArrowIsShownWhileACommandWaits) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    Show(Error(kFailed, ""), [](QMessageBox& box) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        box.accept();
    });
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

// Nobody there

TEST_F(MessageServiceTest, UnattendedBoxesAreAnswered) {
    std::vector<std::string> told;
    const workstation::CPromptAnswerer answerer(
        *m_window, [&](const std::string& box) { told.push_back(box); });
    std::int32_t button = -1;
    EXPECT_EQ(m_service.ShowMessage(Plain("Really?", "Files", 0x24), button), contract::kSuccess);
    EXPECT_EQ(button, 7);
    EXPECT_EQ(m_service.ShowMessage(Plain("Done", "Files", 0x40), button), contract::kSuccess);
    EXPECT_EQ(button, 1);
    EXPECT_THAT(told, ElementsAre("Box \"Files\":\n    Really?\nAnswered: No\n",
                                  "Box \"Files\":\n    Done\nAnswered: OK\n"));
}
}
