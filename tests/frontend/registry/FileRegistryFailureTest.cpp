#include "tests/frontend/registry/RegistryFixture.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <unistd.h>

namespace registry {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;

constexpr perms kEverybodyReads = perms::owner_all | perms::group_read | perms::group_exec |
                                  perms::others_read | perms::others_exec;
constexpr perms kNobodyWrites = kEverybodyReads & ~perms::owner_write;

class FileRegistryFailureTest : public RegistryFixture {
protected:
    ~FileRegistryFailureTest() override {
        std::error_code ignored;
        std::filesystem::permissions(folder.Path(), perms::owner_all, ignored);
    }

    /// Runs as a user whom permissions hold back, which they do not for root.
    static int RunAsUser(const std::function<int()>& work) {
        constexpr uid_t kNobody = 65534;
        return RunInChild([&] {
            if (geteuid() == 0 && setuid(kNobody) != 0) {
                return -1;
            }
            return work();
        });
    }

    /// Runs with files limited to so many bytes, as on a disk without room for more.
    static int RunWithRoomFor(rlim_t bytes, const std::function<int()>& work) {
        return RunInChild([&] {
            const rlimit limit{bytes, bytes};
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR) {
                return -1;
            }
            return work();
        });
    }
};

TEST_F(FileRegistryFailureTest, CreateInUnwritableFolderIsDenied) {
    std::filesystem::permissions(folder.Path(), kNobodyWrites);
    EXPECT_EQ(RunAsUser([&] {
                  std::unique_ptr<panel::IRegistryKey> key;
                  return registry.CreateKey(kKey, key);
              }),
              5);
}

TEST_F(FileRegistryFailureTest, WriteInUnwritableFolderIsDeniedAndFileStays) {
    EXPECT_EQ(Create()->WriteText("FlashDir", "C:\\Flash"), 0);
    const std::string before = ReadFile();
    std::filesystem::permissions(folder.Path(), kNobodyWrites);
    EXPECT_EQ(RunAsUser([&] { return Open()->WriteText("FlashDir", "D:\\Flash"); }), 5);
    EXPECT_EQ(ReadFile(), before);
}

TEST_F(FileRegistryFailureTest, UnwritableFolderIsReadAllTheSame) {
    EXPECT_EQ(Create()->WriteText("FlashDir", "C:\\Flash"), 0);
    std::filesystem::permissions(folder.Path(), kNobodyWrites);
    EXPECT_EQ(RunAsUser([&] { return Read("FlashDir") == std::string("C:\\Flash") + '\0'; }), 1);
}

TEST_F(FileRegistryFailureTest, OpenUnreadableFileIsDenied) {
    Create();
    std::filesystem::permissions(folder.Path(), kEverybodyReads);
    std::filesystem::permissions(Path(), perms::none);
    EXPECT_EQ(RunAsUser([&] {
                  std::unique_ptr<panel::IRegistryKey> key;
                  return registry.OpenKey(kKey, key);
              }),
              5);
}

TEST_F(FileRegistryFailureTest, FileInPlaceOfTheFolderIsNoPath) {
    WriteFile("{}");
    CFileRegistry below(Path() + "/registry.json", [](const std::string&) {});
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(below.OpenKey(kKey, key), 3);
    EXPECT_EQ(below.CreateKey(kKey, key), 3);
}

TEST_F(FileRegistryFailureTest, WriteWithoutRoomKeepsTheOldFileAndLeavesNoOther) {
    EXPECT_EQ(Create()->WriteText("FlashDir", "C:\\Flash"), 0);
    const std::string before = ReadFile();
    const auto writeMuch = [&] { return Open()->WriteText("FlashDir", std::string(5000, 'a')); };
    EXPECT_EQ(RunWithRoomFor(1000, writeMuch), 223);
    EXPECT_EQ(ReadFile(), before);
    EXPECT_THAT(FilesInFolder(), ElementsAre("registry.json", "registry.json.lock"));
}

TEST_F(FileRegistryFailureTest, TextThatIsNotUtf8IsRefusedAndFileStays) {
    const auto key = Create();
    const std::string before = ReadFile();
    EXPECT_EQ(key->WriteText("FlashDir", "C:\\M\xFCller"), 1113);
    EXPECT_EQ(key->WriteText("M\xFCller", ""), 1113);
    EXPECT_EQ(ReadFile(), before);
}

}
}
