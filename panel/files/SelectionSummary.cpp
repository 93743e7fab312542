#include "panel/files/SelectionSummary.h"

namespace panel {

SelectionSummary SummarizeSelection(std::span<const FileRowKey> selected, int rowCount) {
    SelectionSummary summary{.selectedCount = static_cast<int>(selected.size()),
                             .rowCount = rowCount};
    if (selected.empty()) {
        return summary;
    }
    summary.commonType = TypeOf(selected.front());
    summary.commonLocation = LocationOf(selected.front());
    for (const FileRowKey key : selected) {
        if (TypeOf(key) != summary.commonType) {
            summary.commonType = 0;
        }
        if (LocationOf(key) != summary.commonLocation) {
            summary.commonLocation = 0;
        }
    }
    return summary;
}

}
