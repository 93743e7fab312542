#include "workstation/PromptAnswerer.h"

#include "workstation/Text.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <utility>

namespace workstation {

namespace {

std::string Describe(const QString& title, const QStringList& lines, const std::string& answer) {
    std::string text = "Box \"" + title.toStdString() + "\":\n";
    for (const QString& line : lines) {
        text += "    " + line.trimmed().toStdString() + "\n";
    }
    return text + "Answered: " + answer + "\n";
}

QStringList LinesOf(const QMessageBox& box) {
    QStringList lines = box.text().split('\n');
    if (!box.detailedText().isEmpty()) {
        lines += box.detailedText().split('\n');
    }
    return lines;
}

// What a dialog says, without what it only asks to be filled in.
QStringList LinesOf(const QDialog& dialog) {
    QStringList lines;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            lines += label->text();
        }
    }
    return lines;
}

}

CPromptAnswerer::CPromptAnswerer(const QWidget& mainWindow, Tell tell)
    : m_mainWindow(mainWindow), m_tell(std::move(tell)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool CPromptAnswerer::eventFilter(QObject* watched, QEvent* event) {
    auto* const window = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && window && window->isWindow() && window != &m_mainWindow) {
        // Not from inside its own showing: it has no event loop to end yet.
        QTimer::singleShot(0, this, [this, shown = QPointer<QWidget>(window)] {
            if (shown) {
                Answer(*shown);
            }
        });
    }
    return false;
}

void CPromptAnswerer::Answer(QWidget& window) {
    if (auto* const box = qobject_cast<QMessageBox*>(&window)) {
        AnswerBox(*box);
    } else if (auto* const dialog = qobject_cast<QDialog*>(&window)) {
        m_tell(Describe(dialog->windowTitle(), LinesOf(*dialog), "closed"));
        dialog->reject();
    } else {
        window.close();
    }
}

void CPromptAnswerer::AnswerBox(QMessageBox& box) {
    for (const auto choice : {QMessageBox::No, QMessageBox::Ok}) {
        if (QAbstractButton* const button = box.button(choice)) {
            m_tell(Describe(box.windowTitle(), LinesOf(box), WithoutMnemonic(button->text())));
            button->click();
            return;
        }
    }
    m_tell(Describe(box.windowTitle(), LinesOf(box), "closed"));
    box.reject();
}

}
