#include "component/win32/com/Export.h"
#include "component/win32/com/Import.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

#include <new>
#include <vector>

namespace component {

namespace {

using contract::Status;
using interception::CTarget;
using interception::MakeTarget;

/// What a test has to know of a query, whatever it asks for.
struct QueryCheck {
    const char* name;
    /// Both objects, the one that is asked and the answer, in COM.
    struct Objects {
        ComPtr<IUnknown> asked;
        IID wanted;
        std::shared_ptr<interception::Exchange> exchange;
    };
    Objects (*make)(CBridge&);
    /// Asks through COM and back; whether an answer came.
    Status (*roundTrip)(CBridge&, interception::Exchange, bool& hasAnswer);
};

template <class Interface>
std::shared_ptr<void> AsObject() {
    return std::shared_ptr<Interface>(MakeTarget<Interface>());
}

template <auto query>
struct CQuery;
template <class Interface, class Other, Status (Interface::*query)(std::shared_ptr<Other>&)>
struct CQuery<query> {
    static QueryCheck::Objects Make(CBridge& bridge) {
        const auto target = MakeTarget<Interface>();
        target->exchange.object = AsObject<Other>();
        return {bridge.Export<Interface>(target), __uuidof(ComOf<Other>),
                std::shared_ptr<interception::Exchange>(target, &target->exchange)};
    }
    static Status RoundTrip(CBridge& bridge, interception::Exchange exchange, bool& hasAnswer) {
        const auto target = MakeTarget<Interface>();
        if (exchange.status.IsSuccess() && !exchange.object) {
            exchange.object = AsObject<Other>();
        }
        target->exchange = std::move(exchange);
        const auto imported = bridge.Import<Interface>(bridge.Export<Interface>(target).Get());
        std::shared_ptr<Other> answer;
        const Status status = (imported.get()->*query)(answer);
        hasAnswer = answer != nullptr;
        return status;
    }
};

template <auto query>
QueryCheck Named(const char* name) {
    return {name, &CQuery<query>::Make, &CQuery<query>::RoundTrip};
}

void PrintTo(const QueryCheck& check, std::ostream* stream) { *stream << check.name; }

std::string TestName(const testing::TestParamInfo<QueryCheck>& info) { return info.param.name; }

class QueryTest : public BridgeFixture, public testing::WithParamInterface<QueryCheck> {
protected:
    QueryTest() : m_objects(GetParam().make(*m_bridge)) {}

    HRESULT Query(IUnknown* object, REFIID identifier, ComPtr<IUnknown>& answer) {
        return object->QueryInterface(identifier, reinterpret_cast<void**>(answer.GetAddressOf()));
    }
    ComPtr<IUnknown> Part() {
        ComPtr<IUnknown> part;
        EXPECT_EQ(Query(m_objects.asked.Get(), m_objects.wanted, part), S_OK);
        return part;
    }
    void ExpectNoPart(HRESULT expected, const wchar_t* description) {
        LeaveDescription(L"of an earlier call in COM");
        ComPtr<IUnknown> part;
        EXPECT_EQ(Query(m_objects.asked.Get(), m_objects.wanted, part), expected);
        EXPECT_FALSE(part);
        EXPECT_EQ(TakeDescription(), description);
    }

