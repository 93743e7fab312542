#pragma once

#include "panel/control/Toolkit.h"

#include <cstdint>

namespace panel {

/// Opens the panel's help. User-interface thread only.
class CHelp {
public:
    explicit CHelp(IToolkit& toolkit) : m_toolkit(toolkit) {}

    /// The overview, as the Help button asks for it.
    void ShowHelp();

    /// A help request (F1) on a control of that help context; 0 means that the control has none and
    /// gives the overview.
    void ShowHelp(std::uint32_t context);

private:
    void Open(std::uint32_t context, Owner owner);

    IToolkit& m_toolkit;
};

}
