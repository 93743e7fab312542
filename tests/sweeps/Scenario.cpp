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
constexpr std::int32_t kUnknownModel = 6;
const std::vector<std::int32_t> kAllModels{1, 2, 3, 4, 5, kUnknownModel};
const std::vector<std::int32_t> kAllModes{1, 2, 3};

const Scenario kScenarios[] = {
    {"Connect", [](IStage& stage) { stage.InsertDevice(); }, Connect, ConnectAgain, kAllModels,
     kAllModes},
    {"Arrival", PrepareArrival, Arrive, ArriveAgain, kAllModels, kAllModes, false, true},
    {"Refresh", RunWithDevice, Arrive, ArriveAgain, kAllModels, kAllModes},
    {"Details", RunWithDevice, PressDetails, ArriveAgain, kKnownModels, kAllModes, true},
};

void DeleteByKey(IStage& stage) {
    constexpr std::uint16_t kDeleteKey = 0x2E;
    stage.SelectRows({1});
    stage.PressKey(kDeleteKey);
}

void DeleteSeveral(IStage& stage) {
    stage.SelectRows({0, 2});
    stage.PressButton(panel::kDeleteButton);
}

void DeleteAll(IStage& stage) {
    stage.SelectRows({0, 1, 2});
    stage.PressButton(panel::kDeleteButton);
}

void UseMenuByKey(IStage& stage) {
    constexpr std::uint16_t kContextMenuKey = 0x5D;
    stage.SelectRows({1});
    stage.PressKey(kContextMenuKey);
}

void UseMenuOnOne(IStage& stage) {
    stage.SelectRows({1});
    stage.RightClick();
}

void UseMenuOnTwo(IStage& stage) {
    stage.SelectRows({0, 1});
    stage.RightClick();
}

void PressUpdate(IStage& stage) { stage.PressButton(panel::kUpdateButton); }
void PressReport(IStage& stage) { stage.PressButton(panel::kReportButton); }
void PressReset(IStage& stage) { stage.PressButton(panel::kResetButton); }
void PressNetwork(IStage& stage) { stage.PressButton(panel::kNetworkButton); }
void PressClose(IStage& stage) { stage.PressButton(panel::kCloseButton); }

/// What a host does for its user after a command went wrong: the device arrives, and the command is
/// given once more.
template <void (*command)(IStage&)>
void GiveAgain(IStage& stage) {
    ArriveAgain(stage);
    command(stage);
}

constexpr std::int32_t kYes = 6;

Answers Choosing(int command) { return {.command = command}; }

const std::vector<std::int32_t> kKrx8Models{1, 2};
const std::vector<std::int32_t> kAllButKrx8Models{3, 4, 5, kUnknownModel};
const std::vector<std::int32_t> kNormal{1};
const std::vector<std::int32_t> kServiceAndMaintenance{2, 3};

template <void (*command)(IStage&)>
Scenario Command(const char* name, const std::vector<std::int32_t>& models,
                 const std::vector<std::int32_t>& modes, const Answers& answers = {}) {
    return {.name = name,
            .setUp = RunWithDevice,
            .action = command,
            .again = GiveAgain<command>,
            .models = models,
            .modes = modes,
            .needsFailedTest = true, // so that Details are enabled at first
            .answers = answers};
}

Scenario Updating(Scenario scenario) {
    scenario.updates = true;
    return scenario;
}

/// The workstation's package is newer than the device's.
Scenario WithNewerPackage(Scenario scenario) {
    scenario.packageVersion = "2.6.0";
    return scenario;
}

/// The offer at a device's arrival is accepted once.
Scenario AcceptedOffer() {
    Scenario scenario =
        Updating(Command<Arrive>("AcceptedOffer", kKnownModels, kAllModes, {.offers = {kYes}}));
    scenario.setUp = PrepareArrival;
    scenario.again = ArriveAgain;
    return WithNewerPackage(scenario);
}

