#include "frontend/qt/FileFilters.h"

#include "frontend/qt/Text.h"

namespace qt {

namespace {

QString ToPatterns(const std::string& patterns) {
    QStringList taken;
    for (const QString& part : ToQt(patterns).split(u';')) {
        const QString pattern = part.trimmed();
        if (!pattern.isEmpty()) {
            taken.append(pattern == QStringLiteral("*.*") ? QStringLiteral("*") : pattern);
        }
    }
    return taken.isEmpty() ? QStringLiteral("*") : taken.join(u' ');
}

}

QStringList ToNameFilters(const std::vector<panel::FileFilter>& filters) {
    QStringList taken;
    for (const panel::FileFilter& filter : filters) {
        taken.append(
            QStringLiteral("%1 (%2)").arg(ToQt(filter.description), ToPatterns(filter.pattern)));
    }
    return taken;
}

}
