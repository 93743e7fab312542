#include "tests/frontend/qt/PromptHands.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include <utility>

namespace qttests {

namespace {

constexpr int kLookMs = 5;
constexpr const char* kSeen = "seenByPromptHands";

QWidget* FindPrompt() {
    auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    return menu ? menu : QApplication::activeModalWidget();
}

}

CPromptHands::CPromptHands() {
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] { Look(); });
    m_timer.start(kLookMs);
}

// The answer runs from a timer of its own: inside this one's slot the timer would be still, and a
// prompt opened by the answer would never be seen.
void CPromptHands::Look() {
    QWidget* const prompt = FindPrompt();
    if (!prompt || !prompt->isVisible() || prompt->property(kSeen).toBool()) {
        return;
    }
    prompt->setProperty(kSeen, true);
    QTimer::singleShot(0, prompt, [this, prompt] { Answer(*prompt); });
}

void CPromptHands::Answer(QWidget& prompt) {
    const QPointer<QWidget> open(&prompt);
    if (!m_expected.empty()) {
        const Act act = std::move(m_expected.front());
        m_expected.pop_front();
        if (act(prompt)) {
            return;
        }
    }
    m_unexpected.push_back(prompt.windowTitle().toStdString());
    if (open) {
        QTest::keyClick(&prompt, Qt::Key_Escape);
    }
}

}
