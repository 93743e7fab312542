#include "simulator/Device.h"
#include "simulator/device/FileOperations.h"
#include "tests/simulator/DeviceFolderFixture.h"

#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace simulator {
namespace {

namespace fs = std::filesystem;

constexpr int kKills = 200;
constexpr int kGenerations = 5;

/// Kills a process that writes a device, at random moments, and looks at what it left.
class KillTest : public DeviceFolderFixture {
protected:
    /// Each generation of a file is of one letter and one length, so that a mixture would show.
    static std::string BytesOf(const std::string& name, int generation) {
        const auto letter = static_cast<char>('a' + generation);
        return name + " " + std::to_string(generation) + "\n" +
               std::string(20000 + 3000 * static_cast<std::size_t>(generation), letter);
    }
    static std::string WorkstationPath(const fs::path& root, const std::string& name,
                                       int generation) {
        return root / std::to_string(generation) / name;
    }

    void SetUp() override {
        Describe(Replaced(Replaced(kGoodDescription, "4096", "1000000"), "1024", "1000000"));
        for (int generation = 0; generation < kGenerations; ++generation) {
            for (const auto* name : kNames) {
                m_workstation.Write(std::to_string(generation) + "/" + name,
                                    BytesOf(name, generation));
            }
        }
    }

    /// What the child does until it is killed: uploads of every generation, moves, deletions.
    [[noreturn]] static void WriteForEver(const fs::path& device, const fs::path& workstation,
                                          int firstRound) {
        auto opened = OpenDevice(device);
        auto* pointer = std::get_if<std::shared_ptr<CDevice>>(&opened);
        for (int round = firstRound; pointer; ++round) {
            auto& target = **pointer;
            std::int32_t result = 0;
            for (const auto* name : kNames) {
                const auto path = WorkstationPath(workstation, name, round % kGenerations);
                static_cast<void>(UploadPhoneFile(target, path, 2, 1, result));
            }
            static_cast<void>(MoveFile(target, 0, 1, 2, 0));
            static_cast<void>(DeleteFile(target, round % 7 == 6 ? 0 : 19, round % 7 == 6 ? 0 : 1));
        }
        _exit(1);
    }

    void KillOneWriter(std::chrono::microseconds life, int firstRound) {
        const auto child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            WriteForEver(m_folder.Path(), m_workstation.Path(), firstRound);
        }
        // The moment of the kill is what is tested, so that the clock is asked and no condition.
        const auto end = std::chrono::steady_clock::now() + life;
        while (std::chrono::steady_clock::now() < end) {
            const timespec pause{0, 20000};
            nanosleep(&pause, nullptr);
        }
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "The writer ended by itself";
    }

    /// Whatever generation a file is of, it is that one as a whole: bytes, size and version.
    void ExpectWholeFile(const StoredFile& file) {
        if (file.name == "a.fia" || file.name == "b.fia") {
            return;
        }
        ASSERT_EQ(file.version.size(), 1u) << file.name;
        const auto expected = BytesOf(file.name, file.version[0] - '0');
        std::ostringstream bytes;
        bytes << std::ifstream(m_folder.Path() / "files" / file.content).rdbuf();
        EXPECT_TRUE(bytes.str() == expected) << file.name << " is half of something";
        m_seen.insert(file.name + file.version);
    }

    static constexpr const char* kNames[] = {"one_2nd.fia", "two_alg.fia", "three_mcu.fia"};
    const CTemporaryFolder m_workstation;
    std::set<std::string> m_seen;
};

TEST_F(KillTest, KilledWriterLeavesEveryFileAsBeforeOrAfter) {
    const auto seed = std::random_device()();
    RecordProperty("seed", std::to_string(seed));
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> lifeUs(300, 30000);
    for (int kills = 0; kills < kKills; ++kills) {
        KillOneWriter(std::chrono::microseconds(lifeUs(random)), kills);
        auto opened = OpenDevice(m_folder.Path());
        if (const auto* error = std::get_if<DescriptionError>(&opened)) {
            FAIL() << "after kill " << kills << ": " << error->Message();
        }
        for (const auto& file : *std::get<std::shared_ptr<CDevice>>(opened)->Files()) {
            ExpectWholeFile(file);
        }
    }
    // Writers that never got anywhere would prove nothing.
    EXPECT_GT(m_seen.size(), 5u);
}

}
}
