// The user's hands and eyes on check boxes, edit and address fields, drop-down lists and icons.

#include "tests/frontend/qt/QtViewUser.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

using panel::ControlId;
using panel::StandardIcon;

namespace {

constexpr int kParts = 4;

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QImage ImageOf(const QLabel& label, QStyle::StandardPixmap which) {
    return label.style()->standardIcon(which).pixmap(label.pixmap().size()).toImage();
}

}

bool CQtViewUser::Toggle(ControlId box) {
    auto* const found = dynamic_cast<QCheckBox*>(m_user.FindUsable(box));
    if (!found) {
        return false;
    }
    m_user.Click(*found, QPoint(5, found->height() / 2));
    return true;
}

bool CQtViewUser::TypeText(ControlId field, std::string_view text) {
    auto* const found = dynamic_cast<QLineEdit*>(m_user.FindUsable(field));
    if (!found) {
        return false;
    }
    m_user.ClickCentre(*found);
    m_user.PressKey(Qt::Key_A, Qt::ControlModifier);
    for (const char32_t letter : ToQString(text).toUcs4()) {
        QTest::sendKeyEvent(QTest::Click, found, Qt::Key_unknown, QString::fromUcs4(&letter, 1),
                            Qt::NoModifier);
    }
    return true;
}

// Each number is followed by a dot, as one would type it.
bool CQtViewUser::TypeAddress(ControlId field, std::uint32_t address) {
    QWidget* const found = m_user.FindUsable(field);
    if (!found) {
        return false;
    }
    QLineEdit* const first = found->findChildren<QLineEdit*>().value(0);
    m_user.ClickCentre(*first);
    first->selectAll();
    for (int part = kParts - 1; part >= 0; --part) {
        const std::uint32_t number = address >> 8 * part & 0xFF;
        const QString typed =
            QString::number(number) + (part > 0 ? QStringLiteral(".") : QString());
        for (const QChar letter : typed) {
            QTest::keyClick(found->window()->focusWidget(), letter.toLatin1());
        }
    }
    return true;
}

bool CQtViewUser::Choose(ControlId list, std::string_view text) {
    auto* const found = dynamic_cast<QComboBox*>(m_user.FindUsable(list));
    const int row = found ? found->findText(ToQString(text)) : -1;
    if (row < 0) {
        return false;
    }
    found->showPopup();
    QAbstractItemView& choices = *found->view();
    choices.setCurrentIndex(found->model()->index(row, 0));
    QTest::keyClick(&choices, Qt::Key_Return);
    return true;
}

bool CQtViewUser::IsShownChecked(ControlId box) { return m_user.Find<QCheckBox>(box)->isChecked(); }

std::vector<std::string> CQtViewUser::ShownChoices(ControlId list) {
    const auto* const found = m_user.Find<QComboBox>(list);
    std::vector<std::string> texts;
    for (int i = 0; i < found->count(); ++i) {
        texts.push_back(found->itemText(i).toStdString());
    }
    return texts;
}

std::optional<StandardIcon> CQtViewUser::ShownIcon(ControlId id) {
    const auto* const label = m_user.Find<QLabel>(id);
    const QImage shown = label->pixmap().toImage();
    if (shown.isNull()) {
        return std::nullopt;
    }
    if (shown == ImageOf(*label, QStyle::SP_MessageBoxWarning)) {
        return StandardIcon::Warning;
    }
    EXPECT_EQ(shown, ImageOf(*label, QStyle::SP_MessageBoxInformation));
    return StandardIcon::Information;
}

}
