#include "panel/files/FileCells.h"

#include <charconv>
#include <optional>

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

std::optional<std::string_view> Find(std::span<const Name> names, std::uint32_t value) {
    for (const Name& name : names) {
        if (name.value == value) {
            return name.text;
        }
    }
    return std::nullopt;
}

template <class Number>
std::string_view Print(Number number, CellBuffer& buffer) {
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

std::string_view NameOrNumber(std::span<const Name> names, std::uint32_t value,
                              CellBuffer& buffer) {
    const auto name = Find(names, value);
    return name ? *name : Print(value, buffer);
}

}

std::span<const ListColumn> FileColumns() { return kColumns; }

std::string_view FileTypeText(std::int32_t type) {
    return Find(kTypes, static_cast<std::uint32_t>(type)).value_or("unknown");
}

std::string_view FileLocationText(std::int32_t location, CellBuffer& buffer) {
    return NameOrNumber(kLocations, static_cast<std::uint32_t>(location), buffer);
}

std::string_view FileGenerationText(std::uint32_t generation, CellBuffer& buffer) {
    return NameOrNumber(kGenerations, generation, buffer);
}

std::string_view NumberText(std::int32_t number, CellBuffer& buffer) {
    return Print(number, buffer);
}

}
