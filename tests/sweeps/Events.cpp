#include "tests/sweeps/Events.h"

#include "tests/sweeps/Stage.h"

namespace sweeps {

namespace {

constexpr auto kFailure = contract::kUnspecifiedFailure;

constexpr Event kEvents[] = {
    {"ModeChanged(1)", [](IStage& stage) { stage.RaiseMode(1); }, true},
    {"ModeChanged(2)", [](IStage& stage) { stage.RaiseMode(2); }, true},
    {"ModeChanged(7)", [](IStage& stage) { stage.RaiseMode(7); }, true},
    {"DeviceMessage", [](IStage& stage) { stage.RaiseMessage("Erasing", 1, 3); }},
    {"state 5", [](IStage& stage) { stage.RaiseState(contract::kSuccess, 5); }},
    {"state 7", [](IStage& stage) { stage.RaiseState(contract::kSuccess, 7); }},
    // All that a panel takes no notice of, in one go.
    {"ignored events",
     [](IStage& stage) {
         stage.RaiseDeviceEvent3();
         stage.RaiseConnectionEvent2();
         stage.RaiseState(contract::kSuccess, 6);
         stage.RaiseState(kFailure, 5);
         stage.RaiseState(kFailure, 7);
     }},
};

constexpr Event kInterventions[] = {
    {"DestroyView", [](IStage& stage) { stage.DestroyView(); }},
    {"release of the panel", [](IStage& stage) { stage.ReleasePanel(); }},
    {"SetConnection(null)", [](IStage& stage) { stage.SetNoConnection(); }},
    {"another SetSubsystemAccess", [](IStage& stage) { stage.SetOtherSubsystemAccess(); }},
};

constexpr Event kRepetitions[] = {
    {"SetContextAndRegister", [](IStage& stage) { stage.SetContextAndRegister(); }},
    {"another SetContextAndRegister", [](IStage& stage) { stage.SetOtherContextAndRegister(); }},
    {"another SetContext", [](IStage& stage) { stage.SetOtherContext(); }},
    {"CreateView", [](IStage& stage) { stage.CreateView(); }},
    {"another SetConnection", [](IStage& stage) { stage.SetOtherConnection(); }},
    {"Go", [](IStage& stage) { stage.Go(); }},
};

}

std::span<const Event> DeviceAndConnectionEvents() { return kEvents; }

std::span<const Event> HostInterventions() { return kInterventions; }

std::span<const Event> HostRepetitions() { return kRepetitions; }

std::vector<const Event*> EventsAndInterventions() {
    std::vector<const Event*> all;
    for (const auto events :
         {DeviceAndConnectionEvents(), HostInterventions(), HostRepetitions()}) {
        for (const Event& event : events) {
            all.push_back(&event);
        }
    }
    return all;
}

}
