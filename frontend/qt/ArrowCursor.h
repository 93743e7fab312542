#pragma once

namespace qt {

/// Shows the arrow while a window that waits for the user is open, whatever cursor a command has
/// set meanwhile.
class CArrowCursor {
public:
    CArrowCursor();
    ~CArrowCursor();
    CArrowCursor(const CArrowCursor&) = delete;
    CArrowCursor& operator=(const CArrowCursor&) = delete;
};

}
