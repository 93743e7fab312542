#include "tests/frontend/registry/RegistryFixture.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <random>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace registry {
namespace {

using namespace std::string_literals;

class FileRegistryWritersTest : public RegistryFixture {
protected:
    /// Writes so many values, each under a name of its own; returns the number of failures.
    int WriteValues(const std::string& prefix, int count) {
        std::unique_ptr<panel::IRegistryKey> key;
        int failures = registry.CreateKey(kKey, key) != 0;
        for (int number = 0; number < count; ++number) {
            const std::string text = std::to_string(number);
            failures += key->WriteText(prefix + text, text) != 0;
        }
        return failures;
    }

    /// Starts a writer of ever higher numbers that tells of each one it has written.
    pid_t StartCounting(int told) {
        return StartChild([this, told] {
            const auto key = Create();
            for (std::uint32_t number = 1;; ++number) {
                const char done = 0;
                if (key->WriteNumber("Count", number) != 0 || write(told, &done, 1) != 1) {
                    return 1;
                }
            }
        });
    }

    std::uint32_t ReadCount() const {
        const std::string bytes = Read("Count");
        std::uint32_t count = 0;
        EXPECT_EQ(bytes.size(), sizeof count) << bytes;
        std::memcpy(&count, bytes.data(), std::min(sizeof count, bytes.size()));
        return count;
    }
};

/// Hears of what a writer has written.
class CHearing {
public:
    CHearing() {
        if (pipe(m_ends) != 0) {
            throw std::runtime_error("No pipe can be made");
        }
    }
    ~CHearing() {
        close(m_ends[0]);
        CloseWriting();
    }
    CHearing(const CHearing&) = delete;
    CHearing& operator=(const CHearing&) = delete;

    int ForWriter() const { return m_ends[1]; }
    void CloseWriting() {
        if (m_ends[1] >= 0) {
            close(m_ends[1]);
            m_ends[1] = -1;
        }
    }
    /// Waits for so many, or for the writer's end; returns how many there were.
    std::uint32_t Hear(std::uint32_t count) {
        std::uint32_t heard = 0;
        char told = 0;
        while (heard < count && read(m_ends[0], &told, 1) == 1) {
            ++heard;
        }
        return heard;
    }

private:
    int m_ends[2] = {-1, -1};
};

TEST_F(FileRegistryWritersTest, TwoProcessesWritingAtOnceLoseNothing) {
    constexpr int kValues = 200;
    const pid_t first = StartChild([&] { return WriteValues("a", kValues); });
    const int secondsFailures = RunInChild([&] { return WriteValues("b", kValues); });
    int status = 0;
    ASSERT_EQ(waitpid(first, &status, 0), first);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(secondsFailures, 0);
    const auto values = nlohmann::json::parse(ReadFile())["SOFTWARE/Programs/Update"];
    EXPECT_EQ(values.size(), 2u * kValues);
    for (int number = 0; number < kValues; ++number) {
        const std::string text = std::to_string(number);
        EXPECT_EQ(values.value("a" + text, "lost"), text);
        EXPECT_EQ(values.value("b" + text, "lost"), text);
    }
}

TEST_F(FileRegistryWritersTest, TwoRegistriesOfOneProcessSeeEachOther) {
    CFileRegistry other(Path(), [](const std::string&) {});
    std::unique_ptr<panel::IRegistryKey> key;
    ASSERT_EQ(other.CreateKey(kKey, key), 0);
    const auto mine = Create();
    EXPECT_EQ(key->WriteText("a", "1"), 0);
    EXPECT_EQ(mine->WriteText("b", "2"), 0);
    EXPECT_EQ(Read("a"), "1\0"s);
    EXPECT_EQ(Read("b"), "2\0"s);
}

TEST_F(FileRegistryWritersTest, KilledWriterLeavesTheOldFileOrTheNewOne) {
    constexpr int kRounds = 60;
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::uint32_t> untilKilled(0, 8);
    Create()->WriteNumber("Count", 0);
    for (int round = 0; round < kRounds; ++round) {
        CHearing hearing;
        const pid_t writer = StartCounting(hearing.ForWriter());
        hearing.CloseWriting();
        std::uint32_t heard = hearing.Hear(1 + untilKilled(random));
        // Some more of its steps, so that it dies at different ones.
        for (std::uint32_t pause = random() % 2000; pause > 0; --pause) {
            getppid();
        }
        ASSERT_EQ(kill(writer, SIGKILL), 0);
        ASSERT_EQ(waitpid(writer, nullptr, 0), writer);
        heard += hearing.Hear(~0u);
        EXPECT_GE(heard, 1u);
        const std::uint32_t count = ReadCount();
        EXPECT_TRUE(count == heard || count == heard + 1) << count << " after " << heard;
    }
    EXPECT_EQ(Create()->WriteNumber("Count", 0), 0);
    EXPECT_EQ(ReadCount(), 0u);
}

}
}
