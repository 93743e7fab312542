#include "panel/files/FileCells.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

namespace panel {

namespace {

constexpr ListColumn kColumns[] = {
    {"File name", 120, Alignment::Left}, {"Type", 55, Alignment::Left},
    {"File ID", 44, Alignment::Right},   {"Version", 80, Alignment::Left},
    {"Size (B)", 80, Alignment::Right},  {"Location", 55, Alignment::Left},
    {"Generation", 55, Alignment::Left},
};

struct Name {
    std::uint32_t value;
    std::string_view text;
};

constexpr Name kTypes[] = {{static_cast<std::uint32_t>(FileType::SecondaryBoot), "Sec.boot"},
                           {static_cast<std::uint32_t>(FileType::Algorithm), "Algo"},
                           {static_cast<std::uint32_t>(FileType::McuSoftware), "MCUSW"}};

constexpr Name kLocations[] = {{static_cast<std::uint32_t>(FileLocation::Ram), "RAM"},
                               {static_cast<std::uint32_t>(FileLocation::Flash), "Flash"},
                               {static_cast<std::uint32_t>(FileLocation::PcCard), "PCCard"}};

constexpr Name kGenerations[] = {{0, ""}, {3, "QX1"}, {4, "QX2"}, {5, "QX3"}};

std::optional<std::string> Find(std::span<const Name> names, std::uint32_t value) {
    const auto name = std::find_if(names.begin(), names.end(), [value](const Name& candidate) {
        return candidate.value == value;
    });
    return name == names.end() ? std::nullopt : std::optional(std::string(name->text));
}

}

std::span<const ListColumn> FileColumns() { return kColumns; }

std::string FileTypeText(std::int32_t type) {
    return Find(kTypes, static_cast<std::uint32_t>(type)).value_or("unknown");
}

std::string FileLocationText(std::int32_t location) {
    const auto value = static_cast<std::uint32_t>(location);
    return Find(kLocations, value).value_or(std::to_string(value));
}

std::string FileGenerationText(std::uint32_t generation) {
    return Find(kGenerations, generation).value_or(std::to_string(generation));
}

}
