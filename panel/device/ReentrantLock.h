#pragma once

#include <atomic>
#include <thread>

namespace panel {

/// A lock that its holder may take again, for std::lock_guard.
///
/// It has nothing to free: std::recursive_mutex leaves a block behind with a library of threads
/// that makes its locks at their first use.
class CReentrantLock {
public:
    CReentrantLock() = default;
    CReentrantLock(const CReentrantLock&) = delete;
    CReentrantLock& operator=(const CReentrantLock&) = delete;

    void lock() {
        const std::thread::id self = std::this_thread::get_id();
        if (m_holder.load(std::memory_order_relaxed) != self) {
            for (std::thread::id other; !m_holder.compare_exchange_strong(other, self);
                 other = std::thread::id()) {
                m_holder.wait(other);
            }
        }
        ++m_depth;
    }

    void unlock() {
        if (--m_depth == 0) {
            m_holder.store(std::thread::id());
            m_holder.notify_one();
        }
    }

private:
    /// None while it is free.
    std::atomic<std::thread::id> m_holder;
    /// The holder's.
    int m_depth = 0;
};

}
