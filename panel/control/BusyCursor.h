#pragma once

#include "panel/control/Toolkit.h"

namespace panel {

/// Shows the wait cursor for the length of a scope.
class BusyCursor {
public:
    explicit BusyCursor(IToolkit& toolkit) : m_toolkit(toolkit) { m_toolkit.PushWaitCursor(); }
    ~BusyCursor() { m_toolkit.PopCursor(); }

    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

private:
    IToolkit& m_toolkit;
};

}
