#include "panel/files/DeletionPlan.h"

#include "panel/control/Format.h"
#include "panel/control/Utf8.h"
#include "panel/files/FileCells.h"

#include <algorithm>

namespace panel {

namespace {

constexpr std::size_t kLongestQuestion = 199;

}

std::vector<DeletionGroup> PlanDeletion(std::span<const FileRowKey> selected) {
    std::vector<DeletionGroup> groups{
        {static_cast<std::int32_t>(FileType::McuSoftware),
         StringId::DeletingMcuSoftware,
         "Cannot delete MCUSW file with ID %ld",
         {}},
        {static_cast<std::int32_t>(FileType::Algorithm),
         StringId::DeletingAlgorithmCode,
         "Cannot delete Algorithm Code file with ID %ld",
         {}},
        {static_cast<std::int32_t>(FileType::SecondaryBoot),
         StringId::DeletingSecondaryBootCode,
         "Cannot delete Secondary Boot Code file with ID %ld",
         {}},
    };
    for (const FileRowKey key : selected) {
        const auto group = std::ranges::find(groups, TypeOf(key), &DeletionGroup::type);
        if (group != groups.end()) {
            group->ids.push_back(IdOf(key));
        }
    }
    for (DeletionGroup& group : groups) {
        std::ranges::stable_sort(group.ids);
    }
    return groups;
}

std::string DeletionQuestion(int selectedCount, int rowCount, std::string_view markedName) {
    std::string question;
    if (IsDeletionOfAll(selectedCount, rowCount)) {
        // The slip is part of the text that users and their instructions know.
        question = "Are you sure you want do delete ALL these files?";
    } else if (selectedCount == 1) {
        question = "Are you sure you want to delete '" + std::string(markedName) + "'?";
    } else {
        question = Format("Are you sure you want to delete these %u files?",
                          static_cast<unsigned>(selectedCount));
    }
    return std::string(CutToUtf16Units(question, kLongestQuestion));
}

}
