#include "interception/Interception.h"

#include "interception/CallRecorder.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/EventTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

namespace interception {

using namespace contract;

namespace {

class InterceptionTest : public testing::Test {
protected:
    std::shared_ptr<CCallRecorder> m_recorder = std::make_shared<CCallRecorder>();
    CInterception m_interception{m_recorder};
};

TEST_F(InterceptionTest, WrappingNullGivesNull) {
    EXPECT_EQ(m_interception.Wrap<IConnection>(nullptr), nullptr);
    EXPECT_EQ(m_interception.LiveWrappers(), 0u);
}

TEST_F(InterceptionTest, WrappingTwiceGivesTheSameWrapper) {
    const auto target = MakeTarget<IFileInfo>();
    const auto first = m_interception.Wrap<IFileInfo>(target);
    EXPECT_NE(first, target);
    EXPECT_EQ(m_interception.Wrap<IFileInfo>(target), first);
    EXPECT_EQ(m_interception.LiveWrappers(), 1u);
}

TEST_F(InterceptionTest, WrappingAWrapperGivesItBack) {
    const auto wrapper = m_interception.Wrap<IFileInfo>(MakeTarget<IFileInfo>());
    EXPECT_EQ(m_interception.Wrap(wrapper), wrapper);
    EXPECT_EQ(m_interception.LiveWrappers(), 1u);
}

TEST_F(InterceptionTest, WrapperOfAnotherInterceptionIsWrapped) {
    const CInterception other(std::make_shared<CCallRecorder>());
    const auto target = MakeTarget<IHostViewControl>();
    const auto inner = other.Wrap<IHostViewControl>(target);
    const auto outer = m_interception.Wrap(inner);
    EXPECT_NE(outer, inner);
    EXPECT_EQ(outer->ClosePanel(), kSuccess);
    EXPECT_THAT(m_recorder->Calls(), testing::ElementsAre("HostViewControl.ClosePanel"));
    EXPECT_EQ(target->exchange.received.size(), 1u);
}

TEST_F(InterceptionTest, DifferentObjectsHaveDifferentWrappers) {
    const auto first = m_interception.Wrap<IFileInfo>(MakeTarget<IFileInfo>());
    const auto second = m_interception.Wrap<IFileInfo>(MakeTarget<IFileInfo>());
    EXPECT_NE(first, second);
}

TEST_F(InterceptionTest, TwoInterfacesOfOneObjectHaveAWrapperEach) {
    struct CBoth : IConnectionState, IHostViewControl {
        Status IsConnected(bool&) override { return Status(1); }
        Status ClosePanel() override { return Status(2); }
    };
    const auto both = std::make_shared<CBoth>();
    const auto state = m_interception.Wrap<IConnectionState>(both);
    const auto control = m_interception.Wrap<IHostViewControl>(both);
    bool connected = false;
    EXPECT_EQ(state->IsConnected(connected), Status(1));
    EXPECT_EQ(control->ClosePanel(), Status(2));
    EXPECT_EQ(m_interception.LiveWrappers(), 2u);
}

TEST_F(InterceptionTest, SameObjectDeliveredTwiceIsTheSame) {
    const auto target = MakeTarget<IProgrammingDeviceSubsystem>();
    target->exchange.object = std::shared_ptr<IKrx10Control>(MakeTarget<IKrx10Control>());
    const auto subsystem = m_interception.Wrap<IProgrammingDeviceSubsystem>(target);
    std::shared_ptr<IKrx10Control> first;
    std::shared_ptr<IKrx10Control> second;
    ASSERT_EQ(subsystem->GetKrx10Control(first), kSuccess);
    ASSERT_EQ(subsystem->GetKrx10Control(second), kSuccess);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(first, second);
}

TEST_F(InterceptionTest, WrapperHoldsItsObjectUntilReleased) {
    auto target = MakeTarget<IFileInfo>();
    const std::weak_ptr<IFileInfo> watch = target;
    auto wrapper = m_interception.Wrap<IFileInfo>(target);
    target.reset();
    EXPECT_FALSE(watch.expired());
    wrapper.reset();
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(m_interception.LiveWrappers(), 0u);
}

TEST_F(InterceptionTest, ObjectWrappedAgainAfterReleaseWorks) {
    const auto target = MakeTarget<IHostViewControl>();
    m_interception.Wrap<IHostViewControl>(target).reset();
    const auto wrapper = m_interception.Wrap<IHostViewControl>(target);
    EXPECT_EQ(wrapper->ClosePanel(), kSuccess);
    EXPECT_EQ(m_interception.LiveWrappers(), 1u);
}

TEST_F(InterceptionTest, WrapperOutlivesItsInterception) {
    const auto target = MakeTarget<IHostViewControl>();
    std::shared_ptr<IHostViewControl> wrapper;
    {
        const CInterception passing(m_recorder);
        wrapper = passing.Wrap<IHostViewControl>(target);
    }
    EXPECT_EQ(wrapper->ClosePanel(), kSuccess);
    EXPECT_THAT(m_recorder->Calls(), testing::ElementsAre("HostViewControl.ClosePanel"));
    wrapper.reset();
    EXPECT_EQ(m_recorder.use_count(), 2) << "the test's and the fixture's interception";
}

TEST_F(InterceptionTest, WrapOnManyThreadsMakesOneWrapper) {
    constexpr int kThreads = 8;
    const auto target = MakeTarget<IFileInfo>();
    std::array<std::shared_ptr<IFileInfo>, kThreads> wrappers;
    std::atomic<int> ready = 0;
    {
        std::vector<std::jthread> threads;
        for (auto& wrapper : wrappers) {
            threads.emplace_back([&] {
                ++ready;
                while (ready < kThreads) {
                    std::this_thread::yield();
                }
                wrapper = m_interception.Wrap<IFileInfo>(target);
            });
        }
    }
    EXPECT_THAT(wrappers, testing::Each(wrappers.front()));
    EXPECT_EQ(m_interception.LiveWrappers(), 1u);
}

TEST_F(InterceptionTest, WrapAndReleaseOnManyThreadsLeavesNothing) {
    constexpr int kRounds = 2000;
    const auto target = MakeTarget<IHostViewControl>();
    std::atomic<int> failures = 0;
    const auto useIt = [&] {
        for (int round = 0; round < kRounds; ++round) {
            if (!m_interception.Wrap<IHostViewControl>(target)) {
                ++failures;
            }
        }
    };
    { const std::array threads{std::jthread(useIt), std::jthread(useIt), std::jthread(useIt)}; }
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(m_interception.LiveWrappers(), 0u);
}

/// Makes each call on a thread of its own, as a host does that keeps its window painted.
class CElsewhere final : public IInterceptor {
public:
    Status Call(const Operation&, FunctionRef<Status()> run) override {
        Status status;
        std::jthread([&] { status = run(); }).join();
        return status;
    }
};

TEST(InterceptionOnWorkerTest, ResultsOfACallElsewhereReachTheCaller) {
    const CInterception interception(std::make_shared<CElsewhere>());
    const auto target = MakeTarget<IFileListing>();
    const std::shared_ptr<IFileInfo> info = MakeTarget<IFileInfo>();
    target->exchange.object = info;
    const auto listing = interception.Wrap<IFileListing>(target);
    std::int32_t count = 0;
    std::shared_ptr<IFileInfo> delivered;
    EXPECT_EQ(listing->GetFileCount(count), kSuccess);
    EXPECT_EQ(listing->GetFileInfo(1, delivered), kSuccess);
    EXPECT_EQ(count, 100);
    EXPECT_EQ(delivered, interception.Wrap(info));
}

/// Has no use for what listings deliver.
class CUninterested final : public IInterceptor {
public:
    Status Call(const Operation&, FunctionRef<Status()> run) override { return run(); }
    bool WrapsResultOf(const Operation& operation) const override {
        return operation.name != "FileListing.GetFileInfo";
    }
};

TEST(InterceptionWithoutInterestTest, ObjectIsDeliveredAsItIs) {
    const auto interceptor = std::make_shared<CUninterested>();
    const CInterception interception(interceptor);
    const auto target = MakeTarget<IFileListing>();
    const std::shared_ptr<IFileInfo> info = MakeTarget<IFileInfo>();
    target->exchange.object = info;
    std::shared_ptr<IFileInfo> delivered;
    EXPECT_EQ(interception.Wrap<IFileListing>(target)->GetFileInfo(1, delivered), kSuccess);
    EXPECT_EQ(delivered, info);
}

/// Turns every success into a failure.
class CSpoiler final : public IInterceptor {
public:
    Status Call(const Operation&, FunctionRef<Status()> run) override {
        return run().IsSuccess() ? Status(-9) : kSuccess;
    }
};

TEST(InterceptionWithFailureAfterwardsTest, ObjectIsWithheldAndReleased) {
    const CInterception interception(std::make_shared<CSpoiler>());
    const auto target = MakeTarget<IFileListing>();
    std::shared_ptr<IFileInfo> info = MakeTarget<IFileInfo>();
    target->exchange.object = info;
    std::shared_ptr<IFileInfo> delivered = info;
    EXPECT_EQ(interception.Wrap<IFileListing>(target)->GetFileInfo(1, delivered), Status(-9));
    EXPECT_EQ(delivered, info);
    EXPECT_EQ(interception.LiveWrappers(), 0u);
}

}

}
