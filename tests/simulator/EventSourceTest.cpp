#include "simulator/EventSource.h"

#include "tests/simulator/Answers.h"
#include "tests/simulator/EventLog.h"

namespace simulator {
namespace {

using CSource = CEventSource<contract::_IProgrammingDeviceControlEvents>;

class EventSourceTest : public testing::Test {
protected:
    std::uint32_t Subscribe(const std::shared_ptr<CEventLog>& log) {
        std::uint32_t cookie = 0;
        EXPECT_EQ(m_source->Subscribe(log, cookie), contract::kSuccess);
        return cookie;
    }
    void RaiseMode(std::int32_t mode) {
        m_source->RaiseToAll([&](auto& sink) { return sink.ModeChanged(mode); });
    }

    const std::shared_ptr<CSource> m_source = std::make_shared<CSource>();
    const std::shared_ptr<CEventLog> m_first = std::make_shared<CEventLog>();
    const std::shared_ptr<CEventLog> m_second = std::make_shared<CEventLog>();
};

TEST_F(EventSourceTest, SubscribeCountsCookiesFromOne) {
    EXPECT_EQ(Subscribe(m_first), 1u);
    EXPECT_EQ(Subscribe(m_second), 2u);
    EXPECT_EQ(m_source->SubscriberCount(), 2u);
}

TEST_F(EventSourceTest, SubscribeNullFailsAndLeavesCookie) {
    std::uint32_t cookie = 77;
    ExpectFailure(m_source->Subscribe(nullptr, cookie), 0x80004003,
                  "There is no event sink to subscribe");
    EXPECT_EQ(cookie, 77u);
    EXPECT_EQ(m_source->SubscriberCount(), 0u);
}

TEST_F(EventSourceTest, FindEventSourceDeliversItself) {
    std::shared_ptr<contract::IEventSource<contract::_IProgrammingDeviceControlEvents>> found;
    EXPECT_EQ(m_source->FindEventSource(found), contract::kSuccess);
    EXPECT_EQ(found, m_source);
}

TEST_F(EventSourceTest, RaiseReachesAllSubscribers) {
    Subscribe(m_first);
    Subscribe(m_second);
    RaiseMode(2);
    EXPECT_EQ(m_first->events, Events{"mode 2"});
    EXPECT_EQ(m_second->events, Events{"mode 2"});
}

TEST_F(EventSourceTest, UnsubscribeReleasesTheSink) {
    const auto cookie = Subscribe(m_first);
    EXPECT_EQ(m_source->Unsubscribe(cookie), contract::kSuccess);
    RaiseMode(2);
    EXPECT_EQ(m_first->events, Events{});
    EXPECT_EQ(m_first.use_count(), 1);
}

TEST_F(EventSourceTest, UnsubscribeUnknownCookieFails) {
    ExpectFailure(m_source->Unsubscribe(0xFEFEFEFE), 0x80040200,
                  "There is no such event subscription");
}

TEST_F(EventSourceTest, UnsubscribedDuringRaiseHearsNothing) {
    Subscribe(m_first);
    const auto cookie = Subscribe(m_second);
    m_first->onEvent = [&] { static_cast<void>(m_source->Unsubscribe(cookie)); };
    RaiseMode(3);
    EXPECT_EQ(m_first->events, Events{"mode 3"});
    EXPECT_EQ(m_second->events, Events{});
}

TEST_F(EventSourceTest, SubscribedDuringRaiseHearsTheNext) {
    Subscribe(m_first);
    m_first->onEvent = [&] {
        m_first->onEvent = [] {};
        Subscribe(m_second);
    };
    RaiseMode(1);
    RaiseMode(2);
    EXPECT_EQ(m_second->events, Events{"mode 2"});
}

}
}
