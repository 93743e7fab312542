#include "panel/control/Call.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace panel {
namespace {

using contract::Status;

constexpr Status kFailure = Status::FromBits(0x80004005);

struct Thing {};

/// An object that leaves a description whatever it returns.
class CChattyObject {
public:
    Status Obtain(int number, std::shared_ptr<Thing>& thing) {
        descriptionBefore = contract::TakeErrorInfo();
        if (whileCalled) {
            whileCalled();
        }
        numberGiven = number;
        contract::SetErrorInfo("so it is");
        if (status.IsSuccess()) {
            thing = toDeliver;
        }
        return status;
    }

    Status status;
    std::shared_ptr<Thing> toDeliver = std::make_shared<Thing>();
    std::string descriptionBefore = "not called";
    int numberGiven = 0;
    std::function<void()> whileCalled;
};

class CallTest : public testing::Test {
protected:
    ~CallTest() override { contract::ClearErrorInfo(); }

    std::shared_ptr<CChattyObject> object = std::make_shared<CChattyObject>();
    std::shared_ptr<CChattyObject> missing;
    std::shared_ptr<Thing> thing;
};

TEST_F(CallTest, CallClearsAnOlderDescriptionFirst) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(Call(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
    EXPECT_EQ(object->descriptionBefore, "");
    EXPECT_EQ(object->numberGiven, 7);
    EXPECT_EQ(thing, object->toDeliver);
}

TEST_F(CallTest, FailingCallKeepsItsStatusAndDescription) {
    object->status = kFailure;
    EXPECT_EQ(Call(object, &CChattyObject::Obtain, 7, thing), kFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "so it is");
}

TEST_F(CallTest, CallOnNothingFailsWithoutDescription) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(Call(missing, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(CallTest, CallMayDeliverNull) {
    object->toDeliver.reset();
    EXPECT_EQ(Call(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
}

TEST_F(CallTest, ObjectLivesUntilItsCallReturns) {
    const std::weak_ptr<CChattyObject> watched = object;
    bool livedOn = false;
    object->whileCalled = [&] {
        object.reset();
        livedOn = !watched.expired();
    };
    EXPECT_EQ(Call(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
    EXPECT_TRUE(livedOn);
    EXPECT_TRUE(watched.expired());
}

TEST_F(CallTest, ObtainDeliversTheObject) {
    EXPECT_EQ(Obtain(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
    EXPECT_EQ(thing, object->toDeliver);
    EXPECT_EQ(object->numberGiven, 7);
}

TEST_F(CallTest, ObtainOfNullFailsWithInvalidPointerAndNoDescription) {
    object->toDeliver.reset();
    EXPECT_EQ(Obtain(object, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(CallTest, ObtainThatFailsKeepsItsStatusAndDescription) {
    object->status = kFailure;
    EXPECT_EQ(Obtain(object, &CChattyObject::Obtain, 7, thing), kFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "so it is");
}

TEST_F(CallTest, ObtainFromNothingFailsWithInvalidPointer) {
    EXPECT_EQ(Obtain(missing, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
}

TEST_F(CallTest, QueryOfNullFailsWithNoSuchInterfaceAndNoDescription) {
    object->toDeliver.reset();
    EXPECT_EQ(Query(object, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004002));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(CallTest, QueryThatFailsKeepsItsStatusAndDescription) {
    object->status = kFailure;
    EXPECT_EQ(Query(object, &CChattyObject::Obtain, 7, thing), kFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "so it is");
}

TEST_F(CallTest, QueryOfNothingFailsWithInvalidPointer) {
    EXPECT_EQ(Query(missing, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
}

}
}
