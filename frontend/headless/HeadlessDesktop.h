#pragma once

#include "frontend/headless/MemoryRegistry.h"
#include "frontend/headless/PromptQueue.h"
#include "frontend/headless/WindowStack.h"
#include "panel/control/Toolkit.h"

#include <cstdint>
#include <string>
#include <vector>

namespace headless {

struct ShownHelp {
    std::string file;
    std::uint32_t context = 0;
    panel::Owner owner = panel::Owner::None;

    friend bool operator==(const ShownHelp&, const ShownHelp&) = default;
};

/// What is around a panel: shared with its toolkit, it outlives both and keeps what was seen of
/// them. User-interface thread only.
struct HeadlessDesktop {
    CPromptQueue prompts;
    CWindowStack windows;

    /// How many views are still to be refused: CreateView then returns null.
    int failingViews = 0;
    /// What SetIcon fails with in views made from now on; 0: it does not.
    int iconError = 0;

    /// Wait cursors pushed and not yet popped, and the most there ever were. A depth below 0 tells
    /// of a PopCursor too many.
    int cursorDepth = 0;
    int highestCursorDepth = 0;

    std::string componentFolder = "component";
    std::vector<ShownHelp> helps;
    CMemoryRegistry registry;
    panel::LocalTime now{"20.11.2026", "14:05"};
    char pathSeparator = '\\';
    /// Without their newline; one that lacks it, and so would run into the next, says so.
    std::vector<std::string> traceLines;
};

}
