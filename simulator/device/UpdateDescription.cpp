#include "simulator/device/UpdateDescription.h"

#include "simulator/device/IniText.h"
#include "simulator/device/PhoneFile.h"
#include "simulator/device/VersionText.h"
#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemError.h"
#include "simulator/folder/SystemPath.h"
#include "simulator/folder/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;
using Kind = UpdateEntry::Kind;

/// More is no description, and need not be read to be refused.
constexpr std::size_t kLargestFile = 1U << 20;

constexpr std::pair<std::string_view, Kind> kKinds[] = {{"file", Kind::PhoneFile},
                                                        {"fpga", Kind::Fpga},
                                                        {"application", Kind::Application},
                                                        {"image", Kind::Image}};

std::string QuotedPath(const Path& path) {
    return IsUtf8(TextOfPath(path)) ? QuotePath(path) : "the update description";
}

Failure FailToRead(const Path& path, const std::string& reason,
                   contract::Status status = kReadFault) {
    return {status, QuotedPath(path) + " cannot be read: " + reason};
}

Failure FailToRead(const Path& path, const std::error_code& error) {
    const bool isDenied = error == std::errc::permission_denied;
    return FailToRead(path, MessageOf(error), isDenied ? kAccessDenied : kReadFault);
}

std::variant<std::string, Failure> ReadText(const Path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return Failure{kFileNotFound, "There is no update description " + QuotedPath(path)};
    }
    if (error) {
        return FailToRead(path, error);
    }
    if (!std::filesystem::is_regular_file(status)) {
        return FailToRead(path, "it is not a plain file");
    }
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        return FailToRead(path, std::error_code(errno, std::generic_category()));
    }
    std::string text(kLargestFile + 1, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.size() > kLargestFile) {
        return FailToRead(path, "it is larger than 1048576 bytes");
    }
    return text;
}

bool IsAbsolute(std::string_view path) {
    const bool hasDrive = path.size() >= 2 && path[1] == ':';
    return path.starts_with('/') || hasDrive;
}

bool HasStepUp(const Path& path) { return std::find(path.begin(), path.end(), "..") != path.end(); }

/// Takes the entries in and says what is wrong with one.
class CDescriptionReader {
public:
    explicit CDescriptionReader(std::int32_t deviceType) : m_deviceType(deviceType) {}

    std::string Visit(const IniEntry& entry) {
        if (entry.section == "package") {
            return VisitPackage(entry);
        }
        const auto* model =
            std::find_if(std::begin(kModels), std::end(kModels),
                         [&](const auto& named) { return named.name == entry.section; });
        if (entry.section != "common" && model == std::end(kModels)) {
            return entry.section.empty()
                       ? "stands before the first section"
                       : "is in the unknown section " + QuoteForMessage(entry.section);
        }
        const bool isForDevice = entry.section == "common" || model->value == m_deviceType;
        return VisitFile(entry, isForDevice);
    }

    UpdateDescription description;

private:
    static std::string RefuseKey(const IniEntry& entry) {
        return "has the unknown key " + QuoteForMessage(entry.key);
    }

    std::string VisitPackage(const IniEntry& entry) {
        if (entry.key != "name" && entry.key != "version") {
            return RefuseKey(entry);
        }
        auto& text = entry.key == "name" ? description.name : description.version;
        if (!text.empty()) {
            return "gives " + QuoteForMessage(entry.key) + " again";
        }
        if (entry.key == "version" && !IsVersion(entry.value)) {
            return "has no version such as 5.2.0";
        }
        text = entry.value;
        return "";
    }

    std::string VisitFile(const IniEntry& entry, bool isForDevice) {
        const auto* kind =
            std::find_if(std::begin(kKinds), std::end(kKinds),
                         [&](const auto& named) { return named.first == entry.key; });
        if (kind == std::end(kKinds)) {
            return RefuseKey(entry);
        }
        UpdateEntry file{kind->second, std::string(entry.value)};
        if (file.kind == Kind::PhoneFile) {
            TakeDestination(file);
        }
        std::replace(file.path.begin(), file.path.end(), '\\', '/');
        if (auto reason = ReasonAgainst(file); !reason.empty()) {
            return reason;
        }
        if (isForDevice) {
            description.entries.push_back(std::move(file));
        }
        return "";
    }

    /// "nor32_alg.fia, RAM"
    static void TakeDestination(UpdateEntry& file) {
        const auto comma = file.path.rfind(", ");
        for (const auto& [name, location] : kLocations) {
            if (comma != std::string::npos && file.path.substr(comma + 2) == name) {
                file.destination = static_cast<Destination>(location);
                file.path.erase(comma);
                return;
            }
        }
    }

    static std::string ReasonAgainst(const UpdateEntry& file) {
        const auto path = PathOf(file.path);
        if (!path.has_filename()) {
            return "names no file";
        }
        if (IsAbsolute(file.path) || HasStepUp(path)) {
            return "names a file outside the folder of the description";
        }
        if (IsSameName(TextOfPath(path.filename()), kVersionFileName)) {
            return "names \"version.fia\", which the update itself makes";
        }
        return "";
    }

    const std::int32_t m_deviceType;
};

Failure RefuseLine(const Path& path, const IniMistake& mistake) {
    return {kInvalidData,
            QuotedPath(path) + ", line " + std::to_string(mistake.line) + ": " + mistake.reason};
}

}

std::variant<UpdateDescription, Failure> ReadUpdateDescription(const Path& file,
                                                               std::int32_t deviceType) {
    auto text = ReadText(file);
    if (auto* failure = std::get_if<Failure>(&text)) {
        return std::move(*failure);
    }
    CDescriptionReader reader(deviceType);
    const auto mistake = ReadIni(std::get<std::string>(text),
                                 [&](const IniEntry& entry) { return reader.Visit(entry); });
    if (mistake) {
        return RefuseLine(file, *mistake);
    }
    if (reader.description.version.empty()) {
        return Failure{kInvalidData, QuotedPath(file) + ": gives no version of the package"};
    }
    if (reader.description.entries.empty()) {
        return Failure{kInvalidData, QuotedPath(file) + ": names no file for this device"};
    }
    return std::move(reader.description);
}

}
