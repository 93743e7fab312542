#include "panel/device/ReentrantLock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using panel::CReentrantLock;

TEST(ReentrantLockTest, HolderTakesItAgain) {
    CReentrantLock lock;
    const std::lock_guard first(lock);
    const std::lock_guard second(lock);
}

TEST(ReentrantLockTest, OtherThreadGetsItOnceItWasLetGoAsOftenAsTaken) {
    CReentrantLock lock;
    std::atomic<bool> isTrying = false;
    std::atomic<bool> isTaken = false;
    lock.lock();
    lock.lock();
    std::thread other([&] {
        isTrying = true;
        const std::lock_guard guard(lock);
        isTaken = true;
    });
    lock.unlock();
    while (!isTrying) {
        std::this_thread::yield();
    }
    EXPECT_FALSE(isTaken);
    lock.unlock();
    other.join();
    EXPECT_TRUE(isTaken);
}

TEST(ReentrantLockTest, ThreadsThatTakeItTogetherComeOneAfterTheOther) {
    constexpr int kThreads = 4;
    constexpr int kTurns = 2000;
    CReentrantLock lock;
    int count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int turn = 0; turn < kTurns; ++turn) {
                const std::lock_guard outer(lock);
                const std::lock_guard inner(lock);
                ++count;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(count, kThreads * kTurns);
}

}
