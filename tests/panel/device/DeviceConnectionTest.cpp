#include "panel/device/DeviceConnection.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "panel/device/ProgrammingDeviceControlEvents.h"
#include "tests/support/PanelFixture.h"

#include <memory>
#include <ostream>
#include <vector>

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

/// A host that notes for what it is asked and has nothing.
class CEmptyAccess final : public contract::ISubsystemAccess {
public:
    Status GetSubsystem(const contract::Guid& identifier,
                        std::shared_ptr<contract::ISubsystem>&) override {
        identifiers.push_back(identifier);
        return contract::kUnspecifiedFailure;
    }

    std::vector<contract::Guid> identifiers;
};

class DeviceConnectionTest : public PanelFixture {
protected:
    void TearDown() override {
        connection.reset();
        access.reset();
        PanelFixture::TearDown();
    }
    Status Connect(const std::shared_ptr<contract::ISubsystemAccess>& to) {
        return connection->ConnectToProgrammingDeviceSubsystem(
            to, std::make_shared<CProgrammingDeviceControlEvents>(panel));
    }

    std::shared_ptr<contract::ISubsystemAccess> access = interception.Wrap(host.SubsystemAccess());
    std::unique_ptr<CDeviceConnection> connection = std::make_unique<CDeviceConnection>();
};

