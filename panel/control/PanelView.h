#pragma once

#include "panel/control/View.h"

#include <span>
#include <vector>

namespace panel {

/// The panel's view as its rooms see it: always there to be talked to, also before it is created
/// and after it has ended, when every verb does nothing.
class CPanelView {
public:
    CPanelView();

    void Attach(IView& view) { m_view = &view; }
    void Detach();
    bool Exists() const;

    IView* operator->() const { return m_view; }

    /// Captures controls in that order. A view that was never captured stays inert: its controls
    /// cannot be named.
    void Capture(std::span<const ControlId> ids);

    /// The captured control `id`; kNoControl when it has not been captured.
    ControlId operator[](ControlId id) const;

private:
    IView* m_view;
    std::vector<ControlId> m_captured;
};

}
