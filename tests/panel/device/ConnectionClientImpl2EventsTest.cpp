// What a client of a connection is told, and when. The panel itself leaves the hooks empty, so they
// are watched in a client made for that.

#include "panel/device/ConnectionClientImpl2.h"

#include "interception/FaultInjector.h"
#include "interception/Interception.h"
#include "simulator/Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace panel;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

class CClient final : public IConnectionClientImpl2<CClient>,
                      public std::enable_shared_from_this<CClient> {
public:
    ~CClient() { Detach(); }

    std::shared_ptr<CClient> Self() { return shared_from_this(); }
    void OnAfterAttach() { tell("attached"); }
    void OnBeforeDetach() { tell("about to detach"); }
    void OnConnectionEvent(Status status, std::int32_t state) {
        tell("event " + std::to_string(status.Code()) + ", " + std::to_string(state));
    }
    void OnDeviceConnected() { tell("connected"); }
    void OnDeviceDisconnected() { tell("disconnected"); }

    using IConnectionClientImpl2<CClient>::Connection;

    std::function<void(const std::string&)> tell;
};

class ConnectionClientImpl2EventsTest : public testing::Test {
protected:
    void SetUp() override {
        client->tell = [this](const std::string& what) {
            seen.push_back(what);
            subscribers.push_back(host.ConnectionSubscriberCount());
        };
    }
    void TearDown() override {
        // Its end is told of, too.
        client.reset();
    }
    void Attach() {
        EXPECT_EQ(client->SetConnection(host.Connection()), contract::kSuccess);
        seen.clear();
        subscribers.clear();
    }

    simulator::CHost host;
    std::shared_ptr<CClient> client = std::make_shared<CClient>();
    std::vector<std::string> seen;
    /// How many subscriptions the connection had each time.
    std::vector<std::size_t> subscribers;
};

TEST_F(ConnectionClientImpl2EventsTest, AttachHookRunsOnceSubscribed) {
    EXPECT_EQ(client->SetConnection(host.Connection()), contract::kSuccess);
    EXPECT_THAT(seen, ElementsAre("attached"));
    EXPECT_THAT(subscribers, ElementsAre(1u));
}

TEST_F(ConnectionClientImpl2EventsTest, HooksRunWithoutASubscriptionToo) {
    const auto faults = std::make_shared<interception::CFaultInjector>();
    interception::CInterception interception(faults);
    faults->Fail({1, "ExtConnectionEvents.Subscribe"});
    EXPECT_EQ(client->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
    EXPECT_THAT(seen, ElementsAre("attached", "about to detach"));
    EXPECT_THAT(subscribers, ElementsAre(0u, 0u));
}

TEST_F(ConnectionClientImpl2EventsTest, DetachHookRunsWhileStillSubscribed) {
    Attach();
    EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
    EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
    EXPECT_THAT(seen, ElementsAre("about to detach"));
    EXPECT_THAT(subscribers, ElementsAre(1u));
}

TEST_F(ConnectionClientImpl2EventsTest, AnotherConnectionRunsBothHooks) {
    const simulator::CHost other;
    Attach();
    EXPECT_EQ(client->SetConnection(other.Connection()), contract::kSuccess);
    EXPECT_THAT(seen, ElementsAre("about to detach", "attached"));
    EXPECT_THAT(subscribers, ElementsAre(1u, 0u));
}

TEST_F(ConnectionClientImpl2EventsTest, ConnectionAlreadyHeldRunsNoHook) {
    Attach();
    EXPECT_EQ(client->SetConnection(host.Connection()), contract::kSuccess);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(ConnectionClientImpl2EventsTest, ClientsEndDetachesOnce) {
    Attach();
    client.reset();
    EXPECT_THAT(seen, ElementsAre("about to detach"));
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
}

/// The lock guards the references, not the host's calls.
TEST_F(ConnectionClientImpl2EventsTest, ReferencesCanBeReadWhileTheHostIsCalled) {
    for (const char* operation :
         {"ExtConnectionEvents.Subscribe", "ExtConnectionEvents.Unsubscribe"}) {
        const auto faults = std::make_shared<interception::CFaultInjector>();
        interception::CInterception interception(faults);
        std::future<bool> reader;
        auto outcome = std::future_status::timeout;
        faults->RunBefore({1, operation}, [&] {
            reader =
                std::async(std::launch::async, [this] { return client->Connection() != nullptr; });
            outcome = reader.wait_for(std::chrono::seconds(10));
        });
        EXPECT_EQ(client->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
        EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
        EXPECT_EQ(outcome, std::future_status::ready) << operation;
        EXPECT_TRUE(reader.get()) << operation;
    }
}

/// Nobody finds a connection that has not been asked for its state yet.
TEST_F(ConnectionClientImpl2EventsTest, ReferencesAreReadOnceTheStateIsKnown) {
    const auto faults = std::make_shared<interception::CFaultInjector>();
    interception::CInterception interception(faults);
    std::future<bool> reader;
    auto outcome = std::future_status::ready;
    faults->RunBefore({1, "Connection.QueryConnectionState"}, [&] {
        reader = std::async(std::launch::async, [this] { return client->Connection() != nullptr; });
        outcome = reader.wait_for(std::chrono::milliseconds(100));
    });
    EXPECT_EQ(client->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    EXPECT_EQ(outcome, std::future_status::timeout);
    EXPECT_TRUE(reader.get());
    EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
}

TEST_F(ConnectionClientImpl2EventsTest, GeneralHookComesBeforeTheReaction) {
    Attach();
    host.RaiseConnectionState(contract::kSuccess, 7);
    host.RaiseConnectionState(contract::kSuccess, 5);
    EXPECT_THAT(seen, ElementsAre("event 0, 7", "connected", "event 0, 5", "disconnected"));
}

TEST_F(ConnectionClientImpl2EventsTest, FailedChangeReachesTheGeneralHookOnly) {
    Attach();
    host.RaiseConnectionState(Status(-1), 7);
    host.RaiseConnectionState(Status::FromBits(0x80004005), 5);
    EXPECT_THAT(seen, ElementsAre("event -1, 7", "event -2147467259, 5"));
}

TEST_F(ConnectionClientImpl2EventsTest, OtherStateReachesTheGeneralHookOnly) {
    Attach();
    for (const std::int32_t state : {0, 4, 6, 8, -5, -7}) {
        host.RaiseConnectionState(contract::kSuccess, state);
    }
    EXPECT_THAT(seen, ElementsAre("event 0, 0", "event 0, 4", "event 0, 6", "event 0, 8",
                                  "event 0, -5", "event 0, -7"));
}

TEST_F(ConnectionClientImpl2EventsTest, SuccessThatIsNotZeroCounts) {
    Attach();
    host.RaiseConnectionState(Status(1), 7);
    EXPECT_THAT(seen, ElementsAre("event 1, 7", "connected"));
}

TEST_F(ConnectionClientImpl2EventsTest, SecondEventReachesNoHook) {
    Attach();
    host.RaiseConnectionEvent2(0, 7);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(ConnectionClientImpl2EventsTest, NothingIsToldAfterDetaching) {
    Attach();
    EXPECT_EQ(client->SetConnection(nullptr), contract::kSuccess);
    seen.clear();
    host.RaiseConnectionState(contract::kSuccess, 7);
    EXPECT_THAT(seen, IsEmpty());
}

}
