#include "component/win32/com/ConnectionPointContainer.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"
#include "tests/interception/EventTargets.h"

namespace component {

namespace {

using contract::Status;
using interception::CTarget;

/// A connection written to the contract whose way to its events fails at a chosen step.
class EventFailureTest : public BridgeFixture {
protected:
    using Base = contract::IBaseObject<ConnectionEvents>;
    using Source = contract::IEventSource<ConnectionEvents>;

    EventFailureTest() {
        m_connection->exchange.object = std::shared_ptr<Base>(m_base);
        m_base->exchange.object = std::shared_ptr<Source>(m_source);
    }

    template <class Target>
    static void Fail(Target& target) {
        target.exchange.status = Status(-77);
        target.exchange.whileCalled = [] { contract::SetErrorInfo("Kabel lose 🔌"); };
    }
    HRESULT FindPoint(ComPtr<IConnectionPoint>& point) {
        LeaveDescription(L"of an earlier call in COM");
        const auto exported = Export<contract::IConnection>(m_connection);
        return Ask<IConnectionPointContainer>(exported.Get())
            ->FindConnectionPoint(__uuidof(::_IExtConnectionEvents), point.GetAddressOf());
    }
    void ExpectNoPoint(HRESULT expected, const wchar_t* description) {
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(FindPoint(point), expected);
        EXPECT_FALSE(point);
        EXPECT_EQ(TakeDescription(), description);
    }
    ComPtr<IConnectionPoint> Point() {
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(FindPoint(point), S_OK);
        return point;
    }

    /// How many sinks are in the list of a point.
    static ULONG SinksOf(IConnectionPoint& point) {
        ComPtr<IEnumConnections> connections;
        EXPECT_EQ(point.EnumConnections(connections.GetAddressOf()), S_OK);
        CONNECTDATA found[3] = {};
        ULONG count = 0;
        connections->Next(3, found, &count);
        for (ULONG index = 0; index < count; ++index) {
            found[index].pUnk->Release();
        }
        return count;
    }

    std::shared_ptr<CTarget<contract::IConnection>> m_connection =
        interception::MakeTarget<contract::IConnection>();
    std::shared_ptr<CTarget<Base>> m_base = interception::MakeTarget<Base>();
    std::shared_ptr<CTarget<Source>> m_source = interception::MakeTarget<Source>();
};

TEST_F(EventFailureTest, FailingSearchOfBaseObjectPassesStatusAndDescription) {
    Fail(*m_connection);
    ExpectNoPoint(-77, L"Kabel lose \xD83D\xDD0C");
}

TEST_F(EventFailureTest, FailingSearchOfSourcePassesStatusAndDescription) {
    Fail(*m_base);
    ExpectNoPoint(-77, L"Kabel lose \xD83D\xDD0C");
}

TEST_F(EventFailureTest, MissingBaseObjectIsNoInterface) {
    m_connection->exchange.object = nullptr;
    ExpectNoPoint(E_NOINTERFACE, L"");
}

TEST_F(EventFailureTest, MissingSourceIsNoInterface) {
    m_base->exchange.object = nullptr;
    ExpectNoPoint(E_NOINTERFACE, L"");
}

TEST_F(EventFailureTest, EnumerationOfPointsFailsAsTheSearchDoes) {
    Fail(*m_base);
    const auto exported = Export<contract::IConnection>(m_connection);
    ComPtr<IEnumConnectionPoints> points;
    EXPECT_EQ(
        Ask<IConnectionPointContainer>(exported.Get())->EnumConnectionPoints(points.GetAddressOf()),
        -77);
    EXPECT_FALSE(points);
}

TEST_F(EventFailureTest, FailingSubscriptionPassesStatusAndDescription) {
    const auto point = Point();
    const auto sink = MakeCom<CDispatchDouble>();
    Fail(*m_source);
    DWORD cookie = 5;
    EXPECT_EQ(point->Advise(sink.Get(), &cookie), -77);
    EXPECT_EQ(TakeDescription(), L"Kabel lose \xD83D\xDD0C");
    EXPECT_EQ(cookie, 0u);
    EXPECT_EQ(ReferencesTo(sink.Get()), 1u);
}

TEST_F(EventFailureTest, FailingUnsubscriptionPassesStatusAndDescription) {
    const auto point = Point();
    const auto sink = MakeCom<CDispatchDouble>();
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(sink.Get(), &cookie), S_OK);
    Fail(*m_source);
    EXPECT_EQ(point->Unadvise(cookie), -77);
    EXPECT_EQ(TakeDescription(), L"Kabel lose \xD83D\xDD0C");
}

TEST_F(EventFailureTest, FailingUnsubscriptionLeavesTheSinkInTheListUntilARetrySucceeds) {
    const auto point = Point();
    const auto sink = MakeCom<CDispatchDouble>();
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(sink.Get(), &cookie), S_OK);
    Fail(*m_source);
    EXPECT_EQ(point->Unadvise(cookie), -77);
    EXPECT_EQ(point->Unadvise(cookie), -77);
    EXPECT_EQ(SinksOf(*point.Get()), 1u);
    m_source->exchange.status = contract::kSuccess;
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
    EXPECT_EQ(SinksOf(*point.Get()), 0u);
}

TEST_F(EventFailureTest, ExceptionOfSourceBecomesFailure) {
    const auto point = Point();
    m_source->exchange.whileCalled = [] { throw std::bad_alloc(); };
    const auto sink = MakeCom<CDispatchDouble>();
    DWORD cookie = 5;
    EXPECT_EQ(point->Advise(sink.Get(), &cookie), E_OUTOFMEMORY);
    EXPECT_EQ(point->Unadvise(5), E_OUTOFMEMORY);
    EXPECT_EQ(cookie, 0u);
}

TEST_F(EventFailureTest, ExceptionOfSearchBecomesFailure) {
    m_base->exchange.whileCalled = [] { throw std::bad_alloc(); };
    ExpectNoPoint(E_OUTOFMEMORY, L"");
}

}

}
