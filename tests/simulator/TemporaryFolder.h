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

    /// Writes a file, with the folders on the way to it.
    void Write(const std::string& relativePath, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

}
