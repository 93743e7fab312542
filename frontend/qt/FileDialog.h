#pragma once

#include "frontend/qt/QtView.h"
#include "panel/control/FileDialog.h"

#include <QFileDialog>

#include <memory>

namespace qt {

/// The toolkit's own open or save dialog, named "file-dialog". It stays open, and says why in a box
/// of its own, for a path that does not fit the dialog's capacity and for a file in a folder that
/// is missing. A start folder that is missing gives the nearest one above it that exists, or the
/// user's home folder when there is none but the root.
class CFileDialog final : public QFileDialog {
public:
    enum class Kind { Open, Save };

    /// `owner` null: of no window. `dialog` is copied, its options' handler outlives this.
    CFileDialog(panel::FileDialog dialog, Kind kind, QWidget* owner);

    /// Calls the options' OnInit, shows the dialog and waits until it ends. It may have been
    /// destroyed with its owner by then; that counts as cancelled.
    panel::FileOutcome Run();

    void accept() override;
    /// Asks the options' handler first, which may keep the dialog open.
    void done(int result) override;

private:
    void SetUp();
    void ShowCellsWhole();
    void AddOptions();
    void TakeName();
    /// What the user's name means by the default extension; empty when that changes nothing.
    QString GetCompletedName() const;
    void AllowName();
    void ReplaceName(const QString& name);
    bool HasFolder();
    bool HasRoomForPath();
    bool Fits(const std::string& path) const;
    void SayWhyNot(const QString& path, const QString& reason);
    /// What is chosen, in full.
    std::string GetPath() const;

    panel::FileDialog m_dialog;
    Kind m_kind;
    std::unique_ptr<CQtView> m_options;
    panel::FileOutcome m_outcome;
};

/// Runs such a dialog, the arrow cursor shown meanwhile.
panel::FileOutcome RunFileDialog(const panel::FileDialog& dialog, CFileDialog::Kind kind,
                                 QWidget* owner);

}
