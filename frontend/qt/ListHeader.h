#pragma once

#include <QHeaderView>

namespace qt {

/// The headings of a list. The toolkit measures headings in bold, in case they are highlighted;
/// ours never are, and loading the bold fonts is felt when the program starts.
class CListHeader final : public QHeaderView {
public:
    explicit CListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    QSize sectionSizeFromContents(int section) const override;
};

}
