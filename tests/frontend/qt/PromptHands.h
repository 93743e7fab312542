#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace qttests {

/// Answers modal windows and menus: each in the order expected, while the code under test waits in
/// it.
///
/// Looks for a new one every few milliseconds. One that nobody expected, or expected to be
/// of another class, is written down and dismissed with Escape, so that a test ends rather than
/// hangs.
class CPromptHands final : public QObject {
public:
    CPromptHands();

    /// The next modal window or menu is a `Window`; `act` runs while it is open.
    template <class Window>
    void Expect(std::function<void(Window&)> act) {
        m_expected.push_back([act = std::move(act)](QWidget& prompt) {
            auto* const window = dynamic_cast<Window*>(&prompt);
            if (window) {
                act(*window);
            }
            return window != nullptr;
        });
    }

    /// What went wrong: prompts that came uninvited, one line each.
    const std::vector<std::string>& GetUnexpected() const { return m_unexpected; }
    std::size_t GetOutstanding() const { return m_expected.size(); }

private:
    /// Returns whether the prompt is what was expected.
    using Act = std::function<bool(QWidget&)>;

    void Look();
    void Answer(QWidget& prompt);

    QTimer m_timer;
    std::deque<Act> m_expected;
    std::vector<std::string> m_unexpected;
};

}
