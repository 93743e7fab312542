#include "frontend/qt/QtPanel.h"
#include "frontend/qt/QtToolkit.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/PanelTemplate.h"
#include "tests/frontend/qt/ControlUser.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <vector>

namespace qttests {

namespace {

class CHandler final : public panel::IDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    void OnHelp(std::uint32_t context) override { m_helpContexts.push_back(context); }

    std::vector<std::uint32_t> m_helpContexts;
};

/// Notes the keys that come as far as a widget.
class CKeyFilter final : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            m_keys.push_back(static_cast<QKeyEvent*>(event)->key());
        }
        return false;
    }

    std::vector<int> m_keys;
};

class PanelWidgetsTest : public testing::Test {
protected:
    PanelWidgetsTest() : m_user(*m_window.findChild<QWidget*>("view-103")) {
        m_window.resize(788, 478);
        m_window.show();
    }

    QWidget m_window;
    qt::CQtToolkit m_toolkit;
    CHandler m_handler;
    std::unique_ptr<panel::IView> m_view =
        m_toolkit.CreateView(panel::kPanelTemplate, &m_window, m_handler);
    CControlUser m_user;
};

TEST_F(PanelWidgetsTest, FontGivesADialogBaseOf7By13) {
    const panel::FontMetrics font = m_toolkit.MeasureFont();
    EXPECT_EQ((font.alphabetWidth + 26) / 52, 7);
    EXPECT_EQ(font.height, 13);
    EXPECT_EQ(m_view->GetClientSize(), (panel::Size{788, 478}));
}

TEST_F(PanelWidgetsTest, EveryControlHasAWidgetNamedAfterItsId) {
    for (const panel::ControlTemplate& control : panel::kPanelTemplate.controls) {
        EXPECT_NE(m_user.FindWidget(control.id), nullptr) << control.id;
    }
}

TEST_F(PanelWidgetsTest, MnemonicsOfTheButtonsDiffer) {
    std::set<QString> mnemonics;
    for (const QAbstractButton* const button : m_window.findChildren<QAbstractButton*>()) {
        if (!button->shortcut().isEmpty()) {
            EXPECT_TRUE(mnemonics.insert(button->shortcut().toString()).second)
                << qPrintable(button->text());
        }
    }
    EXPECT_EQ(mnemonics, (std::set<QString>{"Alt+C", "Alt+D", "Alt+E", "Alt+H", "Alt+K", "Alt+R",
                                            "Alt+S", "Alt+U"}));
}

TEST_F(PanelWidgetsTest, LabelsAndButtonsAreWideEnoughForTheirTexts) {
    for (const QLabel* const label : m_window.findChildren<QLabel*>()) {
        EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
            << qPrintable(label->text());
    }
    for (const QPushButton* const button : m_window.findChildren<QPushButton*>()) {
        const QString text = button->text().remove('&');
        EXPECT_LE(button->fontMetrics().horizontalAdvance(text) + 4, button->width())
            << qPrintable(text);
    }
}

TEST_F(PanelWidgetsTest, LongButtonTextStillFitsTheNarrowestLayout) {
    m_view->Move(panel::kNetworkButton, {300, 400, 62, 23});
    const auto* const button = m_user.Find<QPushButton>(panel::kNetworkButton);
    EXPECT_LE(button->fontMetrics().horizontalAdvance("KRX10 Conf"), 58);
}

TEST_F(PanelWidgetsTest, HardwareAddressFitsItsField) {
    m_view->SetText(panel::kSerialNumberField, "00-00-5E-00-53-14");
    const auto* const field = m_user.Find<QLineEdit>(panel::kSerialNumberField);
    EXPECT_LE(field->fontMetrics().horizontalAdvance(field->text()), field->width() - 8);
    EXPECT_EQ(field->toolTip(), QString());
}

TEST_F(PanelWidgetsTest, TextBeyondItsFieldCanBeReadInItsToolTip) {
    m_view->SetText(panel::kApplicationSwField, "<i>02.31</i> 0007 of a long forgotten branch");
    const auto* const field = m_user.Find<QLineEdit>(panel::kApplicationSwField);
    EXPECT_TRUE(field->toolTip().contains("&lt;i&gt;02.31&lt;/i&gt;"));
}

