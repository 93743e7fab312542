#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPlainTextEdit>

#include <cstddef>
#include <string>
#include <string_view>

namespace qt {

/// A read-only text of many lines that follows its end.
///
/// Lines are gathered and shown at most every 40 ms, since the toolkit takes as long for one line
/// as for hundreds; they reach the screen also when no event loop runs meanwhile.
class CLogView final : public QPlainTextEdit {
public:
    explicit CLogView(QWidget* parent);

    /// UTF-8. What exceeds the limit is refused, at a character boundary.
    void Append(std::string_view text);
    void Clear();
    /// UTF-8 with lines ended by CR LF, what is not yet shown included.
    std::string GetText() const;
    /// In characters; what is there already stays.
    void SetLimit(std::size_t characters) { m_limit = characters; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void BringUpToDate();
    void FollowEnd();

    std::string m_waiting;
    std::size_t m_limit;
    QBasicTimer m_updateTimer;
    QElapsedTimer m_sinceUpdate;
};

}
