#pragma once

#include <QDialog>

#include <cstdint>
#include <string>

class QPlainTextEdit;

namespace qt {

/// Shows a help file. Not modal; Escape closes it, and it can be shown again.
class CHelpWindow final : public QDialog {
public:
    CHelpWindow();

    /// Shows `file` (UTF-8 text) at a topic, in front of `owner`, which may be null and otherwise
    /// owns the window from then on. Says so in the window when there is no such file.
    void ShowTopic(const std::string& file, std::uint32_t context, QWidget* owner);

private:
    QPlainTextEdit* m_text;
};

}
