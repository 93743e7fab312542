#include "simulator/Device.h"
#include "simulator/device/FileOperations.h"
#include "tests/simulator/DeviceFolderFixture.h"

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace simulator {
namespace {

namespace fs = std::filesystem;

constexpr int kKills = 200;
constexpr int kGenerations = 5;
constexpr int kSteps = 5;

/// Kills a process that writes a device, at random moments, and looks at what it left.
class KillTest : public DeviceFolderFixture {
protected:
    /// Each generation of a file is of one letter and one length, so that a mixture would show.
    static std::string BytesOf(const std::string& name, int generation) {
        const auto letter = static_cast<char>('a' + generation);
        return name + " " + std::to_string(generation) + " id=10\n" +
               std::string(20000 + 3000 * static_cast<std::size_t>(generation), letter);
    }
    static std::string WorkstationPath(const fs::path& root, const std::string& name,
                                       int generation) {
        return root / std::to_string(generation) / name;
    }

    void SetUp() override {
        Describe(Replaced(Replaced(kGoodDescription, "4096", "1000000"), "\"mode\"",
                          "\"pcCard\": { \"totalBytes\": 1000000 }, \"mode\""));
        for (int generation = 0; generation < kGenerations; ++generation) {
            for (const auto* name : kNames) {
                m_workstation.Write(std::to_string(generation) + "/" + name,
                                    BytesOf(name, generation));
            }
        }
    }

    /// One of the operations that go round: an upload of each file, a move, a deletion. The last
    /// two may find nothing to do; an upload that fails would be a fault.
    static bool Write(CDevice& device, const fs::path& workstation, int step) {
        const auto round = step / kSteps;
        std::int32_t result = 0;
        switch (step % kSteps) {
        case 3:
            static_cast<void>(MoveFile(device, 22, 10, 3, 0));
            return true;
        case 4:
            static_cast<void>(round % 3 == 2 ? DeleteFile(device, 0, 0)
                                             : DeleteFile(device, 19, 10));
            return true;
        default:
            const auto path =
                WorkstationPath(workstation, kNames[step % kSteps], round % kGenerations);
            return !UploadPhoneFile(device, path, 2, 1, result);
        }
    }

    /// What the child does until it is killed. It writes one byte for each operation.
    [[noreturn]] static void WriteForEver(const fs::path& folder, const fs::path& workstation,
                                          int step, int progress) {
        auto opened = OpenDevice(folder);
        const auto* device = std::get_if<std::shared_ptr<CDevice>>(&opened);
        while (device && Write(**device, workstation, step) && write(progress, "+", 1) == 1) {
            ++step;
        }
        _exit(1);
    }

    /// Kills a writer some time into the operation that follows so many of it.
    void KillOneWriter(int operations, std::chrono::microseconds life, int firstStep) {
        std::array<int, 2> progress{};
        ASSERT_EQ(pipe(progress.data()), 0);
        const auto child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            WriteForEver(m_folder.Path(), m_workstation.Path(), firstStep, progress[1]);
        }
        close(progress[1]);
        for (char byte = 0; operations > 0; --operations) {
            EXPECT_EQ(read(progress[0], &byte, 1), 1) << "The writer failed";
        }
        // The moment of the kill is what is tested, so that the clock is asked and no condition.
        const auto end = std::chrono::steady_clock::now() + life;
        while (std::chrono::steady_clock::now() < end) {
        }
        EXPECT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status)) << "The writer ended by itself";
        close(progress[0]);
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
    std::uniform_int_distribution<int> operations(0, 2);
    std::uniform_int_distribution<int> step(0, kSteps * kGenerations * 3 - 1);
    std::uniform_int_distribution<int> lifeUs(0, 5000);
    for (int kills = 0; kills < kKills; ++kills) {
        KillOneWriter(operations(random), std::chrono::microseconds(lifeUs(random)), step(random));
        auto opened = OpenDevice(m_folder.Path());
        if (const auto* error = std::get_if<DescriptionError>(&opened)) {
            FAIL() << "after kill " << kills << ": " << error->Message();
        }
        for (const auto& file : *std::get<std::shared_ptr<CDevice>>(opened)->Files()) {
            ExpectWholeFile(file);
        }
    }
    // Writers that never got anywhere would prove nothing.
    EXPECT_GT(m_seen.size(), 10u);
}

}
}
