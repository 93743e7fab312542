#include "simulator/DeviceFolder.h"

#include "simulator/Device.h"
#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/DescriptionReader.h"
#include "simulator/folder/FolderStore.h"
#include "simulator/folder/SystemError.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;

/// A million files take some 150 MB.
constexpr std::uintmax_t kLargestDescriptionBytes = 256U << 20;

std::string LastSystemError() { return MessageOf({errno, std::generic_category()}); }

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
        RefuseAsUnreadable(folder, MessageOf(error));
    }
    if (!std::filesystem::is_directory(status)) {
        throw DescriptionError{folder, 0, "is not a folder"};
    }
    const auto description = std::filesystem::status(folder / kDescriptionName, error);
    if (description.type() == std::filesystem::file_type::not_found) {
        throw DescriptionError{folder, 0, "is not a device: there is no device.json in it"};
    }
    if (error) {
        RefuseAsUnreadable(folder / kDescriptionName, MessageOf(error));
    }
}

std::string ReadText(const Path& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        RefuseAsUnreadable(path, MessageOf(error));
    }
    if (size > kLargestDescriptionBytes) {
        throw DescriptionError{path, 0, "is larger than 256 MiB, which no description is"};
    }
    std::ifstream stream(path, std::ios::binary);
    std::string text(size, '\0');
    if (!stream.read(text.data(), static_cast<std::streamsize>(size))) {
        RefuseAsUnreadable(path, LastSystemError());
    }
    return text;
}

DescriptionDocument Parse(const Path& path, const std::string& text) {
    CJsonLines lines(text);
    if (const auto& mistake = lines.Mistake()) {
        throw DescriptionError{path, mistake->line, mistake->reason};
    }
    // The text has just been found good. Should the parser ever think otherwise, it yields a value
    // that is no object, which ends in a refusal as well.
    constexpr bool kThrows = false;
    return {path, nlohmann::json::parse(text, nullptr, kThrows), std::move(lines)};
}

/// A description and the text it was read from.
struct FolderContent {
    DeviceDescription description;
    std::string text;
};

FolderContent Read(const Path& folder) {
    ExpectDeviceFolder(folder);
    const auto path = folder / kDescriptionName;
    auto text = ReadText(path);
    const auto document = Parse(path, text);
    return {ReadDescription(CDescriptionNode(document), folder), std::move(text)};
}

std::variant<FolderContent, DescriptionError> TryToRead(const Path& folder) {
    try {
        return Read(folder);
    } catch (const DescriptionError& error) {
        return error;
    }
}

}

std::variant<DeviceDescription, DescriptionError> ReadDeviceFolder(const Path& folder) {
    auto result = TryToRead(folder);
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        return *error;
    }
    return std::get<FolderContent>(std::move(result)).description;
}

std::variant<std::shared_ptr<CDevice>, DescriptionError> OpenDevice(const Path& folder) {
    auto result = TryToRead(folder);
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        return *error;
    }
    auto content = std::get<FolderContent>(std::move(result));
    return CDevice::Create(std::move(content.description),
                           std::make_unique<CFolderStore>(folder, std::move(content.text)));
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
