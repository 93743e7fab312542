#include "tests/sweeps/ExpectedConnection.h"

#include "tests/sweeps/Expectation.h"

#include <utility>

namespace sweeps {

namespace {

void ExpectContextLeft(CExpectation& panel) {
    if (std::exchange(panel.held.isRegistered, false)) {
        static_cast<void>(panel.Call("Context.Unregister"));
    }
}

void ExpectUnsubscribed(CExpectation& panel, std::uint64_t subscription) {
    const bool hasCookie = panel.held.connectionCookies.erase(subscription) > 0;
    const bool isAsked =
        panel.CallInTurn({"Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                          "ExtConnectionEvents.Unsubscribe"});
    // Without the cookie the host is asked in vain.
    if (isAsked && hasCookie) {
        panel.held.heardConnections.erase(subscription);
    }
}

void ExpectDetachment(CExpectation& panel) {
    auto& held = panel.held;
    if (held.connection == Handed::None) {
        return;
    }
    if (const std::uint64_t subscription = std::exchange(held.subscription, 0)) {
        ExpectUnsubscribed(panel, subscription);
    }
    // A connection that the host has set from inside that stays.
    if (held.subscription == 0) {
        held.connection = Handed::None;
        held.connectionState = false;
    }
}

void ExpectAttachment(CExpectation& panel, Handed connection) {
    auto& held = panel.held;
    const std::uint64_t subscription = ++held.subscriptions;
    held.subscription = subscription;
    held.connection = connection;
    const bool hasState = panel.Call("Connection.QueryConnectionState");
    // A host may take the connection away from inside each of these calls.
    if (held.subscription != subscription) {
        return;
    }
    held.connectionState = hasState;
    const bool isSubscribed =
        panel.CallInTurn({"Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource"}) &&
        panel.Call("ExtConnectionEvents.Subscribe",
                   [&] { held.heardConnections.insert(subscription); });
    if (!isSubscribed) {
        return;
    }
    held.connectionCookies.insert(subscription);
    if (held.subscription != subscription) {
        ExpectUnsubscribed(panel, subscription);
    }
}

}

void ExpectContext(CExpectation& panel, Handed context) {
    if (std::exchange(panel.held.context, context) != context) {
        ExpectContextLeft(panel);
    }
}

contract::Status ExpectRegistration(CExpectation& panel, Handed context) {
    ExpectContext(panel, context);
    ExpectContextLeft(panel);
    if (!panel.Call("Context.Register")) {
        return panel.FailureStatus();
    }
    // One membership at a time, and the last word is the host's.
    if (panel.held.context == context && !panel.held.isRegistered) {
        panel.held.isRegistered = true;
    } else {
        static_cast<void>(panel.Call("Context.Unregister"));
    }
    return contract::kSuccess;
}

contract::Status ExpectSubsystem(CExpectation& panel) {
    auto& held = panel.held;
    if (held.control) {
        return contract::kSuccess;
    }
    if (!held.subsystem) {
        if (!panel.CallInTurn(
                {"SubsystemAccess.GetSubsystem", "Subsystem.QueryProgrammingDeviceSubsystem"})) {
            return panel.FailureStatus();
        }
        held.subsystem = true;
    }
    // A host that hands its access over anew from inside one of these calls has connected the
    // panel by then: one control, one subscription.
    if (held.control) {
        return contract::kSuccess;
    }
    if (!panel.Call("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl")) {
        return panel.FailureStatus();
    }
    if (std::exchange(held.control, true)) {
        return contract::kSuccess;
    }
    const bool isSubscribed =
        panel.CallInTurn({"ProgrammingDeviceControl.QueryBaseObject",
                          "ProgrammingDeviceControlEvents.FindEventSource"}) &&
        panel.Call("ProgrammingDeviceControlEvents.Subscribe", [&] { held.hearsDevice = true; });
    return isSubscribed ? contract::kSuccess : panel.FailureStatus();
}

void ExpectConnection(CExpectation& panel, Handed connection) {
    if (connection == panel.held.connection) {
        return;
    }
    ExpectDetachment(panel);
    if (connection != Handed::None && panel.held.connection == Handed::None) {
        ExpectAttachment(panel, connection);
    }
}

void ExpectEnd(CExpectation& panel) {
    ExpectDetachment(panel);
    if (panel.held.control) {
        static_cast<void>(panel.CallInTurn({"ProgrammingDeviceControl.QueryBaseObject",
                                            "ProgrammingDeviceControlEvents.FindEventSource",
                                            "ProgrammingDeviceControlEvents.Unsubscribe"}));
    }
    ExpectContextLeft(panel);
}

}
