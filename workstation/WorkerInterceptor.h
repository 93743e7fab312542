#pragma once

#include "interception/Interceptor.h"
#include "workstation/EventLoop.h"
#include "workstation/Worker.h"

#include <chrono>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace workstation {

/// Is told of device calls by CWorkerInterceptor, on the user-interface thread.
class ICallObserver {
public:
    virtual ~ICallObserver() = default;

    /// A call lasts so long that events are handled meanwhile.
    virtual void CallLasts(const interception::Operation&) {}
    /// A call is about to return to its caller; its events have been delivered.
    virtual void CallReturned(const interception::Operation&) {}
};

/// Makes blocking device calls on a worker, so that the window stays painted while they last.
///
/// A call made on the thread that made the interceptor, the user-interface thread, runs on the
/// worker and returns when it has ended. If that takes longer than a short call, or if painting is
/// due, events are handled meanwhile, input from the user being discarded. Events that the device
/// raises during a call are delivered on the user-interface thread, in their order, each after the
/// handler of the one before, all before the call returns; the device does not wait for them, and a
/// handler may make calls. A failing call's description comes along. Calls from other threads (the
/// device's own, on the worker) run where they are.
class CWorkerInterceptor : public interception::IInterceptor {
public:
    struct Limits {
        /// A call that ends within this time costs no event loop.
        std::chrono::milliseconds shortCall{20};
        /// Painting is due after this time, whatever calls are made; below 100 ms with the wait for
        /// a short call added.
        std::chrono::milliseconds paintInterval{40};
    };

    /// `loop` is that of the thread that makes the interceptor; `observer` must outlive it.
    CWorkerInterceptor(std::unique_ptr<IEventLoop> loop, ICallObserver& observer)
        : CWorkerInterceptor(std::move(loop), observer, Limits{}) {}
    CWorkerInterceptor(std::unique_ptr<IEventLoop> loop, ICallObserver& observer, Limits limits);
    ~CWorkerInterceptor() override;
    CWorkerInterceptor(const CWorkerInterceptor&) = delete;
    CWorkerInterceptor& operator=(const CWorkerInterceptor&) = delete;

    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override;
    contract::Status Deliver(const interception::Operation& operation,
                             std::function<contract::Status()> deliver) override;

    /// Whether a call is in progress. User-interface thread only.
    bool IsBusy() const { return m_depth > 0; }

private:
    using Clock = std::chrono::steady_clock;

    CDeviceCall& CallAtDepth(std::size_t depth);
    void WaitPainting(CDeviceCall& call);

    const std::unique_ptr<IEventLoop> m_loop;
    ICallObserver& m_observer;
    const Limits m_limits;
    const std::thread::id m_callerThread = std::this_thread::get_id();
    // One a level of calls made by handlers of events inside calls; kept for the next call, since
    // the worker's last touch of one comes after its caller has seen the end.
    std::vector<std::unique_ptr<CDeviceCall>> m_calls;
    std::size_t m_depth = 0;
    Clock::time_point m_lastPaint = Clock::now();
    // Last: its thread must end before the calls go.
    CWorker m_worker;
};

}
