#include "panel/device/KVL32ExtConnectionEvents.h"

#include "contract/host/Connection.h"
#include "simulator/Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace panel {
namespace {

using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class CHandler final : public IConnectionEventHandler {
public:
    void OnConnectionStateChanged(Status status, std::int32_t state) override {
        seen.emplace_back(status.Code(), state);
        if (whileHandling) {
            whileHandling();
        }
    }

    std::vector<std::pair<std::int32_t, std::int32_t>> seen;
    std::function<void()> whileHandling;
};

class KVL32ExtConnectionEventsTest : public testing::Test {
protected:
    simulator::CHost host;
    std::shared_ptr<CHandler> handler = std::make_shared<CHandler>();
    std::shared_ptr<CKVL32ExtConnectionEvents> events =
        std::make_shared<CKVL32ExtConnectionEvents>(handler);
};

TEST_F(KVL32ExtConnectionEventsTest, StateReachesTheHandlerAsAPlainNumber) {
    events->Connect(host.Connection());
    host.RaiseConnectionState(contract::kSuccess, 7);
    host.RaiseConnectionState(Status(-5), -2147483648);
    EXPECT_THAT(handler->seen, ElementsAre(Pair(0, 7), Pair(-5, -2147483648)));
}

TEST_F(KVL32ExtConnectionEventsTest, SecondEventIsAcceptedAndIgnored) {
    events->Connect(host.Connection());
    host.RaiseConnectionEvent2(5, 7);
    EXPECT_EQ(events->Event2(5, 7), contract::kSuccess);
    EXPECT_THAT(handler->seen, IsEmpty());
}

TEST_F(KVL32ExtConnectionEventsTest, StateIsAnsweredWithSuccessWhoeverHandlesIt) {
    EXPECT_EQ(events->ConnectionStateChanged(Status(-5), 7), contract::kSuccess);
    handler.reset();
    EXPECT_EQ(events->ConnectionStateChanged(contract::kSuccess, 7), contract::kSuccess);
}

TEST_F(KVL32ExtConnectionEventsTest, HandlerLivesUntilItsEventIsHandled) {
    std::weak_ptr<CHandler> watched = handler;
    bool livedOn = false;
    handler->whileHandling = [&] {
        handler.reset();
        livedOn = !watched.expired();
    };
    EXPECT_EQ(events->ConnectionStateChanged(contract::kSuccess, 5), contract::kSuccess);
    EXPECT_TRUE(livedOn);
    EXPECT_TRUE(watched.expired());
}

TEST_F(KVL32ExtConnectionEventsTest, CookieIsThatOfNoneUnlessSubscribed) {
    EXPECT_EQ(events->Cookie(), 0xFEFEFEFEu);
    events->Connect(host.Connection());
    EXPECT_NE(events->Cookie(), 0xFEFEFEFEu);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 1u);
    events->Disconnect(host.Connection());
    EXPECT_EQ(events->Cookie(), 0xFEFEFEFEu);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
}

}
}