    QueryCheck::Objects m_objects;
};

TEST_P(QueryTest, PartAndWholeAreOneObject) {
    const auto part = Part();
    EXPECT_TRUE(AreOne(part.Get(), m_objects.asked.Get()));
    EXPECT_TRUE(AreOne(part.Get(), Part().Get()));
    ComPtr<IUnknown> again;
    EXPECT_EQ(Query(part.Get(), m_objects.wanted, again), S_OK);
    EXPECT_EQ(again.Get(), part.Get());
}

TEST_P(QueryTest, PartKeepsWholeAlive) {
    const auto part = Part();
    m_objects.asked = nullptr;
    EXPECT_TRUE(Ask<IUnknown>(part.Get()));
    EXPECT_EQ(m_bridge->LiveExports(), 1u);
}

TEST_P(QueryTest, ReferencesBalance) {
    const ULONG before = ReferencesTo(m_objects.asked.Get());
    Part();
    EXPECT_EQ(ReferencesTo(m_objects.asked.Get()), before);
}

TEST_P(QueryTest, FailurePassesStatusAndDescription) {
    m_objects.exchange->status = Status(-77);
    m_objects.exchange->whileCalled = [] { contract::SetErrorInfo("Kabel lose 🔌"); };
    ExpectNoPart(-77, L"Kabel lose \xD83D\xDD0C");
}

TEST_P(QueryTest, SuccessWithNullIsNoInterface) {
    m_objects.exchange->object = nullptr;
    ExpectNoPart(E_NOINTERFACE, L"");
}

TEST_P(QueryTest, ExceptionBecomesFailure) {
    m_objects.exchange->whileCalled = [] { throw std::bad_alloc(); };
    ExpectNoPart(E_OUTOFMEMORY, L"");
}

TEST_P(QueryTest, QueryFromAnotherThreadIsRefused) {
    ComPtr<IUnknown> part;
    EXPECT_EQ(OnAnotherThread([&] { return Query(m_objects.asked.Get(), m_objects.wanted, part); }),
              RPC_E_WRONG_THREAD);
    EXPECT_FALSE(part);
    EXPECT_TRUE(m_objects.exchange->received.empty());
}

TEST_P(QueryTest, UnknownInterfaceIsRefusedWithoutQuery) {
    ComPtr<IUnknown> answer;
    EXPECT_EQ(Query(m_objects.asked.Get(), IID_IStream, answer), E_NOINTERFACE);
    EXPECT_EQ(Query(Part().Get(), IID_IStream, answer), E_NOINTERFACE);
    EXPECT_FALSE(answer);
    EXPECT_EQ(m_objects.exchange->received.size(), 1u);
}

TEST_P(QueryTest, NullForResultIsRefused) {
    EXPECT_EQ(m_objects.asked->QueryInterface(m_objects.wanted, nullptr), E_POINTER);
    EXPECT_EQ(Part()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_P(QueryTest, RoundTripDeliversAnAnswer) {
    bool hasAnswer = false;
    EXPECT_EQ(GetParam().roundTrip(*m_bridge, {}, hasAnswer), contract::kSuccess);
    EXPECT_TRUE(hasAnswer);
}

TEST_P(QueryTest, RoundTripOfFailurePassesStatusAndDescription) {
    interception::Exchange exchange;
    exchange.status = Status(-77);
    exchange.whileCalled = [] { contract::SetErrorInfo("Kabel lose 🔌"); };
    bool hasAnswer = true;
    EXPECT_EQ(GetParam().roundTrip(*m_bridge, exchange, hasAnswer), Status(-77));
    EXPECT_FALSE(hasAnswer);
    EXPECT_EQ(contract::TakeErrorInfo(), "Kabel lose 🔌");
}

INSTANTIATE_TEST_SUITE_P(
    Queries, QueryTest,
    testing::Values(
        Named<&contract::IContext::QueryHostViewControl>("HostViewControl"),
        Named<&contract::ISubsystem::QueryProgrammingDeviceSubsystem>("ProgrammingDeviceSubsystem"),
        Named<&contract::ISubsystem::QueryProductInformation>("ProductInformation"),
        Named<&contract::IProductDetection::QueryProductDetectionControl>(
            "ProductDetectionControl"),
        Named<&contract::IConnection::QueryConnectionState>("ConnectionState"),
        Named<&contract::ISoftwareInfo::QueryKrx20SwInfo>("Krx20SwInfo"),
        Named<&contract::IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2>(
            "CommunicationConfiguration2")),
    TestName);

/// Two parts of one object.
class PartsTest : public BridgeFixture {};

TEST_F(PartsTest, QueriesAreSymmetricBetweenParts) {
    const auto subsystem = MakeTarget<contract::ISubsystem>();
    const auto whole = Export<contract::ISubsystem>(subsystem);
    subsystem->exchange.object = AsObject<contract::IProductInformation>();
    const auto information = Ask<::IProductInformation>(whole.Get());
    subsystem->exchange.object = AsObject<contract::IProgrammingDeviceSubsystem>();
    const auto devices = Ask<::IProgrammingDeviceSubsystem>(information.Get());
    ASSERT_TRUE(devices);
    subsystem->exchange.object = AsObject<contract::IProductInformation>();
    EXPECT_TRUE(Ask<::IProductInformation>(devices.Get()));
    EXPECT_TRUE(AreOne(information.Get(), devices.Get()));
}

TEST_F(PartsTest, EventsAndStateOfConnectionReachEachOther) {
    const auto connection = MakeTarget<contract::IConnection>();
    connection->exchange.object = AsObject<contract::IConnectionState>();
    const auto whole = Export<contract::IConnection>(connection);
    const auto state = Ask<::IConnectionState>(whole.Get());
    const auto container = Ask<IConnectionPointContainer>(state.Get());
    ASSERT_TRUE(container);
    EXPECT_TRUE(Ask<::IConnectionState>(container.Get()));
    EXPECT_TRUE(AreOne(container.Get(), whole.Get()));
}

TEST_F(PartsTest, DispatchOfSoftwareInfoIsThatOfItsDualPart) {
    const auto information = MakeTarget<contract::ISoftwareInfo>();
    information->exchange.object = AsObject<contract::IKrx20SwInfo>();
    const auto whole = Export<contract::ISoftwareInfo>(information);
    const auto part = Ask<::IKrx20SwInfo>(whole.Get());
    const auto dispatch = Ask<IDispatch>(part.Get());
    ASSERT_TRUE(dispatch);
    EXPECT_EQ(static_cast<void*>(dispatch.Get()), part.Get());
    EXPECT_TRUE(Ask<IDispatch>(whole.Get()));
    EXPECT_TRUE(AreOne(dispatch.Get(), whole.Get()));
}

}

}
