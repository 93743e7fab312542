#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedCommands.h"
#include "tests/sweeps/ExpectedUploads.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string>

namespace sweeps {

namespace {

const std::map<int, const char*> kTexts{
    {1, "Upload Phone Code file"},
    {2, "Delete Phone Code file(s)        Delete"},
    {3, "Move file to Flash"},
    {4, "Move file to external storage"},
    {5, "FPGA code upload"},
    {6, "Application code upload"},
    {7, "Application code upload via RS-232"},
    {8, "Update KRX-10 software"},
    {9, "Update KRX-20 software"},
    {10, "Select &All"},
};

constexpr int kSeparator = 0;

bool IsKrx8Family(const CExpectation& panel) {
    return panel.kept.type == 1 || panel.kept.type == 2;
}

struct Selection {
    std::size_t rows = 0;
    std::size_t selected = 0;
    std::uint32_t type = 0;
    std::uint32_t location = 0;
};

Selection SelectionOf(CExpectation& panel) {
    const Picture* list = panel.List();
    if (!list) {
        return {};
    }
    Selection selection{list->rows.size(), list->selection.size()};
    for (std::size_t i = 0; i < list->selection.size(); ++i) {
        const std::uint32_t key = list->rows[static_cast<std::size_t>(list->selection[i])].key;
        const std::uint32_t type = key >> 24;
        const std::uint32_t location = key >> 16 & 0xFF;
        selection.type = i == 0 || selection.type == type ? type : 0;
        selection.location = i == 0 || selection.location == location ? location : 0;
    }
    return selection;
}

std::vector<int> Moves(const CExpectation& panel, const Selection& selection, bool hasStorage) {
    if (IsKrx8Family(panel)) {
        return selection.type == 22 && selection.location == 1 ? std::vector{3}
                                                               : std::vector<int>{};
    }
    std::vector<int> moves;
    if (selection.location == 1 || selection.location == 3) {
        moves.push_back(3);
    }
    if (hasStorage && (selection.location == 1 || selection.location == 2)) {
        moves.push_back(4);
    }
    return moves;
}

std::vector<int> Uploads(std::int32_t type) {
    switch (type) {
    case 1:
    case 2:
        return {5, 6, 7};
    case 3:
        return {8};
    case 4:
    case 5:
        return {9};
    default:
        return {};
    }
}

std::vector<int> Items(const CExpectation& panel, const Selection& selection, bool hasStorage) {
    std::vector<int> items;
    const auto add = [&items](const std::vector<int>& more) {
        items.insert(items.end(), more.begin(), more.end());
    };
    if (panel.kept.mode == 1 || IsKrx8Family(panel)) {
        add({1});
    }
    if (selection.selected > 0) {
        add({2});
        const std::vector<int> moves = Moves(panel, selection, hasStorage);
        add(moves.empty() ? moves : std::vector{kSeparator});
        add(moves);
    }
    add(items.empty() ? items : std::vector{kSeparator});
    add(Uploads(panel.kept.type));
    if (selection.rows > 0) {
        add(items.empty() ? items : std::vector{kSeparator});
        add({10});
    }
    return items;
}

int ExpectMenu(CExpectation& panel, const std::vector<int>& items) {
    const int command = panel.UserAnswers().command;
    const bool isOffered = std::ranges::find(items, command) != items.end();
    const int chosen = isOffered ? command : 0;
    DialogRows rows;
    for (const int item : items) {
        rows.emplace_back(std::to_string(item), item == kSeparator ? "" : kTexts.at(item));
    }
    panel.OpenDialog(CExpectation::Prompt::Kind::Menu, std::move(rows), chosen);
    return chosen;
}

void ExpectChoice(CExpectation& panel, int command, std::uint32_t type) {
    if (command >= 5 && command <= 9) {
        ExpectCodeUpload(panel, command);
    } else if (command == 10) {
        if (Picture* list = panel.List()) {
            list->selection.resize(list->rows.size());
            std::iota(list->selection.begin(), list->selection.end(), 0);
        }
    } else if (command != 0) {
        ExpectWithControlsDisabled(panel, command, type);
    }
}

}

void ExpectFileMenu(CExpectation& panel) {
    const std::uint64_t filling = panel.fillings;
    const Selection selection = SelectionOf(panel);
    if (!panel.CanMake(CExpectation::Prompt::Kind::Menu)) {
        panel.Tell("Popup menu creation failed", "Prommer Maintenance", 0x10,
                   contract::Status::FromBits(0x80070008));
        return;
    }
    const bool hasStorage = selection.selected > 0 && !IsKrx8Family(panel) &&
                            panel.CallInTurn({"ProgrammingDeviceControl.GetExternalStorages",
                                              "ExternalStorages.GetCount"}) &&
                            panel.Device().pcCard;
    const int command = ExpectMenu(panel, Items(panel, selection, hasStorage));
    // What was chosen for files that have been listed anew since is void.
    const bool isForFiles = command >= 2 && command <= 4;
    if (panel.fillings == filling || !isForFiles) {
        ExpectChoice(panel, command, selection.type);
    }
}

}
