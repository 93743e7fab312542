#include "simulator/device/IniText.h"

#include "simulator/folder/Utf8.h"

#include <ini.h>

#include <algorithm>
#include <cstring>

namespace simulator {

namespace {

constexpr const char* kSyntaxMistake = "is neither a section, a \"key = value\" nor a comment";

/// The text as the library reads it, line by line. The library tells its handler no line, so that
/// they are counted here; each is handed over whole, which the library does not see to itself.
struct Reading {
    std::string_view rest;
    const IniVisitor& visit;
    std::size_t line = 0;
    std::optional<IniMistake> mistake = std::nullopt;

    void Refuse(const std::string& reason) {
        if (!mistake) {
            mistake = {line, reason};
        }
    }
};

/// Why a line cannot be read, with its end; empty when it can.
std::string ReasonAgainst(std::string_view line, std::size_t roomBytes) {
    if (line.size() + 1 > roomBytes) {
        return "is longer than " + std::to_string(roomBytes - 2) + " bytes";
    }
    if (!IsUtf8(line)) {
        return "is not UTF-8";
    }
    return line.find('\0') == line.npos ? "" : "holds a zero byte";
}

/// The library takes a line that begins with any of these for a further value of the key above it.
std::string_view WithoutIndentation(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(" \t\v\f\r"), line.size()));
}

char* ReadLine(char* buffer, int size, void* stream) {
    auto& reading = *static_cast<Reading*>(stream);
    if (reading.mistake || reading.rest.empty()) {
        return nullptr;
    }
    ++reading.line;
    const auto end = std::min(reading.rest.find('\n'), reading.rest.size() - 1) + 1;
    const auto line = reading.rest.substr(0, end);
    if (auto reason = ReasonAgainst(line, static_cast<std::size_t>(size)); !reason.empty()) {
        reading.Refuse(reason);
        return nullptr;
    }
    const auto text = WithoutIndentation(line);
    std::memcpy(buffer, text.data(), text.size());
    buffer[text.size()] = '\0';
    reading.rest.remove_prefix(line.size());
    return buffer;
}

int HandleEntry(void* user, const char* section, const char* key, const char* value) {
    auto& reading = *static_cast<Reading*>(user);
    if (reading.mistake) {
        return 0;
    }
    if (auto reason = reading.visit({section, key, value}); !reason.empty()) {
        reading.Refuse(reason);
        return 0;
    }
    return 1;
}

}

std::optional<IniMistake> ReadIni(std::string_view text, const IniVisitor& visit) {
    Reading reading{text, visit};
    const auto line = ini_parse_stream(ReadLine, &reading, HandleEntry, &reading);
    // The library reads on behind a mistake of the text, and tells the first one at the end.
    const bool isEarlier =
        !reading.mistake || static_cast<std::size_t>(line) < reading.mistake->line;
    if (line > 0 && isEarlier) {
        return IniMistake{static_cast<std::size_t>(line), kSyntaxMistake};
    }
    return reading.mistake;
}

}
