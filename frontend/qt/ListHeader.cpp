#include "frontend/qt/ListHeader.h"

#include <QFont>
#include <QFontMetrics>
#include <QStyleOptionHeader>

namespace qt {

QSize CListHeader::sectionSizeFromContents(int section) const {
    const auto fact = [&](int role) { return model()->headerData(section, orientation(), role); };
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = section;
    option.text = fact(Qt::DisplayRole).toString();
    option.fontMetrics = QFontMetrics(fact(Qt::FontRole).value<QFont>());
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, {}, this);
}

}
