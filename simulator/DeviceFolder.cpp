#include "simulator/DeviceFolder.h"

#include "simulator/Device.h"
#include "simulator/folder/DescriptionReader.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;

constexpr const char* kDescriptionName = "device.json";

std::string LastSystemError() { return std::error_code(errno, std::generic_category()).message(); }

[[noreturn]] void RefuseAsUnreadable(const Path& path, const std::string& reason) {
    throw DescriptionError{path, 0, "cannot be read: " + reason};
}

void ExpectDeviceFolder(const Path& folder) {
    std::error_code error;
    const auto status = std::filesystem::status(folder, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        throw DescriptionError{folder, 0, "there is no such folder"};
    }
    if (error) {
        RefuseAsUnreadable(folder, error.message());
    }
    if (!std::filesystem::is_directory(status)) {
        throw DescriptionError{folder, 0, "is not a folder"};
    }
    const auto description = std::filesystem::status(folder / kDescriptionName, error);
    if (description.type() == std::filesystem::file_type::not_found) {
        throw DescriptionError{folder, 0, "is not a device: there is no device.json in it"};
    }
    if (error) {
        RefuseAsUnreadable(folder / kDescriptionName, error.message());
    }
}

std::string ReadText(const Path& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        RefuseAsUnreadable(path, error.message());
    }
    std::ifstream stream(path, std::ios::binary);
    std::string text(size, '\0');
    if (!stream.read(text.data(), static_cast<std::streamsize>(size))) {
        RefuseAsUnreadable(path, LastSystemError());
    }
    return text;
}

/// What the parser says, without its own name, its notion of the place, and the text around the
/// place, which may be anything.
std::string ReasonOf(const nlohmann::json::parse_error& error) {
    std::string reason = error.what();
    if (const auto place = reason.find(", column "); place != std::string::npos) {
        reason.erase(0, reason.find(": ", place) + 2);
    }
    if (const auto context = reason.find("; last read: "); context != std::string::npos) {
        reason.erase(context, reason.rfind("; expected ") - context);
    }
    return "is not valid JSON: " + reason;
}

nlohmann::json Parse(const Path& path, const std::string& text) {
    try {
        return nlohmann::json::parse(text);
    } catch (const nlohmann::json::parse_error& error) {
        const auto end =
            text.begin() +
            static_cast<std::ptrdiff_t>(std::min(text.size(), error.byte > 0 ? error.byte - 1 : 0));
        const auto line = 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
        throw DescriptionError{path, line, ReasonOf(error)};
    }
}

DeviceDescription Read(const Path& folder) {
    ExpectDeviceFolder(folder);
    const auto path = folder / kDescriptionName;
    const auto text = ReadText(path);
    const DescriptionDocument document{path, Parse(path, text), CJsonLines(text)};
    if (document.lines.DuplicateLine() != 0) {
        throw DescriptionError{path, document.lines.DuplicateLine(),
                               QuoteForMessage(NameOf(document.lines.Duplicate())) +
                                   " is given twice"};
    }
    return ReadDescription(CDescriptionNode(document), folder);
}

}

std::variant<DeviceDescription, DescriptionError> ReadDeviceFolder(const Path& folder) {
    try {
        return Read(folder);
    } catch (const DescriptionError& error) {
        return error;
    }
}

std::variant<std::shared_ptr<CDevice>, DescriptionError> OpenDevice(const Path& folder) {
    auto result = ReadDeviceFolder(folder);
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        return *error;
    }
    return CDevice::Create(std::get<DeviceDescription>(std::move(result)));
}

std::vector<Path> ListDevices(const Path& root) {
    std::vector<Path> devices;
    std::error_code error;
    std::filesystem::directory_iterator entry(root, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (std::filesystem::exists(entry->path() / kDescriptionName, ignored)) {
            devices.push_back(entry->path());
        }
    }
    std::sort(devices.begin(), devices.end());
    return devices;
}

}
