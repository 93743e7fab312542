#include "component/win32/com/ImportedEvents.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"

namespace component {

namespace {

using contract::Status;

/// The events of a source that is written for COM, as a caller in the contract sees them.
class ImportedEventsTest : public BridgeFixture {
protected:
    using Source = contract::IEventSource<ConnectionEvents>;
    using Sink = interception::CTarget<ConnectionEvents>;

    ~ImportedEventsTest() override { EXPECT_EQ(ReferencesTo(Face()), 1u); }

    IUnknown* Face() const { return static_cast<IConnectionPoint*>(m_comSource.Get()); }

    Status FindSource(std::shared_ptr<Source>& source) {
        std::shared_ptr<contract::IBaseObject<ConnectionEvents>> base;
        EXPECT_EQ(Import<contract::IConnection>(Face())->QueryBaseObject(base), contract::kSuccess);
        return base->FindEventSource(source);
    }
    std::shared_ptr<Source> FoundSource() {
        std::shared_ptr<Source> source;
        EXPECT_EQ(FindSource(source), contract::kSuccess);
        return source;
    }
    std::uint32_t Subscribe(const std::shared_ptr<Sink>& sink) {
        std::uint32_t cookie = contract::kNotSubscribed;
        EXPECT_EQ(FoundSource()->Subscribe(sink, cookie), contract::kSuccess);
        return cookie;
    }

