#include "panel/control/CallSeries.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace panel {
namespace {

using contract::Status;

struct Thing {};

/// An object that leaves a description whatever it returns.
class CChattyObject {
public:
    Status Obtain(int number, std::shared_ptr<Thing>& thing) {
        descriptionBefore = contract::TakeErrorInfo();
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
};

class CallSeriesTest : public testing::Test {
protected:
    ~CallSeriesTest() override { contract::ClearErrorInfo(); }

    std::shared_ptr<CChattyObject> object = std::make_shared<CChattyObject>();
    std::shared_ptr<CChattyObject> missing;
    std::shared_ptr<Thing> thing;
    CCallSeries calls;
};

TEST_F(CallSeriesTest, EveryCallClearsTheDescriptionLeftBefore) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(calls.Call(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
    EXPECT_EQ(object->descriptionBefore, "");
    EXPECT_EQ(object->numberGiven, 7);
    EXPECT_EQ(thing, object->toDeliver);
    EXPECT_EQ(calls.Call(object, &CChattyObject::Obtain, 8, thing), contract::kSuccess);
    EXPECT_EQ(object->descriptionBefore, "");
    EXPECT_EQ(object->numberGiven, 8);
}

TEST_F(CallSeriesTest, FailingCallKeepsItsStatusAndDescription) {
    object->status = Status::FromBits(0x80004005);
    EXPECT_EQ(calls.Call(object, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004005));
    EXPECT_EQ(contract::TakeErrorInfo(), "so it is");
}

TEST_F(CallSeriesTest, CallOnNothingFailsWithoutDescription) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(calls.Call(missing, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(CallSeriesTest, ObtainDeliversTheObject) {
    EXPECT_EQ(calls.Obtain(object, &CChattyObject::Obtain, 7, thing), contract::kSuccess);
    EXPECT_EQ(thing, object->toDeliver);
}

TEST_F(CallSeriesTest, ObtainOfNullFailsWithInvalidPointerAndNoDescription) {
    object->toDeliver.reset();
    EXPECT_EQ(calls.Obtain(object, &CChattyObject::Obtain, 7, thing), Status::FromBits(0x80004003));
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

}
}
