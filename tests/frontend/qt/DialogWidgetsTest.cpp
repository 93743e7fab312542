#include "frontend/qt/QtToolkit.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/StringTable.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "panel/netconf/KRX10ConfTemplate.h"
#include "panel/update/SWUpdateInfoTemplate.h"
#include "tests/frontend/qt/ControlUser.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace qttests {

namespace {

class CSilentHandler final : public panel::IDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
};

/// A style that has no icons.
class CBareStyle final : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap, const QStyleOption*, const QWidget*) const override {
        return {};
    }
};

/// The controls of a dialog's template in a window that is not modal.
class DialogWidgetsTest : public testing::TestWithParam<const panel::DialogTemplate*> {
protected:
    void Show(const panel::DialogTemplate& dialogTemplate) {
        m_view = m_toolkit.CreateView(dialogTemplate, &m_window, m_handler);
        m_user = std::make_unique<CControlUser>(
            *m_window.findChild<QWidget*>(QStringLiteral("view-%1").arg(dialogTemplate.id)));
        m_window.show();
    }

    void SetMessage(panel::StringId text) {
        m_view->SetText(panel::kUpdateInfoMessage, panel::LoadPanelString(text));
    }
    int MessageOverflow() const {
        const auto* const label = m_user->Find<QLabel>(panel::kUpdateInfoMessage);
        return label->heightForWidth(label->width()) - label->height();
    }
    std::string AccessibleNameOf(panel::ControlId id) const {
        return QAccessible::queryAccessibleInterface(m_user->FindWidget(id))
            ->text(QAccessible::Name)
            .toStdString();
    }

    QWidget m_window;
    qt::CQtToolkit m_toolkit;
    CSilentHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
    std::unique_ptr<CControlUser> m_user;
};

TEST_P(DialogWidgetsTest, ControlsLieInsideTheDialog) {
    Show(*GetParam());
    for (const panel::ControlTemplate& control : GetParam()->controls) {
        const QWidget& widget = *m_user->FindWidget(control.id);
        EXPECT_TRUE(m_user->GetView()->rect().contains(widget.geometry())) << control.id;
    }
}

TEST_P(DialogWidgetsTest, NoControlCoversAnother) {
    using panel::ControlKind;
    Show(*GetParam());
    for (const panel::ControlTemplate& control : GetParam()->controls) {
        for (const panel::ControlTemplate& other : GetParam()->controls) {
            const bool isFrame =
                control.kind == ControlKind::GroupBox || other.kind == ControlKind::GroupBox;
            const QRect place = m_user->FindWidget(control.id)->geometry();
            const bool covers = place.intersects(m_user->FindWidget(other.id)->geometry());
            EXPECT_FALSE(&control != &other && !isFrame && covers)
                << control.id << " and " << other.id;
        }
    }
}

TEST_P(DialogWidgetsTest, TextsFitTheirControls) {
    Show(*GetParam());
    for (const panel::ControlTemplate& control : GetParam()->controls) {
        const QWidget& widget = *m_user->FindWidget(control.id);
        const QString text = QString::fromUtf8(control.text).remove('&');
        const int indicator = dynamic_cast<const QCheckBox*>(&widget) ? 20 : 0;
        EXPECT_LE(widget.fontMetrics().horizontalAdvance(text) + indicator, widget.width())
            << control.id;
    }
}

TEST_P(DialogWidgetsTest, MnemonicsDiffer) {
    Show(*GetParam());
    std::set<QChar> mnemonics;
    for (const panel::ControlTemplate& control : GetParam()->controls) {
        const QString text = QString::fromUtf8(control.text);
        const qsizetype mark = text.indexOf('&');
        if (mark >= 0) {
            EXPECT_TRUE(mnemonics.insert(text[mark + 1].toLower()).second) << control.text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogWidgetsTest,
                         testing::Values(&panel::kPhoneFileUploadTemplate,
                                         &panel::kSWUpdateInfoTemplate, &panel::kKRX10ConfTemplate),
                         [](const auto& tested) {
                             return "Template" + std::to_string(tested.param->id);
                         });

TEST_F(DialogWidgetsTest, MessagesOfTheUpdateOfferFitTheirLines) {
    Show(panel::kSWUpdateInfoTemplate);
    for (const panel::StringId text :
         {panel::StringId::NewerSoftware, panel::StringId::NoPackageVersion}) {
        SetMessage(text);
        EXPECT_LE(MessageOverflow(), 0);
    }
}

TEST_F(DialogWidgetsTest, ChoicesOfThePhoneFileUploadFitTheirLists) {
    Show(panel::kPhoneFileUploadTemplate);
    m_view->AddChoice(panel::kUploadMethodList, "Flashing", 3);
    m_view->AddChoice(panel::kUploadDestinationList, "External storage", 3);
    for (const panel::ControlId id : {panel::kUploadMethodList, panel::kUploadDestinationList}) {
        const auto* const list = m_user->Find<QComboBox>(id);
        EXPECT_LE(list->minimumSizeHint().width(), list->width()) << id;
    }
}

TEST_F(DialogWidgetsTest, AccessibilityToolsKnowTheFieldsByTheirLabels) {
    Show(panel::kKRX10ConfTemplate);
    EXPECT_EQ(AccessibleNameOf(panel::kIpAddressEdit), "IP address:");
    EXPECT_EQ(AccessibleNameOf(panel::kGatewayEdit), "Gateway:");
    EXPECT_EQ(AccessibleNameOf(panel::kDescriptionEdit), "Description:");
    EXPECT_EQ(AccessibleNameOf(panel::kUseDhcpBox), "Use DHCP");
    Show(panel::kPhoneFileUploadTemplate);
    EXPECT_EQ(AccessibleNameOf(panel::kUploadMethodList), "Method:");
}

TEST_F(DialogWidgetsTest, IconThatTheStyleLacksIsReported) {
    Show(panel::kSWUpdateInfoTemplate);
    EXPECT_EQ(m_view->SetIcon(panel::kUpdateInfoIcon, panel::StandardIcon::Warning), 0);
    auto* const label = m_user->Find<QLabel>(panel::kUpdateInfoIcon);
    EXPECT_FALSE(label->pixmap().isNull());
    EXPECT_EQ(label->accessibleName(), "Warning");
    CBareStyle bare;
    label->setStyle(&bare);
    EXPECT_EQ(m_view->SetIcon(panel::kUpdateInfoIcon, panel::StandardIcon::Warning), 1814);
    EXPECT_TRUE(label->pixmap().isNull());
    label->setStyle(nullptr);
}

TEST_F(DialogWidgetsTest, LongCheckBoxTextIsCondensed) {
    Show(panel::kKRX10ConfTemplate);
    m_view->Move(panel::kInternalFlashBox, {10, 10, 136, 16});
    const auto* const box = m_user->Find<QCheckBox>(panel::kInternalFlashBox);
    EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), 136 - 18);
}

}

}
