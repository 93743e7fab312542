#pragma once

#include <QDialog>

#include <cstdint>
#include <string>

namespace qt {

class CHelpBrowser;

/// Shows a help file (frontend/help/HelpFile.h), one topic at a time. Not modal; Escape closes it,
/// and it can be shown again.
class CHelpWindow final : public QDialog {
public:
    CHelpWindow();

    /// Shows a topic of `file`, in front of `owner`, which may be null and otherwise owns the
    /// window from then on; a modal dialog hands it on to its own owner when it ends, and the topic
    /// stays in sight. Says so in the window when there is no such file or topic.
    void ShowTopic(const std::string& file, std::uint32_t context, QWidget* owner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeWays();
    void BelongTo(QWidget* owner);
    void Outlive(const QWidget& dialog);

    CHelpBrowser* m_browser;
};

}
