#pragma once

#include "panel/control/Format.h"
#include "panel/control/Toolkit.h"

namespace panel {

/// Trace lines exist in debug builds only.
inline constexpr bool kTraceLines = KRX8_TRACE_LINES;

/// Writes one diagnostic line, which names the qualified function first and ends in a newline.
inline void Trace([[maybe_unused]] IToolkit& toolkit, [[maybe_unused]] const char* line) {
    if constexpr (kTraceLines) {
        toolkit.Trace(line);
    }
}

/// The same from a format and its arguments, as for Format.
template <class... Arguments>
void Trace([[maybe_unused]] IToolkit& toolkit, [[maybe_unused]] const char* format,
           [[maybe_unused]] Arguments... arguments) {
    if constexpr (kTraceLines) {
        toolkit.Trace(Format(format, arguments...));
    }
}

}
