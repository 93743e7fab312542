#include "interception/InterceptorChain.h"

#include "interception/FaultInjector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace interception {

namespace {

using contract::Status;
using testing::ElementsAre;
using Trace = std::vector<std::string>;

constexpr Operation kCall{"FileInfo.GetName", Delivers::Value};
constexpr Operation kEvent{"ProgrammingDeviceControlEvents.ModeChanged", Delivers::Nothing};

/// Notes what passes, and on which side of it.
class CWitness final : public IInterceptor {
public:
    CWitness(Trace& trace, std::string name) : m_trace(trace), m_name(std::move(name)) {}

    Status Call(const Operation& operation, FunctionRef<Status()> run) override {
        m_trace.push_back(m_name + " " + std::string(operation.name));
        const Status status = run();
        m_trace.push_back(m_name + " done");
        return status;
    }
    Status Deliver(const Operation& event, std::function<Status()> deliver) override {
        m_trace.push_back(m_name + " " + std::string(event.name));
        return deliver();
    }

private:
    Trace& m_trace;
    const std::string m_name;
};

/// Keeps the event that it is given.
class CKeeper final : public IInterceptor {
public:
    Status Call(const Operation&, FunctionRef<Status()> run) override { return run(); }
    Status Deliver(const Operation&, std::function<Status()> deliver) override {
        kept = std::move(deliver);
        return Status(5);
    }

    std::function<Status()> kept;
};

class InterceptorChainTest : public testing::Test {
protected:
    Trace m_trace;
    std::shared_ptr<IInterceptor> m_first = std::make_shared<CWitness>(m_trace, "first");
    std::shared_ptr<IInterceptor> m_second = std::make_shared<CWitness>(m_trace, "second");
};

/// Says whether it has a use for results.
class CListener final : public IInterceptor {
public:
    explicit CListener(bool isInterested) : m_isInterested(isInterested) {}
    Status Call(const Operation&, FunctionRef<Status()> run) override { return run(); }
    bool WrapsResultOf(const Operation&) const override { return m_isInterested; }

private:
    const bool m_isInterested;
};

TEST_F(InterceptorChainTest, ResultsAreWrappedForOneInterestedLink) {
    const auto uninterested = std::make_shared<CListener>(false);
    EXPECT_FALSE(CInterceptorChain({uninterested, uninterested}).WrapsResultOf(kCall));
    EXPECT_TRUE(
        CInterceptorChain({uninterested, std::make_shared<CListener>(true)}).WrapsResultOf(kCall));
}

TEST_F(InterceptorChainTest, EmptyChainLetsEverythingHappen) {
    CInterceptorChain chain({});
    EXPECT_EQ(chain.Call(kCall, [] { return Status(2); }), Status(2));
    EXPECT_EQ(chain.Deliver(kEvent, [] { return Status(3); }), Status(3));
}

TEST_F(InterceptorChainTest, CallPassesFromFirstToLast) {
    CInterceptorChain chain({m_first, m_second});
    EXPECT_EQ(chain.Call(kCall, [] { return Status(2); }), Status(2));
    EXPECT_THAT(m_trace, ElementsAre("first FileInfo.GetName", "second FileInfo.GetName",
                                     "second done", "first done"));
}

TEST_F(InterceptorChainTest, EventPassesFromLastToFirst) {
    CInterceptorChain chain({m_first, m_second});
    EXPECT_EQ(chain.Deliver(kEvent, [] { return Status(3); }), Status(3));
    EXPECT_THAT(m_trace, ElementsAre("second ProgrammingDeviceControlEvents.ModeChanged",
                                     "first ProgrammingDeviceControlEvents.ModeChanged"));
}

TEST_F(InterceptorChainTest, FailingLinkKeepsCallFromTheNext) {
    const auto faults = std::make_shared<CFaultInjector>();
    faults->Fail({.number = 1}, {.status = Status(-6)});
    CInterceptorChain chain({m_first, faults, m_second});
    EXPECT_EQ(chain.Call(kCall, [] { return Status(2); }), Status(-6));
    EXPECT_THAT(m_trace, ElementsAre("first FileInfo.GetName", "first done"));
}

TEST_F(InterceptorChainTest, KeptEventPassesTheOtherLinksAfterTheChainsEnd) {
    const auto keeper = std::make_shared<CKeeper>();
    std::optional<CInterceptorChain> chain(std::in_place,
                                           CInterceptorChain::Links{m_first, keeper});
    EXPECT_EQ(chain->Deliver(kEvent, [] { return Status(3); }), Status(5));
    EXPECT_TRUE(m_trace.empty());
    chain.reset();
    EXPECT_EQ(keeper->kept(), Status(3));
    EXPECT_THAT(m_trace, ElementsAre("first ProgrammingDeviceControlEvents.ModeChanged"));
}

}

}
