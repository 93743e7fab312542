#include "tests/frontend/registry/RegistryFixture.h"

#include <gmock/gmock.h>

#include <cstring>
#include <filesystem>

namespace registry {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class FileRegistryTest : public RegistryFixture {};

// Keys

TEST_F(FileRegistryTest, OpenWithoutFileFindsNothingAndMakesNone) {
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    EXPECT_EQ(key, nullptr);
    EXPECT_THAT(FilesInFolder(), IsEmpty());
    EXPECT_THAT(traceLines, IsEmpty());
}

TEST_F(FileRegistryTest, OpenMissingKeyIsNotFound) {
    WriteFile(R"({"SOFTWARE": {}, "SOFTWARE/Programs": {}})");
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    EXPECT_EQ(key, nullptr);
}

TEST_F(FileRegistryTest, CreateMakesKeyThatCanBeOpened) {
    Create();
    EXPECT_EQ(ReadFile(), "{\n"
                          "  \"SOFTWARE/Programs/Update\": {}\n"
                          "}\n");
    EXPECT_NE(Open(), nullptr);
}

TEST_F(FileRegistryTest, CreateKeepsValuesOfKeyThatExists) {
    Create()->WriteText("FlashVersion", "2.10.4");
    Create();
    EXPECT_EQ(Read("FlashVersion"), "2.10.4\0"s);
}

TEST_F(FileRegistryTest, CreateMakesFoldersOnTheWay) {
    const std::filesystem::path file = folder.Path() / "one" / "two" / "registry.json";
    CFileRegistry deep(file.string(), [](const std::string&) {});
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(deep.CreateKey(kKey, key), 0);
    EXPECT_TRUE(std::filesystem::is_regular_file(file));
}

TEST_F(FileRegistryTest, WrongPathsAreRefused) {
    for (const char* path : {"", "\\SOFTWARE", "SOFTWARE\\", "SOFTWARE\\\\Update", "SOFT/WARE"}) {
        std::unique_ptr<panel::IRegistryKey> key;
        EXPECT_EQ(registry.OpenKey(path, key), 123) << path;
        EXPECT_EQ(registry.CreateKey(path, key), 123) << path;
        EXPECT_EQ(key, nullptr);
    }
    EXPECT_THAT(FilesInFolder(), IsEmpty());
}

// Values

TEST_F(FileRegistryTest, TextReadsWithItsTerminator) {
    EXPECT_EQ(Create()->WriteText("FlashDir", "C:\\Pakete\\M\xC3\xBCller"), 0);
    EXPECT_EQ(Read("FlashDir"), "C:\\Pakete\\M\xC3\xBCller\0"s);
}

TEST_F(FileRegistryTest, EmptyTextIsItsTerminator) {
    EXPECT_EQ(Create()->WriteText("FlashDir", ""), 0);
    EXPECT_EQ(Read("FlashDir"), "\0"s);
}

TEST_F(FileRegistryTest, NumberReadsAsItsBytesInMemory) {
    constexpr std::uint32_t kNumber = 0xFEDCBA98;
    EXPECT_EQ(Create()->WriteNumber("Count", kNumber), 0);
    const std::string bytes = Read("Count");
    ASSERT_EQ(bytes.size(), 4u);
    EXPECT_EQ(std::memcmp(bytes.data(), &kNumber, 4), 0);
}

TEST_F(FileRegistryTest, EmptyNameIsTheDefaultValue) {
    EXPECT_EQ(Create()->WriteText("", "default"), 0);
    EXPECT_EQ(Read(""), "default\0"s);
}

TEST_F(FileRegistryTest, ValueTakesPlaceOfOneOfAnotherType) {
    const auto key = Create();
    EXPECT_EQ(key->WriteText("Value", "text"), 0);
    EXPECT_EQ(key->WriteNumber("Value", 0), 0);
    EXPECT_EQ(Read("Value"), "\0\0\0\0"s);
}

TEST_F(FileRegistryTest, MissingValueIsNotFoundAndBytesStay) {
    const auto key = Create();
    std::string bytes = "before";
    EXPECT_EQ(key->ReadValue("FlashDir", 260, bytes), 2);
    EXPECT_EQ(bytes, "before");
}

TEST_F(FileRegistryTest, TextThatFillsTheRoomReads) {
    const auto key = Create();
    EXPECT_EQ(key->WriteText("FlashDir", std::string(259, 'a')), 0);
    std::string bytes;
    EXPECT_EQ(key->ReadValue("FlashDir", 260, bytes), 0);
    EXPECT_EQ(bytes, std::string(259, 'a') + '\0');
}

TEST_F(FileRegistryTest, TextOneByteTooLongIsMoreDataAndBytesStay) {
    const auto key = Create();
    EXPECT_EQ(key->WriteText("FlashDir", std::string(260, 'a')), 0);
    std::string bytes = "before";
    EXPECT_EQ(key->ReadValue("FlashDir", 260, bytes), 234);
    EXPECT_EQ(bytes, "before");
}

// The file

TEST_F(FileRegistryTest, FileIsReadable) {
    const auto key = Create();
    EXPECT_EQ(key->WriteText("FlashDir", "C:\\Flash"), 0);
    EXPECT_EQ(key->WriteNumber("Count", 4294967295u), 0);
    EXPECT_EQ(ReadFile(), "{\n"
                          "  \"SOFTWARE/Programs/Update\": {\n"
                          "    \"FlashDir\": \"C:\\\\Flash\",\n"
                          "    \"Count\": 4294967295\n"
                          "  }\n"
                          "}\n");
}

TEST_F(FileRegistryTest, WritingKeepsWhatItDoesNotConcernInItsOrder) {
    WriteFile(R"({"Z": {"b": 1, "a": "x"}, "SOFTWARE/Programs/Update": {"Count": 1}, "A": {}})");
    EXPECT_EQ(Open()->WriteNumber("Count", 2), 0);
    EXPECT_EQ(ReadFile(), "{\n"
                          "  \"Z\": {\n"
                          "    \"b\": 1,\n"
                          "    \"a\": \"x\"\n"
                          "  },\n"
                          "  \"SOFTWARE/Programs/Update\": {\n"
                          "    \"Count\": 2\n"
                          "  },\n"
                          "  \"A\": {}\n"
                          "}\n");
}

TEST_F(FileRegistryTest, OpenKeySeesWhatWasWrittenSince) {
    WriteFile(R"({"SOFTWARE/Programs/Update": {"FlashVersion": "1"}})");
    const auto key = Open();
    WriteFile(R"({"SOFTWARE/Programs/Update": {"FlashVersion": "2"}})");
    std::string bytes;
    EXPECT_EQ(key->ReadValue("FlashVersion", 260, bytes), 0);
    EXPECT_EQ(bytes, "2\0"s);
}

TEST_F(FileRegistryTest, KeyRemovedSinceItWasOpenedHasNoValues) {
    WriteFile(R"({"SOFTWARE/Programs/Update": {"FlashVersion": "1"}})");
    const auto key = Open();
    WriteFile("{}");
    std::string bytes;
    EXPECT_EQ(key->ReadValue("FlashVersion", 260, bytes), 2);
}

TEST_F(FileRegistryTest, WritingWhatIsThereLeavesTheFileAlone) {
    const std::string compact = R"({"SOFTWARE/Programs/Update": {"FlashVersion": "1"}})";
    WriteFile(compact);
    EXPECT_EQ(Open()->WriteText("FlashVersion", "1"), 0);
    EXPECT_EQ(ReadFile(), compact);
}

TEST_F(FileRegistryTest, WritingKeepsThePermissions) {
    using std::filesystem::perms;
    Create();
    const perms shared =
        perms::owner_read | perms::owner_write | perms::group_read | perms::group_write;
    std::filesystem::permissions(Path(), shared);
    EXPECT_EQ(Open()->WriteNumber("Count", 1), 0);
    EXPECT_EQ(std::filesystem::status(Path()).permissions(), shared);
}

TEST_F(FileRegistryTest, WritingThroughALinkReplacesItsTarget) {
    WriteFile("{}");
    const std::filesystem::path link = folder.Path() / "link.json";
    std::filesystem::create_symlink("registry.json", link);
    CFileRegistry linked(link.string(), [](const std::string&) {});
    std::unique_ptr<panel::IRegistryKey> key;
    ASSERT_EQ(linked.CreateKey(kKey, key), 0);
    EXPECT_EQ(key->WriteText("FlashVersion", "3"), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(Read("FlashVersion"), "3\0"s);
    EXPECT_THAT(FilesInFolder(), ElementsAre("link.json", "registry.json", "registry.json.lock"));
}

}
}
