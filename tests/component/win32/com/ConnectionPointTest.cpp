#include "component/win32/com/ConnectionPoint.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"

#include <gmock/gmock.h>

namespace component {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A control written to the contract, as a client in COM sees its events.
class ConnectionPointTest : public BridgeFixture {
protected:
    using Source = simulator::CEventSource<DeviceEvents>;

    ComPtr<IConnectionPointContainer> Container() {
        return Ask<IConnectionPointContainer>(m_exported.Get());
    }
    ComPtr<IConnectionPoint> Point() {
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(Container()->FindConnectionPoint(__uuidof(::_IProgrammingDeviceControlEvents),
                                                   point.GetAddressOf()),
                  S_OK);
        return point;
    }
    DWORD Advise(CDispatchDouble* sink) {
        DWORD cookie = 0;
        EXPECT_EQ(Point()->Advise(sink, &cookie), S_OK);
        return cookie;
    }
    ComPtr<CDispatchDouble> MakeSink() {
        const auto sink = MakeCom<CDispatchDouble>();
        sink->eventInterface = __uuidof(::_IProgrammingDeviceControlEvents);
        return sink;
    }
    void RaiseMode(std::int32_t mode) {
        m_source->RaiseToAll([&](DeviceEvents& sink) { return sink.ModeChanged(mode); });
    }

