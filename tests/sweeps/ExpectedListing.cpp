#include "tests/sweeps/ExpectedListing.h"

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedScopes.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <string>

namespace sweeps {

namespace {

using simulator::StoredFile;

constexpr const char* kCaption = "Prommer Maintenance";

template <class Value>
std::string TextOf(Value value, const std::map<Value, std::string>& known,
                   const std::string& whenUnknown) {
    const auto found = known.find(value);
    return found == known.end() ? whenUnknown : found->second;
}

std::string TypeText(const StoredFile& file) {
    static const std::map<std::int32_t, std::string> kTexts{
        {19, "Sec.boot"}, {21, "Algo"}, {22, "MCUSW"}};
    return TextOf(file.type, kTexts, "unknown");
}

std::string LocationText(const StoredFile& file) {
    static const std::map<std::int32_t, std::string> kTexts{
        {1, "RAM"}, {2, "Flash"}, {3, "PCCard"}};
    return TextOf(file.location, kTexts, std::to_string(file.location));
}

std::string GenerationText(const StoredFile& file) {
    static const std::map<std::uint32_t, std::string> kTexts{
        {0, ""}, {3, "QX1"}, {4, "QX2"}, {5, "QX3"}};
    return TextOf(file.generation, kTexts, std::to_string(file.generation));
}

/// Cells 1 to 6, in the order in which they are read.
struct Cell {
    const char* operation;
    const char* failureText;
    std::string (*text)(const StoredFile&);
};

constexpr Cell kCells[] = {
    {"FileInfo.GetType", "Cannot get type of the file", TypeText},
    {"FileInfo.GetId", "Cannot get ID of the file",
     [](const StoredFile& file) { return std::to_string(file.id); }},
    {"FileInfo.GetVersion", "Cannot get version of the file",
     [](const StoredFile& file) { return file.version; }},
    {"FileInfo.GetSize", "Cannot get size of the file",
     [](const StoredFile& file) { return std::to_string(file.sizeBytes); }},
    {"FileInfo.GetLocation", "Cannot get file location", LocationText},
    {"FileInfo.GetGeneration", "Cannot get generation of the file", GenerationText},
};

/// One filling: calls, reports, and whether it may go on.
struct Filling {
    CExpectation& panel;
    const std::uint64_t number;

    bool Call(const char* operation, const char* failureText) const {
        if (!panel.Call(operation)) {
            panel.Report(failureText, kCaption);
            return false;
        }
        return panel.fillings == number;
    }

    bool FillRow(const StoredFile& file) const {
        const std::size_t row = panel.List() ? panel.List()->rows.size() : 0;
        if (Picture* list = panel.List()) {
            list->rows.push_back({{file.name, "", "", "", "", "", ""}, 0});
        }
        std::size_t column = 0;
        for (const Cell& cell : kCells) {
            if (!Call(cell.operation, cell.failureText)) {
                return false;
            }
            ++column;
            if (Picture* list = panel.List()) {
                list->rows[row].cells[column] = cell.text(file);
            }
            if (column == 3 && file.name == "Version.FIA") {
                panel.kept.packageVersion = "002.005.013";
            }
        }
        if (Picture* list = panel.List()) {
            list->rows[row].key = static_cast<std::uint32_t>(file.type) << 24 |
                                  static_cast<std::uint32_t>(file.location) << 16 |
                                  (static_cast<std::uint32_t>(file.id) & 0xFFFF);
        }
        return true;
    }

    bool ListFiles() const {
        if (!Call("ProgrammingDeviceControl.GetFileListing", "File listing query failed") ||
            !Call("FileListing.GetFileCount", "Cannot get the count of files")) {
            return false;
        }
        for (const StoredFile& file : panel.Device().files) {
            if (!Call("FileListing.GetFileInfo", "Cannot get info about a file") ||
                !Call("FileInfo.GetName", "Cannot get name of the file")) {
                return false;
            }
            if (!file.name.empty() && !FillRow(file)) {
                return false;
            }
        }
        return true;
    }
};

/// Of the row with that name, its case ignored; the first one when there is none.
int RowOf(const Picture& list, const std::string& name) {
    const auto isSame = [](char a, char b) { return std::tolower(a) == std::tolower(b); };
    const auto row = std::ranges::find_if(list.rows, [&](const FileRow& each) {
        return std::ranges::equal(each.cells.front(), name, isSame);
    });
    return row == list.rows.end() ? 0 : static_cast<int>(row - list.rows.begin());
}

}

void ExpectListCleared(CExpectation& panel) {
    ++panel.fillings;
    if (Picture* list = panel.List()) {
        list->rows.clear();
        list->selection.clear();
        list->mark = -1;
    }
}

void ExpectListing(CExpectation& panel, const std::optional<std::string>& selectName) {
    ExpectListCleared(panel);
    if (panel.kept.mode != 1) {
        return;
    }
    panel.WriteLine("Updating file listing...");
    const CPartOfRefresh part(panel);
    if (!Filling{panel, panel.fillings}.ListFiles()) {
        return;
    }
    if (Picture* list = panel.List()) {
        const int row = selectName ? RowOf(*list, *selectName) : 0;
        list->selection = {row};
        list->mark = row;
    }
    panel.WriteLine("File listing updated");
}

}
