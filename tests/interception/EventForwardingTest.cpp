#include "interception/Interception.h"

#include "contract/EventSource.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace interception {

using namespace contract;

namespace {

using Sink = _IProgrammingDeviceControlEvents;
using testing::Return;
using testing::StrictMock;

class CMockSink : public Sink {
public:
    MOCK_METHOD(Status, ModeChanged, (std::int32_t), (override));
    MOCK_METHOD(Status, DeviceMessage, (const std::string&, std::uint32_t, std::uint32_t),
                (override));
    MOCK_METHOD(Status, Event3, (std::int32_t, std::int32_t), (override));
};

/// A source that holds its sinks, as a device does.
class CSource final : public IEventSource<Sink> {
public:
    Status Subscribe(const std::shared_ptr<Sink>& sink, std::uint32_t& cookie) override {
        cookie = ++m_lastCookie;
        m_sinks[cookie] = sink;
        return kSuccess;
    }
    Status Unsubscribe(std::uint32_t cookie) override {
        return m_sinks.erase(cookie) == 1 ? kSuccess : kUnspecifiedFailure;
    }

    std::shared_ptr<Sink> OnlySink() const { return m_sinks.begin()->second; }

private:
    std::map<std::uint32_t, std::shared_ptr<Sink>> m_sinks;
    std::uint32_t m_lastCookie = 40;
};

/// Keeps events until told to let them go.
class CPostbox final : public IInterceptor {
public:
    Status Call(const Operation&, FunctionRef<Status()> run) override { return run(); }
    Status Deliver(const Operation&, std::function<Status()> deliver) override {
        m_kept.push_back(std::move(deliver));
        return kSuccess;
    }

    void DeliverAll() {
        for (const auto& deliver : std::exchange(m_kept, {})) {
            EXPECT_EQ(deliver(), kSuccess);
        }
    }

private:
    std::vector<std::function<Status()>> m_kept;
};

class EventForwardingTest : public testing::Test {
protected:
    ~EventForwardingTest() override {
        m_wrappedSource.reset();
        EXPECT_EQ(m_interception.LiveWrappers(), m_liveSinks);
    }

    std::uint32_t Subscribe(const std::shared_ptr<Sink>& sink) {
        std::uint32_t cookie = kNotSubscribed;
        EXPECT_EQ(m_wrappedSource->Subscribe(sink, cookie), kSuccess);
        return cookie;
    }

    std::shared_ptr<CPostbox> m_postbox = std::make_shared<CPostbox>();
    CInterception m_interception{m_postbox};
    std::shared_ptr<CSource> m_source = std::make_shared<CSource>();
    std::shared_ptr<IEventSource<Sink>> m_wrappedSource =
        m_interception.Wrap<IEventSource<Sink>>(m_source);
    std::shared_ptr<StrictMock<CMockSink>> m_sink = std::make_shared<StrictMock<CMockSink>>();
    std::size_t m_liveSinks = 0;
};

TEST_F(EventForwardingTest, SourceHoldsAForwarderOfTheSink) {
    EXPECT_EQ(Subscribe(m_sink), 41u);
    EXPECT_NE(m_source->OnlySink(), m_sink);
    EXPECT_EQ(m_source->OnlySink(), m_interception.Wrap<Sink>(m_sink));
    m_liveSinks = 1;
}

TEST_F(EventForwardingTest, UnsubscribeReleasesForwarderAndSink) {
    ASSERT_EQ(m_wrappedSource->Unsubscribe(Subscribe(m_sink)), kSuccess);
    EXPECT_EQ(m_sink.use_count(), 1);
}

TEST_F(EventForwardingTest, NullSinkReachesTheSourceAsNull) {
    Subscribe(nullptr);
    EXPECT_EQ(m_source->OnlySink(), nullptr);
}

TEST_F(EventForwardingTest, KeptEventOwnsItsArgumentsAndSink) {
    const std::uint32_t cookie = Subscribe(m_sink);
    {
        const std::string passing = "a text long enough to be kept outside of the string itself";
        EXPECT_EQ(m_source->OnlySink()->DeviceMessage(passing, 3, 9), kSuccess);
    }
    ASSERT_EQ(m_wrappedSource->Unsubscribe(cookie), kSuccess);
    EXPECT_CALL(*m_sink,
                DeviceMessage("a text long enough to be kept outside of the string itself", 3, 9))
        .WillOnce(Return(kSuccess));
    EXPECT_GT(m_sink.use_count(), 1);
    m_postbox->DeliverAll();
    EXPECT_EQ(m_sink.use_count(), 1);
}

TEST_F(EventForwardingTest, KeptEventsArriveInTheirOrder) {
    Subscribe(m_sink);
    (void)m_source->OnlySink()->ModeChanged(2);
    (void)m_source->OnlySink()->Event3(5, 6);
    const testing::InSequence inSequence;
    EXPECT_CALL(*m_sink, ModeChanged(2)).WillOnce(Return(kSuccess));
    EXPECT_CALL(*m_sink, Event3(5, 6)).WillOnce(Return(kSuccess));
    m_postbox->DeliverAll();
    m_liveSinks = 1;
}

}

}
