#include "frontend/qt/QtToolkit.h"

#include "frontend/qt/ArrowCursor.h"
#include "frontend/qt/ComponentFolder.h"
#include "frontend/qt/Dialog.h"
#include "frontend/qt/FileDialog.h"
#include "frontend/qt/Font.h"
#include "frontend/qt/HelpWindow.h"
#include "frontend/qt/MessageBox.h"
#include "frontend/qt/PopupMenu.h"
#include "frontend/qt/QtView.h"
#include "frontend/qt/Text.h"
#include "panel/control/DialogHandler.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QLocale>
#include <QWidget>

#include <cstdio>

namespace qt {

CQtToolkit::~CQtToolkit() {
    while (m_waitCursors > 0) {
        CQtToolkit::PopCursor();
    }
    delete m_help;
}

std::unique_ptr<panel::IView> CQtToolkit::CreateView(const panel::DialogTemplate& dialogTemplate,
                                                     void* nativeParent,
                                                     panel::IDialogHandler& handler) {
    if (!nativeParent) {
        return nullptr;
    }
    auto view =
        std::make_unique<CQtView>(dialogTemplate, *static_cast<QWidget*>(nativeParent), handler);
    m_panelWidget = view->GetWidget();
    handler.OnInit(*view);
    view->GetWidget()->show();
    return view;
}

panel::DialogOutcome CQtToolkit::RunDialog(const panel::DialogTemplate& dialogTemplate,
                                           panel::IDialogHandler& handler, panel::Owner owner) {
    const CArrowCursor arrow;
    const QPointer<CDialog> dialog(new CDialog(dialogTemplate, handler, FindOwner(owner)));
    const int result = dialog->Run();
    delete dialog;
    return panel::DialogOutcome::Closed(result);
}

std::int32_t CQtToolkit::ShowBox(const std::string& text, const std::string& caption,
                                 std::uint32_t style) {
    return ShowMessageBox(text, caption, style);
}

std::unique_ptr<panel::IPopupMenu> CQtToolkit::CreatePopupMenu(int&) {
    return std::make_unique<CPopupMenu>(m_panelWidget);
}

panel::FileOutcome CQtToolkit::OpenFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, CFileDialog::Kind::Open, FindOwner(dialog.owner));
}

panel::FileOutcome CQtToolkit::SaveFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, CFileDialog::Kind::Save, FindOwner(dialog.owner));
}

panel::LocalTime CQtToolkit::GetLocalTime() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale = QLocale::system();
    return {FromQt(locale.toString(now.date(), QLocale::ShortFormat)),
            FromQt(locale.toString(now.time(), QLocale::ShortFormat))};
}

void CQtToolkit::PushWaitCursor() {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    ++m_waitCursors;
}

void CQtToolkit::PopCursor() {
    if (m_waitCursors > 0) {
        QGuiApplication::restoreOverrideCursor();
        --m_waitCursors;
    }
}

void CQtToolkit::ShowHelp(const std::string& file, std::uint32_t context, panel::Owner owner) {
    if (!m_help) {
        m_help = new CHelpWindow;
    }
    // A modal dialog takes the input of every window but its own children.
    QWidget* const modal = QApplication::activeModalWidget();
    m_help->ShowTopic(file, context, modal ? modal : FindOwner(owner));
}

std::string CQtToolkit::GetComponentFolder() const { return FindComponentFolder(); }

panel::FontMetrics CQtToolkit::MeasureFont() const { return qt::MeasureFont(QApplication::font()); }

void CQtToolkit::Trace(const std::string& line) { std::fputs(line.c_str(), stderr); }

QWidget* CQtToolkit::FindOwner(panel::Owner owner) const {
    switch (owner) {
    case panel::Owner::Panel:
        return m_panelWidget;
    case panel::Owner::PanelParent:
        return m_panelWidget ? m_panelWidget->parentWidget() : nullptr;
    case panel::Owner::ActiveWindow:
        return QApplication::activeWindow();
    case panel::Owner::None:
        break;
    }
    return nullptr;
}

}
