#include "simulator/folder/FolderLock.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace simulator {
namespace {

class FolderLockTest : public testing::Test {
protected:
    /// Takes the lock again and again and counts how often somebody else had it.
    void LockManyTimes() {
        for (int round = 0; round < 200; ++round) {
            const CFolderLock lock(m_folder.Path());
            EXPECT_FALSE(lock.Error());
            m_clashes += ++m_inside == 1 ? 0 : 1;
            std::this_thread::yield();
            --m_inside;
        }
    }

    const CTemporaryFolder m_folder;
    std::atomic<int> m_inside = 0;
    std::atomic<int> m_clashes = 0;
};

TEST_F(FolderLockTest, OnlyOneAtATimeHasTheLock) {
    std::thread first([this] { LockManyTimes(); });
    std::thread second([this] { LockManyTimes(); });
    first.join();
    second.join();
    EXPECT_EQ(m_clashes, 0);
}

TEST_F(FolderLockTest, LockLeavesNothingBehind) {
    { const CFolderLock lock(m_folder.Path()); }
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.Path()));
}

TEST_F(FolderLockTest, FolderThatIsNotThereCannotBeLocked) {
    const CFolderLock lock(m_folder.Path() / "nowhere");
    EXPECT_EQ(lock.Error(), std::errc::no_such_file_or_directory);
}

}
}