TEST_F(DeviceConnectionTest, NewConnectionHoldsNothing) {
    EXPECT_EQ(connection->Access(), nullptr);
    EXPECT_EQ(connection->Subsystem(), nullptr);
    EXPECT_EQ(connection->Control(), nullptr);
    connection.reset();
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(DeviceConnectionTest, ConnectObtainsSubsystemAndControlAndSubscribes) {
    EXPECT_EQ(Connect(access), contract::kSuccess);
    EXPECT_EQ(connection->Access(), access);
    EXPECT_NE(connection->Subsystem(), nullptr);
    EXPECT_NE(connection->Control(), nullptr);
    EXPECT_EQ(host.DeviceSubscriberCount(), 1u);
    EXPECT_THAT(TakeCalls(), ElementsAre("SubsystemAccess.GetSubsystem",
                                         "Subsystem.QueryProgrammingDeviceSubsystem",
                                         "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl",
                                         "ProgrammingDeviceControl.QueryBaseObject",
                                         "ProgrammingDeviceControlEvents.FindEventSource",
                                         "ProgrammingDeviceControlEvents.Subscribe"));
}

TEST_F(DeviceConnectionTest, ConnectAsksForTheProgrammingDeviceSubsystem) {
    const auto empty = std::make_shared<CEmptyAccess>();
    EXPECT_EQ(Connect(empty), contract::kUnspecifiedFailure);
    const contract::Guid expected{
        0x492DA5B7, 0xAE9B, 0x4AB6, {0x96, 0x2A, 0x56, 0x37, 0xD9, 0x56, 0x35, 0x37}};
    ASSERT_EQ(empty->identifiers.size(), 1u);
    EXPECT_EQ(empty->identifiers[0], expected);
    EXPECT_EQ(connection->Access(), empty);
}

TEST_F(DeviceConnectionTest, SecondConnectOnlyReplacesTheAccessObject) {
    const auto next = std::make_shared<CEmptyAccess>();
    EXPECT_EQ(Connect(access), contract::kSuccess);
    const auto subsystem = connection->Subsystem();
    const auto control = connection->Control();
    TakeCalls();
    EXPECT_EQ(Connect(next), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(next->identifiers, IsEmpty());
    EXPECT_EQ(connection->Access(), next);
    EXPECT_EQ(connection->Subsystem(), subsystem);
    EXPECT_EQ(connection->Control(), control);
    EXPECT_EQ(host.DeviceSubscriberCount(), 1u);
}

TEST_F(DeviceConnectionTest, AccessObjectThatIsReplacedIsReleased) {
    const auto first = std::make_shared<CEmptyAccess>();
    const auto second = std::make_shared<CEmptyAccess>();
    EXPECT_EQ(Connect(first), contract::kUnspecifiedFailure);
    EXPECT_EQ(first.use_count(), 2);
    EXPECT_EQ(Connect(second), contract::kUnspecifiedFailure);
    EXPECT_EQ(first.use_count(), 1);
    EXPECT_EQ(Connect(nullptr), Status::FromBits(0x80004003));
    EXPECT_EQ(second.use_count(), 1);
}

TEST_F(DeviceConnectionTest, NullAccessAfterConnectingIsAccepted) {
    EXPECT_EQ(Connect(access), contract::kSuccess);
    EXPECT_EQ(Connect(nullptr), contract::kSuccess);
    EXPECT_EQ(connection->Access(), nullptr);
    EXPECT_NE(connection->Control(), nullptr);
}

TEST_F(DeviceConnectionTest, NullAccessServesAsLongAsTheSubsystemIsHeld) {
    faults->Fail({1, "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"});
    EXPECT_EQ(Connect(access), contract::kUnspecifiedFailure);
    TakeCalls();
    EXPECT_EQ(Connect(nullptr), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl",
                                         "ProgrammingDeviceControl.QueryBaseObject",
                                         "ProgrammingDeviceControlEvents.FindEventSource",
                                         "ProgrammingDeviceControlEvents.Subscribe"));
}

TEST_F(DeviceConnectionTest, EndUnsubscribesAndReleasesEverything) {
    EXPECT_EQ(Connect(access), contract::kSuccess);
    TakeCalls();
    connection.reset();
    EXPECT_THAT(TakeCalls(), ElementsAre("ProgrammingDeviceControl.QueryBaseObject",
                                         "ProgrammingDeviceControlEvents.FindEventSource",
                                         "ProgrammingDeviceControlEvents.Unsubscribe"));
    EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
    access.reset();
    EXPECT_EQ(interception.LiveWrappers(), 0u);
}

TEST_F(DeviceConnectionTest, EndWithoutControlCallsNothing) {
    faults->Fail({1, "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"});
    EXPECT_EQ(Connect(access), contract::kUnspecifiedFailure);
    TakeCalls();
    connection.reset();
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

// What a failing step leaves

struct FailingStep {
    const char* operation;
    bool deliversNull;
    std::uint32_t status;
    bool keepsSubsystem;
    bool keepsControl;
    /// Calls made up to and including the failing one, and again by the next attempt.
    std::size_t calls;
    std::size_t callsOfNextAttempt;

    friend std::ostream& operator<<(std::ostream& out, const FailingStep& step) {
        return out << step.operation << (step.deliversNull ? " delivers null" : " fails");
    }
};

class FailingConnectionTest : public DeviceConnectionTest,
                              public testing::WithParamInterface<FailingStep> {
protected:
    void SetUp() override {
        if (GetParam().deliversNull) {
            faults->DeliverNull({1, GetParam().operation});
        } else {
            faults->Fail({1, GetParam().operation}, {.status = Status::FromBits(0x80070005)});
        }
    }
};

TEST_P(FailingConnectionTest, FirstFailingStepEndsTheConnecting) {
    EXPECT_EQ(Connect(access), Status::FromBits(GetParam().status));
    EXPECT_EQ(TakeCalls().size(), GetParam().calls);
    EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
}

TEST_P(FailingConnectionTest, WhatWasObtainedStays) {
    EXPECT_TRUE(Connect(access).IsFailure());
    EXPECT_EQ(connection->Access(), access);
    EXPECT_EQ(connection->Subsystem() != nullptr, GetParam().keepsSubsystem);
    EXPECT_EQ(connection->Control() != nullptr, GetParam().keepsControl);
}

TEST_P(FailingConnectionTest, NextAttemptSkipsWhatIsHeldAndSucceeds) {
    EXPECT_TRUE(Connect(access).IsFailure());
    TakeCalls();
    EXPECT_EQ(Connect(access), contract::kSuccess);
    EXPECT_EQ(TakeCalls().size(), GetParam().callsOfNextAttempt);
    EXPECT_NE(connection->Control(), nullptr);
    // A control that was held already is not subscribed to again.
    EXPECT_EQ(host.DeviceSubscriberCount(), GetParam().keepsControl ? 0u : 1u);
}

TEST_P(FailingConnectionTest, EndCancelsWheneverAControlIsHeld) {
    EXPECT_TRUE(Connect(access).IsFailure());
    TakeCalls();
    connection.reset();
    EXPECT_EQ(TakeCalls().size(), GetParam().keepsControl ? 3u : 0u);
}

constexpr std::uint32_t kDenied = 0x80070005;
constexpr std::uint32_t kPointerMissing = 0x80004003;
constexpr std::uint32_t kInterfaceMissing = 0x80004002;

INSTANTIATE_TEST_SUITE_P(
    Steps, FailingConnectionTest,
    testing::Values(
        FailingStep{"SubsystemAccess.GetSubsystem", false, kDenied, false, false, 1, 6},
        FailingStep{"SubsystemAccess.GetSubsystem", true, kPointerMissing, false, false, 1, 6},
        FailingStep{"Subsystem.QueryProgrammingDeviceSubsystem", false, kDenied, false, false, 2,
                    6},
        FailingStep{"Subsystem.QueryProgrammingDeviceSubsystem", true, kInterfaceMissing, false,
                    false, 2, 6},
        FailingStep{"ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl", false, kDenied, true,
                    false, 3, 4},
        FailingStep{"ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl", true,
                    kPointerMissing, true, false, 3, 4},
        FailingStep{"ProgrammingDeviceControl.QueryBaseObject", false, kDenied, true, true, 4, 0},
        FailingStep{"ProgrammingDeviceControl.QueryBaseObject", true, kInterfaceMissing, true, true,
                    4, 0},
        FailingStep{"ProgrammingDeviceControlEvents.FindEventSource", false, kDenied, true, true, 5,
                    0},
        FailingStep{"ProgrammingDeviceControlEvents.FindEventSource", true, kPointerMissing, true,
                    true, 5, 0},
        FailingStep{"ProgrammingDeviceControlEvents.Subscribe", false, kDenied, true, true, 6, 0}));

}
