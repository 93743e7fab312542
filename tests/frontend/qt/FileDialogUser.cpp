#include "tests/frontend/qt/FileDialogUser.h"

#include "tests/frontend/qt/QtViewUser.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace qttests {

CFileDialogUser::CFileDialogUser(QFileDialog& dialog) : m_dialog(&dialog) {
    const QRegularExpression anyView(QStringLiteral("^view-[0-9]+$"));
    if (QWidget* const view = dialog.findChildren<QWidget*>(anyView).value(0)) {
        m_options = std::make_unique<CQtViewUser>(*view);
    }
}

CFileDialogUser::~CFileDialogUser() = default;

bool CFileDialogUser::Accept(const std::string& path) {
    if (!m_dialog) {
        return false;
    }
    SetName(path);
    PressAccept();
    return !m_dialog || !m_dialog->isVisible();
}

void CFileDialogUser::PressAccept() {
    const auto* const buttons = m_dialog->findChild<QDialogButtonBox*>();
    const auto which = m_dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                         : QDialogButtonBox::Open;
    QTest::mouseClick(buttons->button(which), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void CFileDialogUser::PressReturn() {
    QTest::keyClick(&NameField(), Qt::Key_Return);
    QCoreApplication::processEvents();
}

// Typed letter by letter, it would open the list of completions.
void CFileDialogUser::SetName(const std::string& name) {
    QTest::mouseClick(&NameField(), Qt::LeftButton);
    NameField().setText(QString::fromStdString(name));
}

void CFileDialogUser::Cancel() {
    if (m_dialog && m_dialog->isVisible()) {
        QTest::keyClick(m_dialog, Qt::Key_Escape);
    }
}

std::string CFileDialogUser::ShownTitle() { return m_dialog->windowTitle().toStdString(); }

std::string CFileDialogUser::ShownName() { return NameField().text().toStdString(); }

std::vector<std::string> CFileDialogUser::ShownFilters() {
    const auto* const list = m_dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    std::vector<std::string> shown;
    for (int i = 0; i < list->count(); ++i) {
        shown.push_back(list->itemText(i).toStdString());
    }
    return shown;
}

QLineEdit& CFileDialogUser::NameField() const {
    return *m_dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

}
