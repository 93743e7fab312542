#pragma once

#include "panel/control/PanelState.h"

namespace panel {

/// Keeps device events from starting a refresh for the length of a scope.
///
/// Its end sets the flag to true rather than back to what it was: a long command inside another one
/// deliberately hands the panel back as ready. Where it has to end before the scope does, hold it
/// in a std::optional and reset that.
class CRefreshInhibition {
public:
    explicit CRefreshInhibition(PanelState& state) : m_state(state) {
        m_state.refreshAllowed = false;
    }
    ~CRefreshInhibition() { m_state.refreshAllowed = true; }

    CRefreshInhibition(const CRefreshInhibition&) = delete;
    CRefreshInhibition& operator=(const CRefreshInhibition&) = delete;

private:
    PanelState& m_state;
};

}
