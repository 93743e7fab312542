#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedCommands.h"
#include "tests/sweeps/ExpectedListing.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedScopes.h"

#include <algorithm>
#include <string>
#include <vector>

namespace sweeps {

namespace {

constexpr std::int32_t kYes = 6;

/// In the order in which they are deleted.
struct Group {
    std::uint32_t type;
    const char* caption;
    const char* failureText;
};

constexpr Group kGroups[] = {
    {22, "Deleting MCUSW file", "Cannot delete MCUSW file with ID "},
    {21, "Deleting Algorithm Code file", "Cannot delete Algorithm Code file with ID "},
    {19, "Deleting Secondary Boot Code file", "Cannot delete Secondary Boot Code file with ID "},
};

bool ExpectDeleted(CExpectation& panel, std::uint32_t type, std::uint32_t id) {
    return panel.Call("ProgrammingDeviceControl.DeleteFile", [&] {
        panel.NoteWrite("DeleteFile(" + std::to_string(type) + ", " + std::to_string(id) + ")");
    });
}

void ExpectGroupDeleted(CExpectation& panel, const Group& group,
                        const std::vector<std::uint32_t>& keys) {
    std::vector<std::uint32_t> ids;
    for (const std::uint32_t key : keys) {
        if (key >> 24 == group.type) {
            ids.push_back(key & 0xFFFF);
        }
    }
    std::ranges::sort(ids);
    for (const std::uint32_t id : ids) {
        if (!ExpectDeleted(panel, group.type, id)) {
            panel.Report(group.failureText + std::to_string(id), group.caption);
            return;
        }
    }
}

std::string Question(const Picture& list, bool isAll) {
    if (isAll) {
        return "Are you sure you want do delete ALL these files?";
    }
    if (list.selection.size() > 1) {
        return "Are you sure you want to delete these " + std::to_string(list.selection.size()) +
               " files?";
    }
    const std::string name =
        list.mark < 0 ? "" : list.rows[static_cast<std::size_t>(list.mark)].cells.front();
    return "Are you sure you want to delete '" + name + "'?";
}

}

void ExpectDeletion(CExpectation& panel) {
    const Picture* list = panel.List();
    if (!list || list->selection.empty()) {
        return;
    }
    std::vector<std::uint32_t> keys;
    for (const int row : list->selection) {
        keys.push_back(list->rows[static_cast<std::size_t>(row)].key);
    }
    const bool isAll = keys.size() > 1 && keys.size() == list->rows.size();
    // A Yes to files that are listed anew while the question is open deletes nothing.
    const std::uint64_t filling = panel.fillings;
    if (panel.Ask(Question(*list, isAll), "Deleting files") != kYes || panel.fillings != filling) {
        return;
    }
    const CExpectedCursor cursor(panel);
    if (!isAll) {
        for (const Group& group : kGroups) {
            ExpectGroupDeleted(panel, group, keys);
        }
    } else if (!ExpectDeleted(panel, 0, 0)) {
        panel.Report("Can't delete file", "Deleting files");
    }
    ExpectFreeMemory(panel);
    ExpectListing(panel);
}

}
