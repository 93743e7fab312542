#pragma once

#include <filesystem>
#include <string>

namespace simulator {

/// A folder of its own in the system's place for temporary files, removed at the end.
class CTemporaryFolder {
public:
    CTemporaryFolder();
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    /// The full path of what lies in it, with the system's own separators. UTF-8.
    std::string PathOf(const std::string& relativePath) const;

    /// Writes a file, with the folders on the way to it. The path is UTF-8.
    void Write(const std::string& relativePath, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

}
