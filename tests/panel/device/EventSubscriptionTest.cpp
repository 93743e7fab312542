#include "panel/device/EventSubscription.h"

#include "contract/ErrorInfo.h"
#include "contract/host/ExtConnectionEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace panel {
namespace {

using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;
using Events = contract::_IExtConnectionEvents;
using Base = contract::IBaseObject<Events>;
using Source = contract::IEventSource<Events>;

constexpr Status kFailure = Status::FromBits(0x80004005);
constexpr Status kPointerMissing = Status::FromBits(0x80004003);
constexpr Status kInterfaceMissing = Status::FromBits(0x80004002);
constexpr std::uint32_t kNone = 0xFEFEFEFE;

class CSink final : public Events {
public:
    Status ConnectionStateChanged(Status, std::int32_t) override { return contract::kSuccess; }
    Status Event2(std::int32_t, std::int32_t) override { return contract::kSuccess; }
};

class CSourceDouble final : public Source {
public:
    Status Subscribe(const std::shared_ptr<Events>& sink, std::uint32_t& cookie) override {
        if (status.IsSuccess()) {
            sinks.push_back(sink);
            cookie = nextCookie++;
        }
        return status;
    }
    Status Unsubscribe(std::uint32_t cookie) override {
        unsubscribed.push_back(cookie);
        return status;
    }

    Status status;
    std::uint32_t nextCookie = 0x17;
    std::vector<std::shared_ptr<Events>> sinks;
    std::vector<std::uint32_t> unsubscribed;
};

class CBaseDouble final : public Base {
public:
    Status FindEventSource(std::shared_ptr<Source>& found) override {
        if (status.IsSuccess()) {
            found = source;
        }
        return status;
    }

    Status status;
    std::shared_ptr<CSourceDouble> source = std::make_shared<CSourceDouble>();
};

class CObjectDouble {
public:
    Status QueryBaseObject(std::shared_ptr<Base>& object) {
        if (status.IsSuccess()) {
            object = base;
        }
        return status;
    }

    Status status;
    std::shared_ptr<CBaseDouble> base = std::make_shared<CBaseDouble>();
};

class EventSubscriptionTest : public testing::Test {
protected:
    ~EventSubscriptionTest() override { contract::ClearErrorInfo(); }

    Status Connect() { return subscription.Connect(object, sink); }
    Status Disconnect() { return subscription.Disconnect(object); }

    std::shared_ptr<CObjectDouble> object = std::make_shared<CObjectDouble>();
    std::shared_ptr<CBaseDouble> base = object->base;
    std::shared_ptr<CSourceDouble> source = base->source;
    std::shared_ptr<Events> sink = std::make_shared<CSink>();
    CEventSubscription<Events> subscription;
};

TEST_F(EventSubscriptionTest, NewSubscriptionHasTheCookieOfNone) {
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, ConnectSubscribesTheSinkAndKeepsTheCookie) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_THAT(source->sinks, ElementsAre(sink));
    EXPECT_EQ(subscription.Cookie(), 0x17u);
}

TEST_F(EventSubscriptionTest, ConnectHoldsOnToNothingButTheCookie) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_EQ(object.use_count(), 1);
    EXPECT_EQ(base.use_count(), 2);
    EXPECT_EQ(source.use_count(), 2);
}

TEST_F(EventSubscriptionTest, ConnectToNothingFailsWithInvalidPointer) {
    object.reset();
    EXPECT_EQ(Connect(), kPointerMissing);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, ConnectWithoutBaseFailsWithItsStatus) {
    object->status = kFailure;
    EXPECT_EQ(Connect(), kFailure);
    EXPECT_EQ(subscription.Cookie(), kNone);
    EXPECT_THAT(source->sinks, IsEmpty());
}

TEST_F(EventSubscriptionTest, ConnectWithNullBaseFailsWithNoSuchInterface) {
    object->base.reset();
    EXPECT_EQ(Connect(), kInterfaceMissing);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, ConnectWithoutSourceFailsWithItsStatus) {
    base->status = kFailure;
    EXPECT_EQ(Connect(), kFailure);
    EXPECT_EQ(subscription.Cookie(), kNone);
    EXPECT_THAT(source->sinks, IsEmpty());
}

TEST_F(EventSubscriptionTest, ConnectWithNullSourceFailsWithInvalidPointer) {
    base->source.reset();
    EXPECT_EQ(Connect(), kPointerMissing);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, ConnectThatIsRefusedLeavesTheCookieOfNone) {
    source->status = kFailure;
    EXPECT_EQ(Connect(), kFailure);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, ConnectClearsAnOlderDescription) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(EventSubscriptionTest, DisconnectUnsubscribesByTheCookieAndForgetsIt) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_EQ(Disconnect(), contract::kSuccess);
    EXPECT_THAT(source->unsubscribed, ElementsAre(0x17u));
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, DisconnectWithoutSubscriptionNamesTheCookieOfNone) {
    source->status = kFailure;
    EXPECT_EQ(Connect(), kFailure);
    EXPECT_EQ(Disconnect(), kFailure);
    EXPECT_THAT(source->unsubscribed, ElementsAre(0xFEFEFEFEu));
}

TEST_F(EventSubscriptionTest, DisconnectThatIsRefusedForgetsTheCookie) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    source->status = kFailure;
    EXPECT_EQ(Disconnect(), kFailure);
    EXPECT_THAT(source->unsubscribed, ElementsAre(0x17u));
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, DisconnectWithoutBaseForgetsTheCookie) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    object->status = kFailure;
    EXPECT_EQ(Disconnect(), kFailure);
    EXPECT_THAT(source->unsubscribed, IsEmpty());
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, DisconnectWithNullBaseFailsWithNoSuchInterface) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    object->base.reset();
    EXPECT_EQ(Disconnect(), kInterfaceMissing);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, DisconnectWithoutSourceForgetsTheCookie) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    base->source.reset();
    EXPECT_EQ(Disconnect(), kPointerMissing);
    EXPECT_EQ(subscription.Cookie(), kNone);
}

TEST_F(EventSubscriptionTest, SubscriptionCanBeUsedAgain) {
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_EQ(Disconnect(), contract::kSuccess);
    EXPECT_EQ(Connect(), contract::kSuccess);
    EXPECT_EQ(subscription.Cookie(), 0x18u);
}

}
}
