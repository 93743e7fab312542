#include "tests/simulator/UploadFixture.h"
#include "tests/simulator/win32/OpenFile.h"

namespace simulator {
namespace {

/// Files of the workstation that another program keeps to itself.
class LockedFileTest : public UploadFixture {
protected:
    static constexpr DWORD kForNobodyElse = 0;
};

TEST_F(LockedFileTest, UploadOfALockedFileIsRefused) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("b_alg.fia", "b");
    {
        const COpenFile owner(path, kForNobodyElse);
        ExpectRefused(Upload(path), 0x80070005,
                      "\"" + path + "\" cannot be read: Permission denied");
    }
    EXPECT_EQ(Upload(path), contract::kSuccess);
}

TEST_F(LockedFileTest, UpdateByALockedDescriptionFails) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("u.ini", "[package]\nversion = 1\n[common]\nfile = a.fia\n");
    const COpenFile owner(path, kForNobodyElse);
    ExpectFailure(Control()->UpdateFromIniFile(path), 0x80070005,
                  "\"" + path + "\" cannot be read: Permission denied");
    EXPECT_EQ(m_device->State(), m_before);
}

TEST_F(LockedFileTest, LockedFileOfAPackageMakesThePartialStatus) {
    Connect(SmallDevice(kKrx20));
    WorkstationFile("a_alg.fia", "a");
    const auto locked = WorkstationFile("sub/b_alg.fia", "b");
    const auto path = WorkstationFile(
        "u.ini", "[package]\nversion = 1\n[common]\nfile = a_alg.fia\nfile = sub/b_alg.fia\n");
    const COpenFile owner(locked, kForNobodyElse);
    EXPECT_EQ(Control()->UpdateFromIniFile(path), contract::kPartialUpdate);
    EXPECT_EQ(Names(), std::vector<std::string>{"a_alg.fia"});
}

}
}
