#include "tests/frontend/conformance/ConformanceTest.h"
#include "tests/simulator/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace conformance {

namespace {

class FilesTest : public ConformanceTest {
protected:
    std::string ContentOf(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const simulator::CTemporaryFolder m_folder;
};

TEST_F(FilesTest, NewFileHoldsEveryByteAsGiven) {
    EXPECT_TRUE(Toolkit().WriteFile(m_folder.PathOf("report.txt"), "one\r\ntwo\n\t\xC3\xA4"));
    EXPECT_EQ(ContentOf(m_folder.Path() / "report.txt"), "one\r\ntwo\n\t\xC3\xA4");
}

TEST_F(FilesTest, LongerFileIsReplacedWhole) {
    m_folder.Write("report.txt", "a report that was longer");
    EXPECT_TRUE(Toolkit().WriteFile(m_folder.PathOf("report.txt"), "short"));
    EXPECT_EQ(ContentOf(m_folder.Path() / "report.txt"), "short");
}

TEST_F(FilesTest, NameBeyondAsciiIsWrittenAsItIs) {
    EXPECT_TRUE(Toolkit().WriteFile(m_folder.PathOf("Gerät Ω.txt"), "text"));
    EXPECT_EQ(ContentOf(m_folder.Path() / std::filesystem::path(u8"Gerät Ω.txt")), "text");
}

TEST_F(FilesTest, FileInAMissingFolderCannotBeOpened) {
    EXPECT_FALSE(Toolkit().WriteFile(m_folder.PathOf("none/report.txt"), "text"));
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "none"));
}

TEST_F(FilesTest, CurrentFolderIsTheProcessesOwn) {
    const auto folder = std::filesystem::current_path().u8string();
    EXPECT_EQ(Toolkit().GetCurrentFolder(), std::string(folder.begin(), folder.end()));
}

}

}
