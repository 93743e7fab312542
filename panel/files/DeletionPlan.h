#pragma once

#include "panel/control/StringTable.h"
#include "panel/files/FileRowKey.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace panel {

/// The files of one type that are to be deleted, and how a failure is reported.
struct DeletionGroup {
    std::int32_t type;
    StringId caption;
    const char* failureFormat;     ///< for the file's identifier as a long
    std::vector<std::int32_t> ids; ///< ascending
};

/// The selected files by type in the order in which they are deleted: MCU software, algorithm code,
/// secondary boot code. Files of other types are never deleted.
std::vector<DeletionGroup> PlanDeletion(std::span<const FileRowKey> selected);

/// Whether the selection is deleted by a single call: every file of several.
constexpr bool IsDeletionOfAll(int selectedCount, int rowCount) {
    return selectedCount == rowCount && selectedCount != 1;
}

/// What the user is asked before a selection is deleted, cut to 199 units of UTF-16. `markedName`
/// is the file that the user marked last.
std::string DeletionQuestion(int selectedCount, int rowCount, std::string_view markedName);

}
