#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace workstation {

class CDeviceCall;

/// The one thread that makes device calls, in the order in which they were started.
class CWorker {
public:
    CWorker();
    /// Ends the thread after the calls already started.
    ~CWorker();
    CWorker(const CWorker&) = delete;
    CWorker& operator=(const CWorker&) = delete;

    /// Has the call made and returns at once. `call` must outlive the worker, whose last touch of
    /// it comes after its caller has seen the end.
    void Start(CDeviceCall& call);

    /// The call that the current thread is making; null on any thread but the worker's.
    static CDeviceCall* CurrentCall();

private:
    void Run();
    CDeviceCall* Next();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<CDeviceCall*> m_started;
    bool m_mustEnd = false;
    std::thread m_thread;
};

}
