#pragma once

#include "frontend/win32/WinApi.h"

#include <memory>
#include <utility>
#include <vector>

namespace win32 {

/// Which cursor the panel wants to be shown: the wait cursor while it works, the arrow in the
/// windows that it opens meanwhile. The system asks again with every move of the mouse, and the
/// panel's windows answer from here. User-interface thread only.
class CCursorStack {
public:
    void PushWait() { Push(IDC_WAIT); }
    void PushArrow() { Push(IDC_ARROW); }
    /// Brings the cursor before the last one pushed back; nothing when there is none.
    void Pop();

    /// Shows the wait cursor when it is wanted and says whether it is.
    bool ShowWait() const;

private:
    struct Entry {
        LPCWSTR wanted;
        HCURSOR before; // as shown when this one was pushed
    };

    void Push(LPCWSTR cursor);

    std::vector<Entry> m_entries;
};

/// The arrow as long as it lives.
class CArrowCursor {
public:
    explicit CArrowCursor(std::shared_ptr<CCursorStack> cursors) : m_cursors(std::move(cursors)) {
        m_cursors->PushArrow();
    }
    ~CArrowCursor() { m_cursors->Pop(); }
    CArrowCursor(const CArrowCursor&) = delete;
    CArrowCursor& operator=(const CArrowCursor&) = delete;

private:
    std::shared_ptr<CCursorStack> m_cursors;
};

}
