#pragma once

#include <QObject>

#include <functional>
#include <string>

class QMessageBox;
class QWidget;

namespace workstation {

/// Stands in for the user of a program that has none: while it lives, every message box and dialog
/// is told and answered with No or OK, or closed where it has neither, and so is any other window
/// but the main one, so that nothing waits for ever. User-interface thread only.
class CPromptAnswerer : public QObject {
public:
    /// Takes the text of a box: caption, lines and answer, each line ended.
    using Tell = std::function<void(const std::string&)>;

    CPromptAnswerer(const QWidget& mainWindow, Tell tell);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QWidget& window);
    void AnswerBox(QMessageBox& box);

    const QWidget& m_mainWindow;
    const Tell m_tell;
};

}
