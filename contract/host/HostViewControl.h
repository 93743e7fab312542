#pragma once

#include "contract/Status.h"

namespace contract {

/// The host's control over the window that holds the panel. User-interface thread only.
class IHostViewControl {
public:
    virtual ~IHostViewControl() = default;

    /// Asks the host to close the panel's view. The host does so after this call has returned,
    /// since the request comes from inside the view. The panel ignores the result.
    virtual Status ClosePanel() = 0;
};

}
