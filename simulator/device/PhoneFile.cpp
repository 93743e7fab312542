#include "simulator/device/PhoneFile.h"

#include "simulator/DeviceDescription.h"
#include "simulator/device/VersionText.h"
#include "simulator/folder/DescriptionNames.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <vector>

namespace simulator {

namespace {

char LowerCase(char letter) {
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr NamedValue kTypeSuffixes[] = {
    {"_2nd", kSecondaryBoot}, {"_alg", kAlgorithm}, {"_mcu", kMcuSoftware}};

bool EndsWith(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && IsSameName(text.substr(text.size() - end.size()), end);
}

std::int32_t TypeOfName(std::string_view name) {
    const auto dot = name.rfind('.');
    const auto extension = dot == name.npos ? std::string_view() : name.substr(dot);
    if (IsSameName(name, kVersionFileName)) {
        return kMcuSoftware;
    }
    if (!IsSameName(extension, ".fia") && !IsSameName(extension, ".fg")) {
        return kUnknownFileType;
    }
    for (const auto& [suffix, type] : kTypeSuffixes) {
        if (EndsWith(name.substr(0, dot), suffix)) {
            return static_cast<std::int32_t>(type);
        }
    }
    return kUnknownFileType;
}

std::vector<std::string_view> WordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    while (true) {
        const auto begin = line.find_first_not_of(" \t\r");
        if (begin == line.npos) {
            return words;
        }
        line.remove_prefix(begin);
        words.push_back(line.substr(0, line.find_first_of(" \t\r")));
        line.remove_prefix(words.back().size());
    }
}

/// A word that is no such entry, or has a value that is none, says nothing.
void ReadHeaderWord(std::string_view word, PhoneFile& file) {
    if (word.starts_with("id=")) {
        std::int32_t id = 0;
        const auto* end = word.data() + word.size();
        const auto [rest, error] = std::from_chars(word.data() + 3, end, id);
        if (error == std::errc() && rest == end) {
            file.id = id;
        }
    }
    for (const auto& [name, value] : kGenerations) {
        if (word == "generation=" + std::string(name)) {
            file.generation = static_cast<std::uint32_t>(value);
        }
    }
    for (const auto& [name, value] : kFileTypes) {
        if (word == "type=" + std::string(name)) {
            file.type = static_cast<std::int32_t>(value);
        }
    }
}

}

bool IsSameName(std::string_view name, std::string_view other) {
    return std::equal(name.begin(), name.end(), other.begin(), other.end(),
                      [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

PhoneFile RecognisePhoneFile(const std::string& name, std::string_view head) {
    PhoneFile file;
    file.name = name;
    file.type = TypeOfName(name);
    if (EndsWith(name, ".fg")) {
        file.generation = kGenerationQx3;
    }
    const auto words = WordsOf(head.substr(0, head.find('\n')));
    if (words.size() >= 2 && IsVersion(words[1])) {
        file.version = words[1];
        std::for_each(words.begin() + 2, words.end(),
                      [&](auto word) { ReadHeaderWord(word, file); });
    }
    return file;
}

}
