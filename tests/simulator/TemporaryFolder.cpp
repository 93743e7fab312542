#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace simulator {

namespace {

// A narrow path is in the system's own encoding.
std::filesystem::path FromUtf8(const std::string& path) {
    return std::u8string(path.begin(), path.end());
}

}

// A name that is taken, by another process for one, is never shared.
CTemporaryFolder::CTemporaryFolder() {
    std::random_device random;
    do {
        m_path =
            std::filesystem::temp_directory_path() / ("simulator-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_path));
}

CTemporaryFolder::~CTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string CTemporaryFolder::PathOf(const std::string& relativePath) const {
    const std::u8string path = (m_path / FromUtf8(relativePath)).make_preferred().u8string();
    return {path.begin(), path.end()};
}

void CTemporaryFolder::Write(const std::string& relativePath, const std::string& content) const {
    const auto path = m_path / FromUtf8(relativePath);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream << content;
    EXPECT_TRUE(stream.flush()) << path;
}

}