const std::vector<Scenario> kCommandRows{
    Command<DeleteByKey>("DeleteByKey", kAllModels, kAllModes),
    Command<DeleteSeveral>("DeleteSeveral", kAllModels, kNormal),
    Command<DeleteAll>("DeleteAll", kAllModels, kNormal),
    Command<PressReset>("Reset", kAllModels, kAllModes),
    Command<PressReport>("Report", kAllModels, kAllModes),
    Command<PressClose>("Close", kAllModels, kAllModes),
    Updating(Command<PressUpdate>("Update", kAllModels, kAllModes)),
    AcceptedOffer(),
    // The only way to an offer for a device of an unknown model.
    WithNewerPackage(Updating(
        Command<PressReset>("OfferAfterReset", {kUnknownModel}, kAllModes, {.offers = {kYes}}))),
    Command<PressDetails>("Details", {kUnknownModel}, kAllModes),
    Command<PressNetwork>("Network", kAllButKrx8Models, kAllModes),
    Command<PressNetwork>("NetworkFormatting", kAllButKrx8Models, kAllModes,
                          {.network = {.formatsFlash = true, .formatsPcCard = true}}),
    Command<UseMenuOnOne>("PhoneFileUpload", kAllModels, kNormal, Choosing(1)),
    Command<UseMenuOnOne>("PhoneFileUploadOutsideNormal", kKrx8Models, kServiceAndMaintenance,
                          Choosing(1)),
    Command<UseMenuByKey>("DeleteByMenu", kAllModels, kNormal, Choosing(2)),
    Command<UseMenuOnOne>("Move", kAllModels, kNormal, Choosing(3)),
    Command<UseMenuOnTwo>("MoveSeveral", kAllButKrx8Models, kNormal, Choosing(4)),
    Command<UseMenuOnOne>("FpgaCodeUpload", kKrx8Models, kAllModes, Choosing(5)),
    Command<UseMenuOnOne>("ApplicationUpload", kKrx8Models, kAllModes, Choosing(6)),
    Command<UseMenuOnOne>("ApplicationUploadViaRs232", kKrx8Models, kAllModes, Choosing(7)),
    Command<UseMenuOnOne>("Krx10ImageUpload", {3}, kAllModes, Choosing(8)),
    Command<UseMenuOnOne>("Krx20ImageUpload", {4, 5}, kAllModes, Choosing(9)),
    Command<UseMenuByKey>("SelectAll", kAllModels, kNormal, Choosing(10)),
};

/// Without a state of the connection in between, so that what was enabled stays enabled.
void RunWithDeviceThatBecomesUnknown(IStage& stage) {
    RunWithDevice(stage);
    stage.TellType(kUnknownModel);
    Arrive(stage);
}

/// With the unknown model, which comes to its commands in another way, in rows of its own.
std::vector<Scenario> WithUnknownApart(const std::vector<Scenario>& rows) {
    std::vector<Scenario> scenarios;
    for (Scenario row : rows) {
        const bool isForUnknown = std::erase(row.models, kUnknownModel) > 0;
        if (!row.models.empty()) {
            scenarios.push_back(row);
        }
        if (isForUnknown) {
            row.models = {kUnknownModel};
            row.setUp = RunWithDeviceThatBecomesUnknown;
            row.becomesUnknown = true;
            scenarios.push_back(row);
        }
    }
    return scenarios;
}

const std::vector<Scenario> kCommands = WithUnknownApart(kCommandRows);

simulator::StoredFile InRam(simulator::StoredFile file) {
    file.location = simulator::kInRam;
    return file;
}

simulator::StoredFile FileOnPcCard() {
    simulator::StoredFile file = support::File("omega.bin", 21, 70000, "4.4");
    file.location = simulator::kOnPcCard;
    file.generation = 4;
    return file;
}

}

std::span<const Scenario> Scenarios() { return kScenarios; }

std::span<const Scenario> Commands() { return kCommands; }

bool PollsAtFirst(const simulator::DeviceDescription& device) {
    return device.mode != simulator::kServiceMode;
}

simulator::DeviceDescription MakeDevice(const Scenario& scenario, std::int32_t model,
                                        std::int32_t mode) {
    simulator::DeviceDescription device =
        support::HealthyDevice(scenario.becomesUnknown ? simulator::kKrx20 : model);
    device.mode = mode;
    device.files = {InRam(support::File("alpha.fia", 19, 1, "1.1")), support::File("", 21, 2),
                    InRam(support::File("Version.FIA", 22, 3, "2.5.13")), FileOnPcCard()};
    device.pcCard = simulator::PcCard{32000000};
    device.software.security = "sec 7.08";
    device.software.fpgaDriver = "fdrv 9.10";
    device.software.mmcrDriver = "mmcr 1.12";
    device.software.usbDeviceFunctionDriver = "udf 1.14";
    device.software.usbHostControllerDriver = "uhc 1.16";
    device.software.bootLoader = "loader 1.18";
    device.software.serviceFpga = "sfpga 1.20";
    if (scenario.needsFailedTest) {
        device.selfTests[contract::SelfTest::Rs232] = 814;
    }
    return device;
}

}
