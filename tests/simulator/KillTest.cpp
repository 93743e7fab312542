#include "tests/simulator/DeviceSnapshot.h"
#include "tests/simulator/WriterFixture.h"
#include "tests/simulator/WriterProcess.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <random>

namespace simulator {
namespace {

using Clock = std::chrono::steady_clock;

/// Kills that never hit an operation at work would prove nothing. How many of a round find a change
/// undone, done (which the writer has told of, but in the moment between the two), or files that it
/// has prepared, depends on the disk and on what else runs. So rounds go on until there are so many
/// of each.
constexpr std::size_t kLeastOfEach = 5;
/// When so many do not do, the kills never come at the right moment.
constexpr int kMostRounds = 10;

/// Kills a process that writes a device, at random moments of each of its operations, and compares
/// what it left with what the device held before the operation and what it holds after it.
class KillTest : public WriterFixture {
protected:
    void SetUp() override {
        WriterFixture::SetUp();
        ASSERT_NO_FATAL_FAILURE(Reconnect());
        // The first round leads from a new device to what every round begins with.
        ASSERT_NO_FATAL_FAILURE(RunRound());
        m_durations.clear();
        m_states = {TakeSnapshot(m_deviceFolder)};
        ASSERT_NO_FATAL_FAILURE(RunRound());
        ASSERT_EQ(m_states.back(), m_states.front()) << "The rounds differ";
        for (std::size_t step = 0; step < StepCount(); ++step) {
            ASSERT_NE(m_states[step], m_states[step + 1]) << StepAt(step).name << " does nothing";
        }
        m_host.RemoveDevice();
    }

    void RunRound() {
        for (std::size_t step = 0; step < StepCount(); ++step) {
            const auto start = Clock::now();
            ASSERT_TRUE(RunStep(step)) << StepAt(step).name;
            m_durations.push_back(Clock::now() - start);
            m_states.push_back(TakeSnapshot(m_deviceFolder));
        }
    }

    /// Has a process write from `first` on and kills it some time after it has begun `target`.
    /// Returns the step that it was at.
    std::size_t KillOneWriter(std::size_t first, std::size_t target, Clock::duration life) {
        CWriterProcess writer(*this, first);
        const auto before = (target + StepCount() - first) % StepCount();
        EXPECT_EQ(writer.ReadReports(before + 1), before + 1) << "The writer failed";
        // The moment of the kill is what is tested, so that the clock is asked and no condition.
        const auto end = Clock::now() + life;
        while (Clock::now() < end) {
        }
        writer.Kill();
        return (target + writer.ReadReports(SIZE_MAX)) % StepCount();
    }

    /// Kills writers in each of the steps.
    void KillInEachStep() {
        std::vector<std::size_t> killsLeft(StepCount(), CWriterProcess::kKillsPerStep);
        while (!HasFailure() && std::ranges::max(killsLeft) > 0) {
            auto target = m_next;
            while (killsLeft[target] == 0) {
                target = (target + 1) % StepCount();
            }
            --killsLeft[target];
            // Beyond the end as well, where the next operation has begun.
            std::uniform_real_distribution<double> share(0, 1.5);
            const auto life =
                std::chrono::duration_cast<Clock::duration>(m_durations[target] * share(m_random));
            const auto step = KillOneWriter(m_next, target, life);
            SCOPED_TRACE("killed in \"" + std::string(StepAt(step).name) + "\"");
            m_next = ExpectBeforeOrAfter(step);
            ++(m_next == target ? m_undoneSteps : m_doneSteps);
        }
    }

    bool HasHitEnough() const {
        return std::min({m_undoneSteps, m_doneSteps, m_leftovers}) >= kLeastOfEach;
    }

    /// Looks at what a writer left that was killed in `step`; returns the step to go on with.
    std::size_t ExpectBeforeOrAfter(std::size_t step) {
        const auto found = TakeSnapshot(m_deviceFolder);
        m_leftovers += HoldsLeftovers(m_deviceFolder) ? 1 : 0;
        if (found == m_states[step + 1]) {
            return (step + 1) % StepCount();
        }
        if (found == m_states[step]) {
            return step;
        }
        EXPECT_TRUE(StepAt(step).isManyChanges) << "neither before nor after";
        ExpectEachFileBeforeOrAfter(found, m_states[step], m_states[step + 1]);
        return step;
    }

    static void ExpectEachFileBeforeOrAfter(const DeviceSnapshot& found,
                                            const DeviceSnapshot& before,
                                            const DeviceSnapshot& after) {
        for (const auto& state : {found, before, after}) {
            for (const auto& file : state.files) {
                EXPECT_TRUE(found.HasSameFile(before, file.name) ||
                            found.HasSameFile(after, file.name))
                    << file.name << " is neither as before nor as after";
            }
        }
        EXPECT_TRUE(found.device == before.device || found.device == after.device);
        // It says that the package is installed, which it is not.
        EXPECT_TRUE(found.HasSameFile(before, kVersionFileName));
    }

    std::mt19937 m_random;
    /// What the next writer begins with.
    std::size_t m_next = 0;
    std::vector<DeviceSnapshot> m_states;
    std::vector<Clock::duration> m_durations;
    std::size_t m_leftovers = 0;
    std::size_t m_doneSteps = 0;
    std::size_t m_undoneSteps = 0;
};

TEST_F(KillTest, KilledWriterLeavesTheStateBeforeOrAfter) {
    const auto seed = std::random_device()();
    std::cout << "Seed: " << seed << std::endl;
    SCOPED_TRACE("seed " + std::to_string(seed));
    m_random.seed(seed);
    for (int round = 0; !HasFailure() && !HasHitEnough() && round < kMostRounds; ++round) {
        KillInEachStep();
    }
    std::cout << "Kills: " << m_undoneSteps << " before a change, " << m_doneSteps << " after it, "
              << m_leftovers << " with files prepared" << std::endl;
    EXPECT_TRUE(HasHitEnough());
}

}
}
