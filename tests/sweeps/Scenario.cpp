#include "tests/sweeps/Scenario.h"

#include "panel/control/PanelTemplate.h"
#include "tests/support/SampleDevices.h"
#include "tests/sweeps/Stage.h"

namespace sweeps {

namespace {

constexpr std::int32_t kReady = 7;

void StartWithoutGo(IStage& stage) {
    stage.SetContextAndRegister();
    stage.CreateView();
    stage.SetSubsystemAccess();
    stage.SetConnection();
}

void Connect(IStage& stage) {
    StartWithoutGo(stage);
    stage.Go();
}

void ConnectAgain(IStage& stage) {
    stage.SetSubsystemAccess();
    stage.SetNoConnection();
    stage.SetConnection();
    stage.Go();
}

void PrepareArrival(IStage& stage) {
    StartWithoutGo(stage);
    stage.InsertDevice();
}

void Arrive(IStage& stage) { stage.RaiseState(contract::kSuccess, kReady); }

void RunWithDevice(IStage& stage) {
    PrepareArrival(stage);
    Arrive(stage);
}

/// Hands over the connection for those runs in which it was taken away.
void ArriveAgain(IStage& stage) {
    stage.SetConnection();
    Arrive(stage);
}

void PressDetails(IStage& stage) { stage.PressButton(panel::kDetailsButton); }

const std::vector<std::int32_t> kKnownModels{1, 2, 3, 4, 5};
const std::vector<std::int32_t> kAllModels{1, 2, 3, 4, 5, 6};
const std::vector<std::int32_t> kAllModes{1, 2, 3};

const Scenario kScenarios[] = {
    {"Connect", [](IStage& stage) { stage.InsertDevice(); }, Connect, ConnectAgain, kAllModels,
     kAllModes},
    {"Arrival", PrepareArrival, Arrive, ArriveAgain, kAllModels, kAllModes, false, true},
    {"Refresh", RunWithDevice, Arrive, ArriveAgain, kAllModels, kAllModes},
    {"Details", RunWithDevice, PressDetails, ArriveAgain, kKnownModels, kAllModes, true},
};

simulator::StoredFile FileOnPcCard() {
    simulator::StoredFile file = support::File("omega.bin", 21, 70000, "4.4");
    file.location = simulator::kOnPcCard;
    file.generation = 4;
    return file;
}

}

std::span<const Scenario> Scenarios() { return kScenarios; }

simulator::DeviceDescription MakeDevice(const Scenario& scenario, std::int32_t model,
                                        std::int32_t mode) {
    simulator::DeviceDescription device = support::HealthyDevice(model);
    device.mode = mode;
    device.files = {support::File("alpha.fia", 19, 1, "1.1"), support::File("", 21, 2),
                    support::File("Version.FIA", 22, 3, "2.5.13"), FileOnPcCard()};
    if (scenario.needsFailedTest) {
        device.selfTests[contract::SelfTest::Rs232] = 814;
    }
    return device;
}

}
