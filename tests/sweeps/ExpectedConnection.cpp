#include "tests/sweeps/ExpectedConnection.h"

#include "tests/sweeps/Expectation.h"

#include <utility>

namespace sweeps {

namespace {

void ExpectConnectionUnsubscribed(CExpectation& panel) {
    const bool hasCookie = std::exchange(panel.held.connectionCookie, false);
    const bool isAsked =
        panel.CallInTurn({"Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                          "ExtConnectionEvents.Unsubscribe"});
    // Without the cookie the host is asked in vain.
    if (isAsked && hasCookie)
        panel.held.hearsConnection = false;
}

}

contract::Status ExpectSubsystem(CExpectation& panel) {
    auto& held = panel.held;
    if (held.control)
        return contract::kSuccess;
    if (!held.subsystem) {
        if (!panel.CallInTurn(
                {"SubsystemAccess.GetSubsystem", "Subsystem.QueryProgrammingDeviceSubsystem"}))
            return panel.FailureStatus();
        held.subsystem = true;
    }
    // A host that hands its access over anew from inside one of these calls has connected the
    // panel by then: one control, one subscription.
    if (held.control)
        return contract::kSuccess;
    if (!panel.Call("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"))
        return panel.FailureStatus();
    if (std::exchange(held.control, true))
        return contract::kSuccess;
    const bool isSubscribed =
        panel.CallInTurn({"ProgrammingDeviceControl.QueryBaseObject",
                          "ProgrammingDeviceControlEvents.FindEventSource"}) &&
        panel.Call("ProgrammingDeviceControlEvents.Subscribe", [&] { held.hearsDevice = true; });
    return isSubscribed ? contract::kSuccess : panel.FailureStatus();
}

void ExpectAttachment(CExpectation& panel) {
    auto& held = panel.held;
    held.connection = true;
    const std::uint64_t attachment = ++held.attachments;
    const bool hasState = panel.Call("Connection.QueryConnectionState");
    // A host may take the connection away from inside each of these calls.
    if (attachment != held.attachments)
        return;
    held.connectionState = hasState;
    held.connectionCookie =
        panel.CallInTurn({"Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource"}) &&
        panel.Call("ExtConnectionEvents.Subscribe", [&] { held.hearsConnection = true; });
    if (attachment != held.attachments && held.connectionCookie)
        ExpectConnectionUnsubscribed(panel);
}

void ExpectDetachment(CExpectation& panel) {
    auto& held = panel.held;
    if (!held.connection)
        return;
    ++held.attachments;
    ExpectConnectionUnsubscribed(panel);
    held.connection = false;
    held.connectionState = false;
}

void ExpectEnd(CExpectation& panel) {
    ExpectDetachment(panel);
    if (panel.held.control)
        static_cast<void>(panel.CallInTurn({"ProgrammingDeviceControl.QueryBaseObject",
                                            "ProgrammingDeviceControlEvents.FindEventSource",
                                            "ProgrammingDeviceControlEvents.Unsubscribe"}));
    if (panel.held.isRegistered)
        static_cast<void>(panel.Call("Context.Unregister"));
}

}
