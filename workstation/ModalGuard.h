#pragma once

#include <QObject>

namespace workstation {

/// While it lives, an open box, dialog or menu is all that takes commands (see qt::kCommandEvent).
/// The toolkit keeps input from what lies below, but lets an accessibility tool press any button,
/// which would start a command inside the one that asks. User-interface thread only.
class CModalGuard : public QObject {
public:
    CModalGuard();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}
