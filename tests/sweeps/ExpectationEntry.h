#pragma once

#include "tests/sweeps/Expectation.h"

namespace sweeps {

/// One call of host, connection, device or view into the panel, which lives until the outermost of
/// them has returned.
class CExpectation::CEntry {
public:
    explicit CEntry(CExpectation& panel) : m_panel(panel) { ++m_panel.m_entries; }
    ~CEntry() {
        if (--m_panel.m_entries == 0 && m_panel.m_isReleased) {
            m_panel.EndPanel();
        }
    }
    CEntry(const CEntry&) = delete;
    CEntry& operator=(const CEntry&) = delete;

private:
    CExpectation& m_panel;
};

}
