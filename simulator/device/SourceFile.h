#pragma once

#include "simulator/Failure.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace simulator {

/// Where a path that a panel hands over leads on this system: separators may be of either kind, and
/// "/opt/package\Flash\krx8upd.ini" is what a panel makes of a folder of this system.
std::filesystem::path LocalPath(const std::string& path);

/// Told how far an operation is, in bytes.
using Progress = std::function<void(std::uint32_t done, std::uint32_t total)>;

/// A file of the workstation that is to be stored on a device, found fit for it: it is a plain file
/// that can be read, is not empty, fits the device's sizes (2147483647 bytes) and has a name that
/// the device can keep (UTF-8, at most 256 bytes).
class CSourceFile {
public:
    /// The file, or why it is not fit.
    static std::variant<CSourceFile, Failure> Open(const std::filesystem::path& path);

    /// Without the folder.
    const std::string& Name() const { return m_name; }
    /// The name in messages: quoted, on one line.
    std::string QuotedName() const;
    std::int32_t SizeBytes() const { return m_sizeBytes; }
    /// The first bytes, at most 1024.
    const std::string& Head() const { return m_head; }

    /// Reads the whole file and tells `progress` after every chunk, about a hundred of them. Fails
    /// when the file is no longer the size it was.
    Outcome Read(std::string& bytes, const Progress& progress) const;

    /// The same for a file whose bytes are not wanted: they are never held all at once.
    Outcome ReadThrough(const Progress& progress) const;

private:
    using Take = std::function<void(std::string_view bytes)>;

    Outcome ReadInParts(const Take& take, const Progress& progress) const;
    CSourceFile(std::filesystem::path path, std::int32_t sizeBytes, std::string head);

    std::filesystem::path m_path;
    std::string m_name;
    std::int32_t m_sizeBytes;
    std::string m_head;
};

}
