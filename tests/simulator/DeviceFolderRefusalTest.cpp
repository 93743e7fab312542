#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

namespace fs = std::filesystem;

using DeviceFolderRefusalTest = DeviceFolderFixture;

TEST_F(DeviceFolderRefusalTest, MissingFolderIsRefused) {
    const auto folder = m_folder.Path() / "nowhere";
    ExpectRefusal(folder, folder.string() + ": there is no such folder");
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(DeviceFolderRefusalTest, FileInPlaceOfFolderIsRefused) {
    const auto folder = m_folder.Path() / "device.json";
    ExpectRefusal(folder, folder.string() + ": is not a folder");
}

TEST_F(DeviceFolderRefusalTest, FolderWithoutDescriptionIsRefused) {
    const auto folder = m_folder.Path() / "files";
    ExpectRefusal(folder, folder.string() + ": is not a device: there is no device.json in it");
}

TEST_F(DeviceFolderRefusalTest, DescriptionThatIsAFolderIsRefused) {
    fs::remove(m_folder.Path() / "device.json");
    fs::create_directory(m_folder.Path() / "device.json");
    ExpectRefusal("/device.json: cannot be read: Is a directory");
}

TEST_F(DeviceFolderRefusalTest, GiantDescriptionIsRefusedUnread) {
    const auto description = m_folder.Path() / "device.json";
    fs::resize_file(description, (std::uintmax_t{256} << 20) + 1);
    ExpectRefusal(m_folder.Path(),
                  description.string() + ": is larger than 256 MiB, which no description is");
}

TEST_F(DeviceFolderRefusalTest, EmptyDescriptionIsRefused) {
    Describe("");
    ExpectRefusal("/device.json:1: is not valid JSON: syntax error while parsing value - "
                  "unexpected end of input; expected '[', '{', or a literal");
}

TEST_F(DeviceFolderRefusalTest, SyntaxErrorIsRefusedWithItsLine) {
    Describe("{\n  \"model\": \"KRX-20\",\n  mode\n}");
    ExpectRefusal("/device.json:3: is not valid JSON: syntax error while parsing object key - "
                  "invalid literal; expected string literal");
}

TEST_F(DeviceFolderRefusalTest, BrokenUtf8IsRefusedWithItsLine) {
    Describe("{\n\"model\": \"\xFF\"}");
    ExpectRefusal("/device.json:2: is not valid JSON: syntax error while parsing value - invalid "
                  "string: ill-formed UTF-8 byte");
}

TEST_F(DeviceFolderRefusalTest, DeepNestingIsRefusedWithItsLine) {
    Describe("{\n\"a\": " + std::string(100000, '['));
    ExpectRefusal("/device.json:2: \"a[0][0][0][0][0][0][0]\" is nested too deeply: 8 levels are "
                  "the most");
}

TEST_F(DeviceFolderRefusalTest, NumberAsDescriptionIsRefused) {
    Describe("\n7");
    ExpectRefusal("/device.json:2: the description must be an object");
    Describe("\n7e999\n");
    ExpectRefusal("/device.json:2: the description is too large a number");
}

TEST_F(DeviceFolderRefusalTest, MissingFilesAreRefused) {
    Describe(R"({"model": 4, "mode": 1, "serialNumber": 7,
        "memory": {"ramBytes": 1, "flashBytes": 1}})");
    ExpectRefusal("/device.json:1: \"files\" is missing");
}

TEST_F(DeviceFolderRefusalTest, FilesAsObjectAreRefused) {
    Describe(R"({"model": 4, "mode": 1, "serialNumber": 7,
        "memory": {"ramBytes": 1, "flashBytes": 1},
        "files": {}})");
    ExpectRefusal("/device.json:3: \"files\" must be a list");
}

TEST_F(DeviceFolderRefusalTest, MissingStoredFileIsRefused) {
    fs::remove(m_folder.Path() / "files/second");
    ExpectRefusal("/device.json:11: \"files[1]\" is stored in \"files/second\", which is missing");
}

TEST_F(DeviceFolderRefusalTest, FolderInPlaceOfStoredFileIsRefused) {
    fs::remove(m_folder.Path() / "files/a.fia");
    fs::create_directory(m_folder.Path() / "files/a.fia");
    ExpectRefusal(
        "/device.json:10: \"files[0]\" is stored in \"files/a.fia\", which is not a plain file");
}

TEST_F(DeviceFolderRefusalTest, TooLargeStoredFileIsRefused) {
    fs::resize_file(m_folder.Path() / "files/a.fia", 2147483648);
    ExpectRefusal(
        "/device.json:10: \"files[0]\" is stored in \"files/a.fia\", which is larger than "
        "2147483647 bytes");
}

}
}