    std::shared_ptr<Source> m_source = std::make_shared<Source>();
    std::shared_ptr<interception::CTarget<contract::IProgrammingDeviceControl>> m_control =
        MakeObjectWith<contract::IProgrammingDeviceControl>(m_source);
    ComPtr<::IProgrammingDeviceControl> m_exported =
        Export<contract::IProgrammingDeviceControl>(m_control);
};

TEST_F(ConnectionPointTest, EventReachesSinkByNumberAndDeclaredTypes) {
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    RaiseMode(-3);
    m_source->RaiseToAll(
        [](DeviceEvents& events) { return events.DeviceMessage("50 % – 😀", 1, 0xFFFFFFFF); });
    m_source->RaiseToAll([](DeviceEvents& events) { return events.Event3(1, -2); });
    EXPECT_THAT(sink->events,
                ElementsAre("1 I4:-3", "2 BSTR:50 % – 😀 UI4:1 UI4:4294967295", "3 I4:1 I4:-2"));
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
}

TEST_F(ConnectionPointTest, SinkThatOffersDispatchOnlyGetsEvents) {
    const auto sink = MakeCom<CDispatchDouble>();
    const DWORD cookie = Advise(sink.Get());
    RaiseMode(2);
    EXPECT_THAT(sink->events, ElementsAre("1 I4:2"));
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
}

TEST_F(ConnectionPointTest, ResultOfSinkIsReturnedToSource) {
    const auto sink = MakeSink();
    sink->result = DISP_E_EXCEPTION;
    const DWORD cookie = Advise(sink.Get());
    contract::Status status;
    m_source->RaiseToAll([&](DeviceEvents& events) { return status = events.ModeChanged(1); });
    EXPECT_EQ(status.Code(), DISP_E_EXCEPTION);
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
}

TEST_F(ConnectionPointTest, UnadviseEndsEventsAndReleasesSink) {
    const auto sink = MakeSink();
    EXPECT_EQ(Point()->Unadvise(Advise(sink.Get())), S_OK);
    RaiseMode(2);
    EXPECT_THAT(sink->events, IsEmpty());
    EXPECT_EQ(ReferencesTo(sink.Get()), 1u);
    EXPECT_EQ(m_source->SubscriberCount(), 0u);
}

TEST_F(ConnectionPointTest, UnadviseOfUnknownCookieFails) {
    EXPECT_EQ(Point()->Unadvise(77), CONNECT_E_NOCONNECTION);
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    EXPECT_EQ(Point()->Unadvise(cookie + 1), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
    EXPECT_EQ(Point()->Unadvise(cookie), CONNECT_E_NOCONNECTION);
}

TEST_F(ConnectionPointTest, UnadviseInsideEventEndsEvents) {
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    sink->whileInvoked = [&] { EXPECT_EQ(Point()->Unadvise(cookie), S_OK); };
    RaiseMode(2);
    RaiseMode(3);
    EXPECT_THAT(sink->events, ElementsAre("1 I4:2"));
    EXPECT_EQ(ReferencesTo(sink.Get()), 1u);
}

TEST_F(ConnectionPointTest, UnadviseAsLastUseOfSourceInsideEventIsSafe) {
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    auto point = Point();
    sink->whileInvoked = [&] {
        EXPECT_EQ(std::exchange(point, nullptr)->Unadvise(cookie), S_OK);
        m_exported = nullptr;
        m_control = nullptr;
    };
    RaiseMode(2);
    EXPECT_THAT(sink->events, ElementsAre("1 I4:2"));
    EXPECT_EQ(m_source.use_count(), 1);
}

TEST_F(ConnectionPointTest, SubscriptionOutlivesPointAndExport) {
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    m_exported = nullptr;
    EXPECT_EQ(m_bridge->LiveExports(), 0u);
    RaiseMode(2);
    EXPECT_THAT(sink->events, ElementsAre("1 I4:2"));
    m_exported = Export<contract::IProgrammingDeviceControl>(m_control);
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
}

TEST_F(ConnectionPointTest, EndOfSourceReleasesSinks) {
    const auto sink = MakeSink();
    Advise(sink.Get());
    m_exported = nullptr;
    m_control = nullptr;
    m_source = nullptr;
    EXPECT_EQ(ReferencesTo(sink.Get()), 1u);
}

TEST_F(ConnectionPointTest, AdviseWithObjectWithoutEventsIsRefused) {
    const auto plain = MakeCom<CComSource>(IID_NULL);
    DWORD cookie = 5;
    EXPECT_EQ(Point()->Advise(static_cast<IConnectionPoint*>(plain.Get()), &cookie),
              CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0u);
}

TEST_F(ConnectionPointTest, NullPointersAreRefused) {
    const auto sink = MakeSink();
    DWORD cookie = 0;
    EXPECT_EQ(Point()->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(Point()->Advise(sink.Get(), nullptr), E_POINTER);
    EXPECT_EQ(Point()->GetConnectionInterface(nullptr), E_POINTER);
    EXPECT_EQ(Point()->GetConnectionPointContainer(nullptr), E_POINTER);
    EXPECT_EQ(Point()->EnumConnections(nullptr), E_POINTER);
    EXPECT_EQ(Container()->EnumConnectionPoints(nullptr), E_POINTER);
    EXPECT_EQ(Container()->FindConnectionPoint(IID_NULL, nullptr), E_POINTER);
}

TEST_F(ConnectionPointTest, CallsFromAnotherThreadAreRefused) {
    const auto container = Container();
    const auto point = Point();
    const auto sink = MakeSink();
    ComPtr<IConnectionPoint> found;
    DWORD cookie = 5;
    EXPECT_EQ(OnAnotherThread([&] {
                  return container->FindConnectionPoint(
                      __uuidof(::_IProgrammingDeviceControlEvents), found.GetAddressOf());
              }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(OnAnotherThread([&] { return point->Advise(sink.Get(), &cookie); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(cookie, 0u);
    EXPECT_EQ(sink->queries, 0);
    EXPECT_EQ(OnAnotherThread([&] { return point->Unadvise(1); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(m_source->SubscriberCount(), 0u);
}

TEST_F(ConnectionPointTest, NoObjectIsDeliveredToAnotherThread) {
    const auto point = Point();
    auto connections = reinterpret_cast<IEnumConnections*>(8);
    EXPECT_EQ(OnAnotherThread([&] { return point->EnumConnections(&connections); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(connections, nullptr);
    auto container = reinterpret_cast<IConnectionPointContainer*>(8);
    EXPECT_EQ(OnAnotherThread([&] { return point->GetConnectionPointContainer(&container); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(container, nullptr);
}

TEST_F(ConnectionPointTest, PointKnowsItsInterfaceAndContainer) {
    IID identifier = IID_NULL;
    EXPECT_EQ(Point()->GetConnectionInterface(&identifier), S_OK);
    EXPECT_EQ(identifier, __uuidof(::_IProgrammingDeviceControlEvents));
    ComPtr<IConnectionPointContainer> container;
    EXPECT_EQ(Point()->GetConnectionPointContainer(container.GetAddressOf()), S_OK);
    EXPECT_TRUE(AreOne(container.Get(), m_exported.Get()));
    EXPECT_FALSE(AreOne(Point().Get(), m_exported.Get()));
}

TEST_F(ConnectionPointTest, EventsThatTheObjectLacksAreNotFound) {
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(
        Container()->FindConnectionPoint(__uuidof(::_IExtConnectionEvents), point.GetAddressOf()),
        CONNECT_E_NOCONNECTION);
    EXPECT_FALSE(point);
}

TEST_F(ConnectionPointTest, ContainerEnumeratesItsOnePoint) {
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(Container()->EnumConnectionPoints(points.GetAddressOf()), S_OK);
    ComPtr<IConnectionPoint> found;
    ULONG count = 0;
    EXPECT_EQ(points->Next(1, found.GetAddressOf(), &count), S_OK);
    EXPECT_EQ(count, 1u);
    IID identifier = IID_NULL;
    EXPECT_EQ(found->GetConnectionInterface(&identifier), S_OK);
    EXPECT_EQ(identifier, __uuidof(::_IProgrammingDeviceControlEvents));
    IConnectionPoint* none = nullptr;
    EXPECT_EQ(points->Next(1, &none, &count), S_FALSE);
    EXPECT_EQ(count, 0u);
}

TEST_F(ConnectionPointTest, PointEnumeratesItsSinksWithTheirCookies) {
    const auto first = MakeSink();
    const auto second = MakeSink();
    const DWORD cookies[] = {Advise(first.Get()), Advise(second.Get())};
    ComPtr<IEnumConnections> connections;
    ASSERT_EQ(Point()->EnumConnections(connections.GetAddressOf()), S_OK);
    CONNECTDATA found[3] = {};
    ULONG count = 0;
    EXPECT_EQ(connections->Next(3, found, &count), S_FALSE);
    ASSERT_EQ(count, 2u);
    EXPECT_EQ(found[0].dwCookie, cookies[0]);
    EXPECT_EQ(found[0].pUnk, static_cast<IUnknown*>(first.Get()));
    EXPECT_EQ(found[1].dwCookie, cookies[1]);
    EXPECT_EQ(found[1].pUnk, static_cast<IUnknown*>(second.Get()));
    for (ULONG index = 0; index < count; ++index) {
        found[index].pUnk->Release();
        EXPECT_EQ(Point()->Unadvise(cookies[index]), S_OK);
    }
}

TEST_F(ConnectionPointTest, SourceFoundThroughAnotherObjectEachTimeCanBeUnadvised) {
    // An import makes an object of its own for each search of the source.
    m_exported = Export<contract::IProgrammingDeviceControl>(
        RoundTrip<contract::IProgrammingDeviceControl>(m_control));
    const auto sink = MakeSink();
    const DWORD cookie = Advise(sink.Get());
    RaiseMode(2);
    EXPECT_THAT(sink->events, ElementsAre("1 I4:2"));
    EXPECT_EQ(Point()->Unadvise(cookie), S_OK);
    EXPECT_EQ(m_source->SubscriberCount(), 0u);
}

}

}
