#include "workstation/PromptAnswerer.h"

#include "workstation/Text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace workstation {

namespace {

std::string Describe(const QMessageBox& box, const QAbstractButton& answer) {
    std::string text = "Box \"" + box.windowTitle().toStdString() + "\":\n";
    for (const QString& line : box.text().split('\n')) {
        text += "    " + line.trimmed().toStdString() + "\n";
    }
    return text + "Answered: " + WithoutMnemonic(answer.text()) + "\n";
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
        dialog->reject();
    } else {
        window.close();
    }
}

void CPromptAnswerer::AnswerBox(QMessageBox& box) {
    for (const auto choice : {QMessageBox::No, QMessageBox::Ok}) {
        if (QAbstractButton* const button = box.button(choice)) {
            m_tell(Describe(box, *button));
            button->click();
            return;
        }
    }
    box.reject();
}

}
