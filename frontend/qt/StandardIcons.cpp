#include "frontend/qt/StandardIcons.h"

#include <QIcon>
#include <QLabel>
#include <QStyle>

namespace qt {

namespace {

/// ERROR_RESOURCE_NAME_NOT_FOUND of winerror.h.
constexpr int kIconNotFound = 1814;
constexpr QSize kUsualSize{32, 32};

struct IconFacts {
    QStyle::StandardPixmap pixmap;
    const char* name; // for accessibility tools
};

// In the order of panel::StandardIcon.
constexpr IconFacts kIcons[] = {
    {QStyle::SP_MessageBoxInformation, "Information"},
    {QStyle::SP_MessageBoxWarning, "Warning"},
};

}

int ShowStandardIcon(QLabel& label, panel::StandardIcon icon) {
    const IconFacts& facts = kIcons[static_cast<std::size_t>(icon)];
    const QPixmap pixmap = label.style()
                               ->standardIcon(facts.pixmap, nullptr, &label)
                               .pixmap(kUsualSize.boundedTo(label.size()));
    label.setPixmap(pixmap);
    label.setAccessibleName(pixmap.isNull() ? QString() : QString::fromLatin1(facts.name));
    return pixmap.isNull() ? kIconNotFound : 0;
}

}
