#include "tests/simulator/UploadFixture.h"
#include "tests/support/WithoutRoot.h"

#include <sys/stat.h>

namespace simulator {
namespace {

/// Uploads of what other systems do not have: files without rights, pipes, names in any bytes,
/// files that vanish while they are read.
class UploadRightsTest : public UploadFixture {};

TEST_F(UploadRightsTest, FileThatMayNotBeReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    ASSERT_EQ(chmod(m_workstation.Path().c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const support::CWithoutRoot rights;
    ExpectRefused(Upload(path), 0x80070005, "\"" + path + "\" cannot be read: Permission denied");
}

TEST_F(UploadRightsTest, FileInAFolderThatMayNotBeReadIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("sub/b_alg.fia", "b");
    ASSERT_EQ(chmod((m_workstation.Path() / "sub").c_str(), 0), 0);
    {
        const support::CWithoutRoot rights;
        ExpectRefused(Upload(path), 0x80070005,
                      "\"" + path + "\" cannot be read: Permission denied");
    }
    ASSERT_EQ(chmod((m_workstation.Path() / "sub").c_str(), 0700), 0);
}

TEST_F(UploadRightsTest, PipeIsRefusedWithoutWaiting) {
    Connect(SmallDevice(kKrx20));
    const auto path = m_workstation.Path().string() + "/pipe";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    ExpectRefused(Upload(path), 0x80070057, "\"" + path + "\" is not a plain file");
}

TEST_F(UploadRightsTest, NameThatIsNotUtf8IsRefused) {
    Connect(SmallDevice(kKrx20));
    ExpectRefused(Upload(WorkstationFile("b\xFF_alg.fia", "b")), 0x80070459,
                  "The name of the file is not UTF-8");
}

TEST_F(UploadRightsTest, FileThatVanishesWhileItIsReadIsStored) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    m_log->onEvent = [&] { std::filesystem::remove(path); };
    EXPECT_EQ(Upload(path), contract::kSuccess);
    EXPECT_EQ(Names(), std::vector<std::string>{"b_alg.fia"});
}

}
}
