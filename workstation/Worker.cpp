#include "workstation/Worker.h"

#include "workstation/DeviceCall.h"

namespace workstation {

namespace {
thread_local CDeviceCall* g_currentCall = nullptr;
}

CWorker::CWorker() : m_thread([this] { Run(); }) {}

CWorker::~CWorker() {
    {
        const std::lock_guard lock(m_mutex);
        m_mustEnd = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void CWorker::Start(CDeviceCall& call) {
    {
        const std::lock_guard lock(m_mutex);
        m_started.push_back(&call);
    }
    m_changed.notify_one();
}

CDeviceCall* CWorker::CurrentCall() { return g_currentCall; }

void CWorker::Run() {
    while (CDeviceCall* call = Next()) {
        g_currentCall = call;
        call->Run();
        g_currentCall = nullptr;
    }
}

CDeviceCall* CWorker::Next() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_mustEnd || !m_started.empty(); });
    if (m_started.empty()) {
        return nullptr;
    }
    CDeviceCall* call = m_started.front();
    m_started.pop_front();
    return call;
}

}