TEST_F(PanelWidgetsTest, FieldsCannotBeTypedIntoButKeepTheirText) {
    m_view->SetText(panel::kFlashSizeField, "16777216");
    auto* const field = m_user.Find<QLineEdit>(panel::kFlashSizeField);
    QTest::keyClicks(field, "1");
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(m_view->GetText(panel::kFlashSizeField), "16777216");
    EXPECT_EQ(field->text(), "16777216");
}

TEST_F(PanelWidgetsTest, SizeFieldsAcceptDigitsOnly) {
    for (const panel::ControlId id : {panel::kFlashSizeField, panel::kFreeFlashField,
                                      panel::kRamSizeField, panel::kFreeRamField}) {
        auto* const field = m_user.Find<QLineEdit>(id);
        field->setReadOnly(false);
        QTest::keyClicks(field, "1a2-3");
        EXPECT_EQ(field->text(), "123") << id;
    }
}

struct NamedControl {
    panel::ControlId id;
    const char* name;
};

TEST_F(PanelWidgetsTest, AccessibilityToolsKnowFieldsListAndLogByName) {
    constexpr NamedControl kNamed[] = {
        {panel::kSerialNumberField, "S/N"},      {panel::kHardwareField, "HW"},
        {panel::kFreeRamField, "Free SRAM (B)"}, {panel::kSelfTestField, "Self-test Status"},
        {panel::kIpAddressField, "IP address"},  {panel::kFileList, "Flash Box Files"},
        {panel::kStatusLog, "Progress Info"},    {panel::kUpdateButton, "Update"},
    };
    for (const NamedControl& named : kNamed) {
        QAccessibleInterface* const accessible =
            QAccessible::queryAccessibleInterface(m_user.FindWidget(named.id));
        ASSERT_NE(accessible, nullptr) << named.name;
        EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), named.name);
    }
}

TEST_F(PanelWidgetsTest, HelpKeyGoesNoFurtherThanThePanel) {
    CKeyFilter host;
    m_window.installEventFilter(&host);
    QWidget* const field = m_user.FindWidget(panel::kSerialNumberField);
    QTest::keyClick(field, Qt::Key_F1);
    QTest::keyClick(field, Qt::Key_F2);
    EXPECT_EQ(m_handler.m_helpContexts, std::vector<std::uint32_t>{panel::kSerialNumberField});
    EXPECT_EQ(host.m_keys, std::vector<int>{Qt::Key_F2});
}

TEST_F(PanelWidgetsTest, KeyboardElsewhereInTheWindowKeepsTheFocusThere) {
    QLineEdit outside(&m_window);
    outside.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    m_view->SetFocus(panel::kUpdateButton);
    outside.setFocus(Qt::MouseFocusReason);
    m_view->SetEnabled(panel::kUpdateButton, true);
    EXPECT_TRUE(outside.hasFocus());
}

TEST_F(PanelWidgetsTest, FocusGivenByActivationYieldsToTheButtonWaitingForIt) {
    m_view->SetFocus(panel::kUpdateButton);
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    m_view->SetEnabled(panel::kUpdateButton, true);
    EXPECT_TRUE(m_user.FindWidget(panel::kUpdateButton)->hasFocus());
}

TEST_F(PanelWidgetsTest, ViewAfterItsParentsEndDoesNothing) {
    auto parent = std::make_unique<QWidget>();
    const auto view = m_toolkit.CreateView(panel::kPanelTemplate, parent.get(), m_handler);
    parent.reset();
    view->SetText(panel::kHardwareField, "text");
    view->SetSize({10, 10});
    view->SetFocus(panel::kFileList);
    EXPECT_EQ(view->GetText(panel::kHardwareField), "");
    EXPECT_EQ(view->GetClientSize(), panel::Size{});
    EXPECT_EQ(view->GetFocus(), panel::kNoControl);
}

TEST(QtPanelTest, CreateViewWithoutParentFailsWithInvalidPointer) {
    EXPECT_EQ(qt::CreateQtPanel()->CreateView(nullptr), contract::kInvalidPointer);
}

TEST(QtPanelTest, NaturalSizeIsThatOfTheTemplate) {
    EXPECT_EQ(qt::CreateQtPanel()->GetNaturalSize(), (contract::PixelSize{788, 478}));
}

}

}
