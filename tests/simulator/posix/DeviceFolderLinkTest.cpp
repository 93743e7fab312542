#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

namespace fs = std::filesystem;

/// Device folders with links and names that other systems do not have.
using DeviceFolderLinkTest = DeviceFolderFixture;

TEST_F(DeviceFolderLinkTest, FolderOfTwoLinesIsRefusedInOne) {
    const auto path = m_folder.Path().string();
    ExpectRefusal(path + "/a\nb\\\"\xE9", path + "/a\\nb\\\"\xE9: there is no such folder");
}

TEST_F(DeviceFolderLinkTest, UnreadableFolderIsRefused) {
    // A link to itself cannot be followed by anybody, whatever the permissions.
    const auto folder = m_folder.Path() / "loop";
    fs::create_symlink(folder, folder);
    ExpectRefusal(folder, folder.string() + ": cannot be read: Too many levels of symbolic links");
}

TEST_F(DeviceFolderLinkTest, UnreadableDescriptionIsRefused) {
    const auto path = m_folder.Path() / "device.json";
    fs::remove(path);
    fs::create_symlink(path, path);
    ExpectRefusal("/device.json: cannot be read: Too many levels of symbolic links");
}

TEST_F(DeviceFolderLinkTest, UnreadableStoredFileIsRefused) {
    const auto path = m_folder.Path() / "files/a.fia";
    fs::remove(path);
    fs::create_symlink(path, path);
    ExpectRefusal(
        "/device.json:10: \"files[0]\" is stored in \"files/a.fia\", which cannot be read: "
        "Too many levels of symbolic links");
}

TEST_F(DeviceFolderLinkTest, NamesOfTwoLinesAreRefusedInOne) {
    Describe(Replaced(kGoodDescription, "\"second\"", R"("a\nb\u001b")"));
    ExpectRefusal(
        R"(/device.json:11: "files[1]" is stored in "files/a\nb\u001b", which is missing)");
    Describe(Replaced(kGoodDescription, "\"a.fia\"", R"("a\nb")"));
    ExpectRefusal(R"(/device.json:10: "files[0]" is stored in "files/a\nb", which is missing)");
}

}
}
