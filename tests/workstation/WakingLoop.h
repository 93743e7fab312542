#pragma once

#include "workstation/EventLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>

/// An event loop that knows no events but wake-ups, and fails the test in which one does not come.
class CWakingLoop : public workstation::IEventLoop {
public:
    void HandleEvents() override {
        const std::lock_guard lock(m_mutex);
        m_mustWake = false;
    }

    void WaitForEvents() override {
        std::unique_lock lock(m_mutex);
        EXPECT_TRUE(m_changed.wait_for(lock, std::chrono::seconds(10), [this] {
            return m_mustWake;
        })) << "no wake-up";
        m_mustWake = false;
    }

    void WakeUp() override {
        {
            const std::lock_guard lock(m_mutex);
            m_mustWake = true;
        }
        m_changed.notify_one();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_mustWake = false;
};
