#pragma once

#include "workstation/QtEventLoop.h"
#include "workstation/WorkerInterceptor.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

inline constexpr interception::Operation kQuery{"HardwareInfo.GetSerialNumber",
                                                interception::Delivers::Value};
inline constexpr interception::Operation kModeEvent{"ProgrammingDeviceControlEvents.ModeChanged",
                                                    interception::Delivers::Nothing};

class CountingObserver : public workstation::ICallObserver {
public:
    void CallLasts(const interception::Operation& operation) override {
        m_lasting.emplace_back(operation.name);
        if (m_onLasting) {
            std::exchange(m_onLasting, {})();
        }
    }
    void CallReturned(const interception::Operation& operation) override {
        m_returned.emplace_back(operation.name);
    }

    std::vector<std::string> m_lasting;
    std::vector<std::string> m_returned;
    std::function<void()> m_onLasting; ///< runs once
};

/// Makes device calls through a worker, and raises events from inside them.
class WorkerTest : public testing::Test {
protected:
    contract::Status Call(interception::FunctionRef<contract::Status()> run) {
        return m_interceptor.Call(kQuery, run);
    }

    void Raise(std::function<contract::Status()> handler) {
        EXPECT_EQ(m_interceptor.Deliver(kModeEvent, std::move(handler)), contract::kSuccess);
    }
    std::function<contract::Status()> Note(const std::string& name) {
        return [this, name] {
            EXPECT_EQ(std::this_thread::get_id(), m_ourThread);
            m_heard.push_back(name);
            return contract::kSuccess;
        };
    }

    /// Has the event loop of the next call that lasts do something. A call shorter than that is not
    /// what the test is about, and gets no event loop.
    void OnceACallLasts(std::function<void()> action) {
        m_observer.m_onLasting = [action = std::move(action)] { QTimer::singleShot(0, action); };
    }

    /// A device call that lasts until the user-interface thread has done something.
    contract::Status CallUntil(std::future<void> released) {
        return Call([&] {
            EXPECT_EQ(released.wait_for(std::chrono::seconds(10)), std::future_status::ready);
            return contract::kSuccess;
        });
    }

    const std::thread::id m_ourThread = std::this_thread::get_id();
    CountingObserver m_observer;
    workstation::CWorkerInterceptor m_interceptor{std::make_unique<workstation::CQtEventLoop>(),
                                                  m_observer};
    std::vector<std::string> m_heard;
};
