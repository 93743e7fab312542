#include "workstation/WorkerInterceptor.h"

#include "workstation/DeviceCall.h"

#include <utility>

namespace workstation {

namespace {

class CDepthScope {
public:
    explicit CDepthScope(std::size_t& depth) : m_depth(++depth) {}
    ~CDepthScope() { --m_depth; }
    CDepthScope(const CDepthScope&) = delete;
    CDepthScope& operator=(const CDepthScope&) = delete;

private:
    std::size_t& m_depth;
};

/// Returns whether there was any.
bool DeliverEvents(CDeviceCall& call) {
    bool hasDelivered = false;
    while (const auto event = call.TakeEvent()) {
        // A device does not act on the result of a handler.
        static_cast<void>((*event)());
        hasDelivered = true;
    }
    return hasDelivered;
}

}

CWorkerInterceptor::CWorkerInterceptor(std::unique_ptr<IEventLoop> loop, ICallObserver& observer,
                                       Limits limits)
    : m_loop(std::move(loop)), m_observer(observer), m_limits(limits) {}

CWorkerInterceptor::~CWorkerInterceptor() = default;

contract::Status CWorkerInterceptor::Call(const interception::Operation& operation,
                                          interception::FunctionRef<contract::Status()> run) {
    if (std::this_thread::get_id() != m_callerThread) {
        return run();
    }
    CDeviceCall& call = CallAtDepth(m_depth);
    const CDepthScope depth(m_depth);
    call.Begin(run);
    m_worker.Start(call);
    if (Clock::now() - m_lastPaint > m_limits.paintInterval) {
        m_loop->HandleEvents();
        m_lastPaint = Clock::now();
    }
    if (!call.Wait(m_limits.shortCall)) {
        m_observer.CallLasts(operation);
        WaitPainting(call);
    }
    DeliverEvents(call);
    m_observer.CallReturned(operation);
    return call.Finish();
}

contract::Status CWorkerInterceptor::Deliver(const interception::Operation&,
                                             std::function<contract::Status()> deliver) {
    CDeviceCall* const call = CWorker::CurrentCall();
    if (!call) {
        return deliver();
    }
    call->AddEvent(std::move(deliver));
    return contract::kSuccess;
}

CDeviceCall& CWorkerInterceptor::CallAtDepth(std::size_t depth) {
    if (depth == m_calls.size()) {
        m_calls.push_back(std::make_unique<CDeviceCall>([&loop = *m_loop] { loop.WakeUp(); }));
    }
    return *m_calls[depth];
}

void CWorkerInterceptor::WaitPainting(CDeviceCall& call) {
    using namespace std::chrono_literals;
    // The condition is the call's end and not the event loop's, which the application may end
    // early.
    while (!call.Wait(0ms)) {
        // Events first: those raised before there was anybody to wake are waiting. The end is
        // looked for again after a handler, whose own event loop may have swallowed its wake-up.
        if (!DeliverEvents(call)) {
            m_loop->WaitForEvents();
            m_lastPaint = Clock::now();
        }
    }
}

}
