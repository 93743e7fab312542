#pragma once

namespace panel {

/// The refresh's look for a newer update package. User-interface thread only.
class CUpdateCheck {
public:
    /// The place of the check in the refresh. There is no update to offer yet, so it does nothing.
    void CheckForUpdatePackage() {}
};

}
