#pragma once

#include "frontend/help/HelpFile.h"

#include <QString>
#include <QTextBrowser>

#include <cstdint>
#include <vector>

namespace qt {

/// Shows one topic of a help file at a time and follows its links, with a way back.
class CHelpBrowser final : public QTextBrowser {
public:
    explicit CHelpBrowser(QWidget* parent) : QTextBrowser(parent) {}

    /// Shows a topic out of `topics`, or says in its place that there is none of that number.
    void ShowTopic(std::vector<help::HelpTopic> topics, std::uint32_t number);
    /// Shows a text as it is, in the place of this topic and of every other that is asked for
    /// later.
    void ShowFault(const QString& text, std::uint32_t number);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;

private:
    void ShowPage(const QUrl& url);

    std::vector<help::HelpTopic> m_topics;
    QString m_fault; // in Markdown; empty without one
};

}
