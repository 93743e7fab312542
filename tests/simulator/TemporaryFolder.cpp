#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdlib.h>

namespace simulator {

CTemporaryFolder::CTemporaryFolder() {
    std::string path = std::filesystem::temp_directory_path() / "simulator-test-XXXXXX";
    if (!mkdtemp(path.data())) {
        throw std::runtime_error("No temporary folder can be made");
    }
    m_path = path;
}

CTemporaryFolder::~CTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void CTemporaryFolder::Write(const std::string& relativePath, const std::string& content) const {
    const auto path = m_path / relativePath;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream << content;
    EXPECT_TRUE(stream.flush()) << path;
}

}
