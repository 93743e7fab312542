#include "contract/ErrorInfo.h"
#include "tests/workstation/WakingLoop.h"
#include "workstation/DeviceCall.h"
#include "workstation/Worker.h"
#include "workstation/WorkerInterceptor.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using contract::kSuccess;
using contract::kUnspecifiedFailure;
using contract::Status;
using workstation::CWorkerInterceptor;

constexpr interception::Operation kQuery{"HardwareInfo.GetSerialNumber",
                                         interception::Delivers::Value};
constexpr interception::Operation kModeEvent{"ProgrammingDeviceControlEvents.ModeChanged",
                                             interception::Delivers::Nothing};

/// Lets other threads run, so that the two sides meet in another place each time.
void Linger(int turns) {
    for (int i = 0; i < turns; ++i) {
        std::this_thread::yield();
    }
}

/// The two threads of the worker's calls at work, without a toolkit, for the thread sanitizer. The
/// parameter sets how soon a call gets an event loop.
class WorkerThreadsTest : public testing::TestWithParam<CWorkerInterceptor::Limits> {
protected:
    Status Call(interception::FunctionRef<Status()> run) {
        return m_interceptor->Call(kQuery, run);
    }
    void Raise(std::function<Status()> handler) {
        EXPECT_EQ(m_interceptor->Deliver(kModeEvent, std::move(handler)), kSuccess);
    }
    /// Makes a call that raises an event, whose handler makes such a call, `depth` of them.
    void CallInside(int depth) {
        EXPECT_EQ(Call([this, depth] {
                      Raise([this, depth] {
                          m_heard.push_back(depth);
                          if (depth > 1) {
                              CallInside(depth - 1);
                          }
                          return kSuccess;
                      });
                      Linger(depth);
                      return Status(depth);
                  }),
                  Status(depth));
    }
    void MakeInterceptor() {
        m_interceptor = std::make_unique<CWorkerInterceptor>(std::make_unique<CWakingLoop>(),
                                                             m_observer, GetParam());
    }

    void SetUp() override { MakeInterceptor(); }

    workstation::ICallObserver m_observer;
    std::unique_ptr<CWorkerInterceptor> m_interceptor;
    std::vector<int> m_heard;
};

INSTANTIATE_TEST_SUITE_P(, WorkerThreadsTest,
                         testing::Values(CWorkerInterceptor::Limits{0ms, 0ms},
                                         CWorkerInterceptor::Limits{0ms, 1h},
                                         CWorkerInterceptor::Limits{1ms, 1ms},
                                         CWorkerInterceptor::Limits{1h, 0ms}));

TEST_P(WorkerThreadsTest, ManyCallsReturnTheirOwnStatus) {
    for (int i = 0; i < 2000; ++i) {
        ASSERT_EQ(Call([i] {
                      Linger(i % 11);
                      return Status(i);
                  }),
                  Status(i));
    }
}

TEST_P(WorkerThreadsTest, FailingCallsBringTheirOwnDescription) {
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(Call([i] {
                      contract::SetErrorInfo(std::to_string(i));
                      Linger(i % 5);
                      return i % 3 == 0 ? kUnspecifiedFailure : kSuccess;
                  }),
                  i % 3 == 0 ? kUnspecifiedFailure : kSuccess);
        ASSERT_EQ(contract::TakeErrorInfo(), i % 3 == 0 ? std::to_string(i) : "");
    }
}

TEST_P(WorkerThreadsTest, EventsOfManyCallsArriveInOrderBeforeEachReturns) {
    std::vector<int> raised(20);
    std::iota(raised.begin(), raised.end(), 0);
    for (int i = 0; i < 200; ++i) {
        m_heard.clear();
        ASSERT_EQ(Call([this, i, &raised] {
                      for (const int number : raised) {
                          Raise([this, number] {
                              m_heard.push_back(number);
                              return kSuccess;
                          });
                          Linger((i + number) % 7);
                      }
                      return kSuccess;
                  }),
                  kSuccess);
        ASSERT_EQ(m_heard, raised);
    }
}

TEST_P(WorkerThreadsTest, CallsMadeByHandlersOfEventsReturnInside) {
    for (int i = 0; i < 200; ++i) {
        m_heard.clear();
        CallInside(4);
        ASSERT_EQ(m_heard, (std::vector{4, 3, 2, 1}));
    }
}

TEST_P(WorkerThreadsTest, CallsOfAnotherThreadRunThereMeanwhile) {
    std::atomic<int> made = 0;
    std::atomic<bool> mustEnd = false;
    std::thread device([this, &made, &mustEnd] {
        const std::thread::id thisThread = std::this_thread::get_id();
        for (int i = 0; !mustEnd; ++i) {
            EXPECT_EQ(Call([thisThread, i] {
                          EXPECT_EQ(std::this_thread::get_id(), thisThread);
                          return Status(i);
                      }),
                      Status(i));
            ++made;
        }
    });
    for (int i = 0; i < 100 || made < 100; ++i) {
        CallInside(2);
    }
    mustEnd = true;
    device.join();
}

TEST_P(WorkerThreadsTest, EndRightAfterACallWaitsForTheWorker) {
    for (int i = 0; i < 200; ++i) {
        CallInside(i % 3 + 1);
        MakeInterceptor();
    }
}

TEST(WorkerEndTest, CallsAlreadyStartedAreMadeInOrder) {
    for (int round = 0; round < 50; ++round) {
        std::vector<int> made;
        std::deque<workstation::CDeviceCall> calls;
        std::deque<std::function<Status()>> runs;
        {
            workstation::CWorker worker;
            for (int i = 0; i < 20; ++i) {
                runs.emplace_back([&made, i] {
                    Linger(i % 3);
                    made.push_back(i);
                    return Status(i);
                });
                calls.emplace_back([] { ADD_FAILURE() << "woken without a wait"; });
                calls.back().Begin(runs.back());
                worker.Start(calls.back());
            }
        }
        std::vector<int> started(20);
        std::iota(started.begin(), started.end(), 0);
        ASSERT_EQ(made, started);
        for (const int i : started) {
            auto& call = calls[static_cast<std::size_t>(i)];
            ASSERT_TRUE(call.Wait(0ms));
            ASSERT_EQ(call.Finish(), Status(i));
        }
    }
}

TEST(WorkerEndTest, CallIsCurrentOnTheWorkerAlone) {
    workstation::CDeviceCall call([] {});
    workstation::CWorker worker;
    for (int i = 0; i < 500; ++i) {
        const auto run = [&call] {
            EXPECT_EQ(workstation::CWorker::CurrentCall(), &call);
            return kSuccess;
        };
        call.Begin(run);
        worker.Start(call);
        ASSERT_EQ(workstation::CWorker::CurrentCall(), nullptr);
        ASSERT_TRUE(call.Wait(10s));
    }
}

}