    ComPtr<CComSource> m_comSource = MakeCom<CComSource>(__uuidof(::_IExtConnectionEvents));
    std::shared_ptr<Sink> m_sink = interception::MakeTarget<ConnectionEvents>();
};

TEST_F(ImportedEventsTest, EventReachesSubscribedSink) {
    const std::uint32_t cookie = Subscribe(m_sink);
    EXPECT_EQ(cookie, 0x80000001u);
    EXPECT_EQ(m_comSource->Raise(1, {Long(7), Long(0)}), S_OK);
    ASSERT_EQ(m_sink->exchange.received.size(), 1u);
    EXPECT_EQ(m_sink->exchange.received[0].arguments, "0;7;");
    EXPECT_EQ(FoundSource()->Unsubscribe(cookie), contract::kSuccess);
}

TEST_F(ImportedEventsTest, UnsubscribeReleasesSink) {
    EXPECT_EQ(FoundSource()->Unsubscribe(Subscribe(m_sink)), contract::kSuccess);
    EXPECT_EQ(m_sink.use_count(), 1);
    EXPECT_EQ(m_comSource->Raise(1, {Long(7), Long(0)}), S_FALSE);
}

TEST_F(ImportedEventsTest, UnsubscribeOfUnknownCookieFails) {
    EXPECT_EQ(FoundSource()->Unsubscribe(contract::kNotSubscribed), Status(CONNECT_E_NOCONNECTION));
}

TEST_F(ImportedEventsTest, SubscribeWithoutSinkIsRefused) {
    std::uint32_t cookie = 5;
    EXPECT_EQ(FoundSource()->Subscribe(nullptr, cookie), contract::kInvalidPointer);
    EXPECT_EQ(cookie, 5u);
    EXPECT_TRUE(m_comSource->sinks.empty());
}

TEST_F(ImportedEventsTest, UnsubscribeInsideEventIsSafe) {
    const std::uint32_t cookie = Subscribe(m_sink);
    m_sink->exchange.whileCalled = [&] {
        EXPECT_EQ(FoundSource()->Unsubscribe(cookie), contract::kSuccess);
    };
    EXPECT_EQ(m_comSource->Raise(1, {Long(5), Long(0)}), S_OK);
    EXPECT_EQ(m_comSource->Raise(1, {Long(5), Long(0)}), S_FALSE);
    EXPECT_EQ(m_sink.use_count(), 1);
}

TEST_F(ImportedEventsTest, FailureOfSourcePassesStatusAndDescription) {
    const auto source = FoundSource();
    m_comSource->failure = -77;
    m_comSource->description = L"Kabel lose \xD83D\xDD0C";
    std::uint32_t cookie = 5;
    EXPECT_EQ(source->Subscribe(m_sink, cookie), Status(-77));
    EXPECT_EQ(contract::TakeErrorInfo(), "Kabel lose 🔌");
    EXPECT_EQ(cookie, 5u);
    EXPECT_EQ(source->Unsubscribe(5), Status(-77));
    EXPECT_EQ(contract::TakeErrorInfo(), "Kabel lose 🔌");
}

TEST_F(ImportedEventsTest, FailureWithoutDescriptionBringsNoEarlierOne) {
    const auto source = FoundSource();
    m_comSource->failure = -77;
    LeaveDescription(L"of an earlier call in COM");
    contract::SetErrorInfo("of an earlier call");
    EXPECT_EQ(source->Unsubscribe(5), Status(-77));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(ImportedEventsTest, ObjectWithOtherEventsHasNoSource) {
    m_comSource = MakeCom<CComSource>(__uuidof(::_IProgrammingDeviceControlEvents));
    std::shared_ptr<Source> source;
    EXPECT_EQ(FindSource(source), Status(CONNECT_E_NOCONNECTION));
    EXPECT_EQ(source, nullptr);
}

TEST_F(ImportedEventsTest, ObjectWithoutConnectionPointsHasNoSource) {
    const auto plain = MakeCom<CDispatchDouble>();
    std::shared_ptr<contract::IBaseObject<ConnectionEvents>> base;
    ASSERT_EQ(Import<contract::IConnection>(plain.Get())->QueryBaseObject(base),
              contract::kSuccess);
    std::shared_ptr<Source> source;
    EXPECT_EQ(base->FindEventSource(source), contract::kNoSuchInterface);
    EXPECT_EQ(source, nullptr);
}

/// The events of a source that is written to the contract, led through COM and back.
class EventRoundTripTest : public BridgeFixture {
protected:
    using Source = simulator::CEventSource<DeviceEvents>;
    using Sink = interception::CTarget<DeviceEvents>;

    std::shared_ptr<contract::IEventSource<DeviceEvents>> FoundSource() {
        std::shared_ptr<contract::IBaseObject<DeviceEvents>> base;
        std::shared_ptr<contract::IEventSource<DeviceEvents>> source;
        const auto control = MakeObjectWith<contract::IProgrammingDeviceControl>(m_source);
        EXPECT_EQ(RoundTrip<contract::IProgrammingDeviceControl>(control)->QueryBaseObject(base),
                  contract::kSuccess);
        EXPECT_EQ(base->FindEventSource(source), contract::kSuccess);
        return source;
    }

    std::shared_ptr<Source> m_source = std::make_shared<Source>();
    std::shared_ptr<Sink> m_sink = interception::MakeTarget<DeviceEvents>();
};

TEST_F(EventRoundTripTest, EventsArriveAsTheyWereRaised) {
    std::uint32_t cookie = 0;
    ASSERT_EQ(FoundSource()->Subscribe(m_sink, cookie), contract::kSuccess);
    m_source->RaiseToAll([](DeviceEvents& sink) { return sink.ModeChanged(-2147483647 - 1); });
    m_source->RaiseToAll(
        [](DeviceEvents& sink) { return sink.DeviceMessage("größer 😀", 0xFFFFFFFF, 0); });
    m_source->RaiseToAll([](DeviceEvents& sink) { return sink.Event3(-1, 2147483647); });
    const auto& received = m_sink->exchange.received;
    ASSERT_EQ(received.size(), 3u);
    EXPECT_EQ(received[0].arguments, "-2147483648;");
    EXPECT_EQ(received[1].arguments, "größer 😀;4294967295;0;");
    EXPECT_EQ(received[2].arguments, "-1;2147483647;");
    EXPECT_EQ(FoundSource()->Unsubscribe(cookie), contract::kSuccess);
    EXPECT_EQ(m_source->SubscriberCount(), 0u);
    EXPECT_EQ(m_sink.use_count(), 1);
}

TEST_F(EventRoundTripTest, StatusOfSinkReachesSource) {
    std::uint32_t cookie = 0;
    ASSERT_EQ(FoundSource()->Subscribe(m_sink, cookie), contract::kSuccess);
    m_sink->exchange.status = Status(-6);
    Status status;
    m_source->RaiseToAll([&](DeviceEvents& sink) { return status = sink.ModeChanged(1); });
    EXPECT_EQ(status, Status(-6));
}

TEST_F(EventRoundTripTest, EndOfSourceInsideItsEventIsSafe) {
    std::uint32_t cookie = 0;
    ASSERT_EQ(FoundSource()->Subscribe(m_sink, cookie), contract::kSuccess);
    std::shared_ptr<Source> raising = m_source;
    m_sink->exchange.whileCalled = [&] {
        m_source = nullptr;
        EXPECT_GT(m_sink.use_count(), 1);
    };
    raising->RaiseToAll([](DeviceEvents& sink) { return sink.ModeChanged(1); });
    raising = nullptr;
    EXPECT_EQ(m_sink.use_count(), 1);
}

}

}
