#include "tests/simulator/WritingFixture.h"
#include "tests/support/WithoutRoot.h"

#include <sys/stat.h>

namespace simulator {
namespace {

using NameList = std::vector<std::string>;

/// Updates from a folder with links and rights that other systems do not have.
class IniUpdateRightsTest : public WritingFixture {
protected:
    IniUpdateRightsTest() { WorkstationFile("p/a_2nd.fia", "a_2nd.fia 2.0 id=5\n"); }
    static std::string Package(const std::string& files) {
        return "[package]\nversion = 5.2.0\n[common]\n" + files;
    }
    contract::Status Update(const std::string& text) {
        return Control()->UpdateFromIniFile(WorkstationFile("p/u.ini", text));
    }
};

TEST_F(IniUpdateRightsTest, LinkOutOfTheFolderIsNotFollowed) {
    WorkstationFile("secret_alg.fia", "x");
    std::filesystem::create_symlink("../secret_alg.fia", m_workstation.Path() / "p/link_alg.fia");
    Connect(SmallDevice(kKrx20));
    ExpectFailure(Update(Package("file = link_alg.fia\n")), 0x80070005,
                  "None of the files of the package could be loaded: it lies outside the folder "
                  "of the description");
}

TEST_F(IniUpdateRightsTest, DescriptionThatMayNotBeReadFails) {
    Connect(SmallDevice(kKrx20));
    const auto path = WorkstationFile("p/u.ini", Package("file = a_2nd.fia\n"));
    const auto folder = m_workstation.Path() / "p";
    for (const auto& open : {m_workstation.Path(), folder}) {
        ASSERT_EQ(chmod(open.c_str(), 0755), 0);
    }
    for (const auto& locked : {std::filesystem::path(path), folder}) {
        ASSERT_EQ(chmod(locked.c_str(), 0), 0);
        {
            const support::CWithoutRoot rights;
            ExpectFailure(Control()->UpdateFromIniFile(path), 0x80070005,
                          "\"" + path + "\" cannot be read: Permission denied");
        }
        ASSERT_EQ(chmod(locked.c_str(), 0755), 0);
    }
    EXPECT_EQ(Names(), NameList{});
}

}
}
