#pragma once

#include "panel/files/FileRowKey.h"

#include <cstdint>
#include <span>

namespace panel {

/// What the selected files have in common.
struct SelectionSummary {
    int selectedCount = 0;
    int rowCount = 0;
    std::int32_t commonType = 0;     ///< 0 when several types are selected
    std::int32_t commonLocation = 0; ///< 0 when several locations are selected

    friend constexpr bool operator==(const SelectionSummary&, const SelectionSummary&) = default;
};

/// Of the selected rows' keys, in list order, in a list of `rowCount` rows.
SelectionSummary SummarizeSelection(std::span<const FileRowKey> selected, int rowCount);

}
