#pragma once

#include "frontend/qt/QtView.h"

#include <QDialog>

#include <optional>

namespace qt {

/// A modal dialog made of a template, of that fixed size.
class CDialog final : public QDialog {
public:
    /// `owner` null: of no window.
    CDialog(const panel::DialogTemplate& dialogTemplate, panel::IDialogHandler& handler,
            QWidget* owner);

    /// Calls the handler's OnInit, shows the dialog and returns what EndDialog was given. The
    /// dialog may have been destroyed with its owner by then; that counts as cancelled.
    int Run();

    /// Escape and the close box: the handler decides what comes of it.
    void reject() override;

private:
    void End(int result);

    panel::IDialogHandler& m_handler;
    CQtView m_view;
    std::optional<int> m_result;
};

}
