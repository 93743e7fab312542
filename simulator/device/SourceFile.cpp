#include "simulator/device/SourceFile.h"

#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemError.h"
#include "simulator/folder/SystemPath.h"
#include "simulator/folder/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <limits>
#include <system_error>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;

constexpr std::size_t kHeadBytes = 1024;
constexpr std::size_t kLongestName = 256;
constexpr std::size_t kSmallestChunk = 16384;
constexpr std::size_t kMostChunks = 100;

std::string QuotedPath(const Path& path) {
    // Descriptions are UTF-8, whatever bytes a path of this system holds.
    return IsUtf8(TextOfPath(path)) ? QuotePath(path) : "a file";
}

Failure FailAsMissing(const Path& path) {
    return {kFileNotFound, "There is no file " + QuotedPath(path)};
}

Failure FailToRead(const Path& path, const std::error_code& error) {
    // A file may go at any moment, not only before it is looked for.
    if (error == std::errc::no_such_file_or_directory) {
        return FailAsMissing(path);
    }
    const bool isDenied = error == std::errc::permission_denied;
    return {isDenied ? kAccessDenied : kReadFault,
            QuotedPath(path) + " cannot be read: " + MessageOf(error)};
}

std::error_code LastError() { return {errno, std::generic_category()}; }

Outcome ExpectGoodName(const std::string& name) {
    if (!IsUtf8(name)) {
        return Failure{kNotUtf8, "The name of the file is not UTF-8"};
    }
    if (name.size() > kLongestName) {
        return Failure{kNameTooLong, "The name of the file has " + std::to_string(name.size()) +
                                         " bytes; a device keeps at most 256"};
    }
    return std::nullopt;
}

Outcome ExpectPlainFile(const Path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return FailAsMissing(path);
    }
    if (error) {
        return FailToRead(path, error);
    }
    if (!std::filesystem::is_regular_file(status)) {
        return Failure{kInvalidArgument, QuotedPath(path) + " is not a plain file"};
    }
    return std::nullopt;
}

Outcome ExpectGoodSize(const Path& path, std::uintmax_t sizeBytes) {
    if (sizeBytes == 0) {
        return Failure{kInvalidData, QuotedPath(path) + " is empty"};
    }
    if (sizeBytes > std::numeric_limits<std::int32_t>::max()) {
        return Failure{kMemoryFull, QuotedPath(path) + " has " + std::to_string(sizeBytes) +
                                        " bytes; a device keeps files of at most 2147483647"};
    }
    return std::nullopt;
}

Failure FailAsChanged(const Path& path) {
    return {kReadFault, QuotedPath(path) + " was changed while it was read"};
}

}

Path LocalPath(const std::string& path) {
    std::error_code ignored;
    auto local = PathOf(path);
    // Where a backslash is a letter, a file may be called so.
    if (!std::filesystem::exists(local, ignored)) {
        auto text = path;
        std::replace(text.begin(), text.end(), '\\', '/');
        local = PathOf(text);
    }
    return local.make_preferred();
}

CSourceFile::CSourceFile(Path path, std::int32_t sizeBytes, std::string head)
    : m_path(std::move(path)),
      m_name(TextOfPath(m_path.filename())),
      m_sizeBytes(sizeBytes),
      m_head(std::move(head)) {}

std::string CSourceFile::QuotedName() const { return QuoteForMessage(m_name); }

std::variant<CSourceFile, Failure> CSourceFile::Open(const Path& path) {
    if (auto failure = ExpectGoodName(TextOfPath(path.filename()))) {
        return *failure;
    }
    if (auto failure = ExpectPlainFile(path)) {
        return *failure;
    }
    std::error_code error;
    const auto sizeBytes = std::filesystem::file_size(path, error);
    std::ifstream stream(path, std::ios::binary);
    if (error || !stream) {
        return FailToRead(path, error ? error : LastError());
    }
    if (auto failure = ExpectGoodSize(path, sizeBytes)) {
        return *failure;
    }
    std::string head(std::min<std::size_t>(kHeadBytes, sizeBytes), '\0');
    if (!stream.read(head.data(), static_cast<std::streamsize>(head.size()))) {
        return FailToRead(path, LastError());
    }
    return CSourceFile(path, static_cast<std::int32_t>(sizeBytes), std::move(head));
}

Outcome CSourceFile::Read(std::string& bytes, const Progress& progress) const {
    bytes.clear();
    bytes.reserve(static_cast<std::size_t>(m_sizeBytes));
    return ReadInParts([&](std::string_view part) { bytes += part; }, progress);
}

Outcome CSourceFile::ReadThrough(const Progress& progress) const {
    return ReadInParts([](std::string_view) {}, progress);
}

Outcome CSourceFile::ReadInParts(const Take& take, const Progress& progress) const {
    std::ifstream stream(m_path, std::ios::binary);
    if (!stream) {
        return FailToRead(m_path, LastError());
    }
    const auto size = static_cast<std::size_t>(m_sizeBytes);
    const auto chunk = std::max(kSmallestChunk, size / kMostChunks + 1);
    std::string part;
    for (std::size_t done = 0; done < size;) {
        part.resize(std::min(chunk, size - done));
        if (!stream.read(part.data(), static_cast<std::streamsize>(part.size()))) {
            return FailAsChanged(m_path);
        }
        take(part);
        done += part.size();
        progress(static_cast<std::uint32_t>(done), static_cast<std::uint32_t>(size));
    }
    const bool isLonger = stream.peek() != std::ifstream::traits_type::eof();
    return isLonger ? Outcome(FailAsChanged(m_path)) : std::nullopt;
}

}
