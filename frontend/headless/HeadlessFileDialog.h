#pragma once

#include "panel/control/FileDialog.h"

#include <string>

namespace headless {

class CHeadlessView;

enum class FileDialogKind { Open, Save };

/// An open or save dialog while it is open, with a user's hands. Once it has ended the hands do
/// nothing.
class CHeadlessFileDialog {
public:
    /// `options` are the controls of our own in it; null when it has none.
    CHeadlessFileDialog(FileDialogKind kind, const panel::FileDialog& dialog,
                        CHeadlessView* options)
        : m_kind(kind), m_dialog(dialog), m_options(options) {}

    FileDialogKind Kind() const { return m_kind; }

    const panel::FileDialog& Dialog() const { return m_dialog; }
    CHeadlessView* Options() const { return m_options; }

    /// Names a file and presses the button that takes it. False when the dialog stays open. Every
    /// name is taken, also of a file or in a folder that does not exist: the paths of tests are
    /// made up, and files do vanish after they are chosen.
    bool Accept(const std::string& path);
    void Cancel();
    /// The system ends the dialog with an error.
    void Fail(int code);

    bool IsOpen() const { return m_isOpen; }
    const panel::FileOutcome& Outcome() const { return m_outcome; }

private:
    bool End(const panel::FileOutcome& outcome);

    const FileDialogKind m_kind;
    const panel::FileDialog& m_dialog;
    CHeadlessView* m_options;
    bool m_isOpen = true;
    panel::FileOutcome m_outcome;
};

}
