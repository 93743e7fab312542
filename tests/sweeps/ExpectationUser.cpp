// What the user does to an expectation.

#include "tests/sweeps/ExpectationEntry.h"
#include "tests/sweeps/ExpectedCommands.h"

#include <algorithm>

namespace sweeps {

void CExpectation::PressButton(panel::ControlId id) {
    if (m_isReleased || !m_picture || !m_picture->enabled[id]) {
        return;
    }
    const CEntry entry(*this);
    ExpectCommand(*this, id);
}

void CExpectation::SelectRows(const std::vector<int>& rows) {
    if (!m_picture) {
        return;
    }
    m_picture->selection.clear();
    for (const int row : rows) {
        if (row < static_cast<int>(m_picture->rows.size())) {
            m_picture->selection.push_back(row);
            m_picture->mark = row;
        }
    }
}

void CExpectation::PressKey(std::uint16_t virtualKey) {
    if (m_isReleased || !m_picture || !m_picture->enabled[panel::kFileList]) {
        return;
    }
    {
        const CEntry entry(*this);
        ExpectKey(*this, virtualKey);
    }
    if (m_picture && m_picture->enabled[panel::kFileList]) {
        m_seen.focused.push_back(panel::kFileList);
    }
}

void CExpectation::RightClick() {
    if (m_isReleased || !m_picture || !m_picture->enabled[panel::kFileList]) {
        return;
    }
    const CEntry entry(*this);
    ExpectFileMenu(*this);
}

}
