#include "tests/sweeps/ExpectedRefresh.h"

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedListing.h"
#include "tests/sweeps/ExpectedScopes.h"
#include "tests/sweeps/ExpectedSelfTests.h"
#include "tests/sweeps/ExpectedUpdate.h"

#include <span>
#include <string>

namespace sweeps {

namespace {

constexpr const char* kCaption = "Prommer Maintenance";
constexpr const char* kWarning =
    "The Programming Device is not in Normal mode and therefore some information about the "
    "Programming Device can be incorrect.\n\nThis can be a result of invalid or broken software "
    "of the Programming Device. Please, update the Programming Device";

/// One call, what is reported when it fails, and what it changes when it does not.
struct Step {
    const char* operation;
    const char* failureText;
    void (*onSuccess)(CExpectation&) = [](CExpectation&) {};
};

bool IsKrx8Family(const CExpectation& panel) {
    return panel.kept.type == 1 || panel.kept.type == 2;
}

std::string FreeBytes(const CExpectation& panel, std::uint32_t totalBytes, std::int32_t location) {
    for (const auto& file : panel.Device().files) {
        totalBytes -= file.location == location ? static_cast<std::uint32_t>(file.sizeBytes) : 0;
    }
    return std::to_string(totalBytes);
}

constexpr Step kVersionsAndSizes[] = {
    {"ProgrammingDeviceControl.GetSoftwareInfo", "Software Info request failed"},
    {"ProgrammingDeviceControl.GetHardwareInfo", "Hardware Info request failed"},
    {"SoftwareInfo.GetBootSwVersion", "Boot SW version query failed",
     [](CExpectation& p) { p.SetText(217, p.Device().software.boot); }},
    {"SoftwareInfo.GetApplicationSwVersion", "Application SW version query failed",
     [](CExpectation& p) { p.SetText(219, p.Device().software.application); }},
    {"SoftwareInfo.GetFpgaCodeVersion", "FPGA Code version query failed",
     [](CExpectation& p) { p.SetText(218, p.Device().software.fpgaCode); }},
    {"HardwareInfo.GetHardwareVersion", "Hardware version query failed",
     [](CExpectation& p) { p.SetText(212, p.Device().hardwareVersion); }},
    {"HardwareInfo.GetTotalRamSize", "Total RAM size query failed",
     [](CExpectation& p) { p.SetText(215, std::to_string(p.Device().totalRamBytes)); }},
    {"HardwareInfo.GetTotalFlashSize", "Total Flash size query failed",
     [](CExpectation& p) { p.SetText(213, std::to_string(p.Device().totalFlashBytes)); }},
};

constexpr Step kFreeMemory[] = {
    {"ProgrammingDeviceControl.GetFreeResources", "Free resources query failed"},
    {"FreeResources.GetFreeRamSize", "Free RAM size query failed",
     [](CExpectation& p) { p.SetText(216, FreeBytes(p, p.Device().totalRamBytes, 1)); }},
    {"FreeResources.GetFreeFlashSize", "Free Flash size query failed",
     [](CExpectation& p) { p.SetText(214, FreeBytes(p, p.Device().totalFlashBytes, 2)); }},
};

constexpr Step kNetwork[] = {
    {"ProgrammingDeviceSubsystem.GetKrx10Control", "Krx10Control feature get failed"},
    {"Krx10Control.GetCommunicationConfiguration",
     "KRX-10 Communication configuration query failed"},
    {"Krx10CommunicationConfiguration.QueryCommunicationConfiguration2",
     "IKrx10CommunicationConfiguration2 interface query failed"},
    {"Krx10CommunicationConfiguration2.GetIpAddress", "IP address query failed",
     [](CExpectation& p) { p.SetText(244, p.Device().network.ipAddress); }},
    {"Krx10CommunicationConfiguration2.GetIpAddressValue",
     "Querying of IP address as a 32-bit integer failed",
     [](CExpectation& p) { p.kept.ipAddress = p.Device().network.ipAddressValue; }},
    {"Krx10CommunicationConfiguration2.GetSubnetMask", "Subnet mask getting failed",
     [](CExpectation& p) { p.kept.subnetMask = p.Device().network.subnetMask; }},
    {"Krx10CommunicationConfiguration2.GetGateway", "Gateway address getting failed",
     [](CExpectation& p) { p.kept.gateway = p.Device().network.gateway; }},
    {"Krx10CommunicationConfiguration2.GetUseDhcp", "DHCP use getting failed",
     [](CExpectation& p) { p.kept.useDhcp = p.Device().network.useDhcp; }},
    {"Krx10CommunicationConfiguration2.GetDescription", "KRX-10 description query failed",
     [](CExpectation& p) { p.kept.description = p.Device().network.description; }},
    {"Krx10CommunicationConfiguration2.GetMacAddress", "MAC address query failed",
     [](CExpectation& p) { p.SetText(211, p.Device().network.macAddress); }},
};

constexpr Step kSerialNumber[] = {
    {"HardwareInfo.GetSerialNumber", "Serial Number query failed",
     [](CExpectation& p) { p.SetText(211, std::to_string(p.Device().serialNumber)); }},
};

bool Expect(CExpectation& panel, std::span<const Step> steps, const char* caption) {
    for (const Step& step : steps) {
        if (!panel.Call(step.operation)) {
            panel.Report(step.failureText, caption);
            return false;
        }
        step.onSuccess(panel);
    }
    return true;
}

void ExpectDeviceInformation(CExpectation& panel) {
    panel.WriteLine("Querying hardware and software info from Programming Device");
    if (!Expect(panel, kVersionsAndSizes, kCaption)) {
        return;
    }
    ExpectFreeMemory(panel);
    const bool isNetworked = panel.kept.type >= 3 && panel.kept.type <= 5;
    Expect(panel, isNetworked ? std::span<const Step>(kNetwork) : kSerialNumber, kCaption);
}

void ExpectModeKnown(CExpectation& panel) {
    const auto answer = [&] { panel.RaiseMode(panel.Device().mode); };
    if (panel.kept.mode == 0 && !panel.Call("ProgrammingDeviceControl.RequestMode", answer)) {
        panel.Report("Programming Device Mode query failed", kCaption);
    }
}

void ExpectEverythingReadAnew(CExpectation& panel) {
    const CPartOfRefresh part(panel);
    for (const panel::ControlId id : {211, 212, 217, 218, 219, 244}) {
        panel.SetText(id, "");
    }
    for (const panel::ControlId id : {213, 214, 215, 216}) {
        panel.SetText(id, "0");
    }
    ExpectListCleared(panel);
    const bool havePassed = ExpectSelfTestQuery(panel);
    panel.SetText(221, havePassed ? "TEST OK" : "Some tests failed");
    panel.Enable(222, !havePassed);
    ExpectModeKnown(panel);
    ExpectDeviceInformation(panel);
    panel.kept.packageVersion.clear();
    if (panel.kept.mode != 1) {
        panel.Warn(kWarning, kCaption);
    }
    ExpectListing(panel);
}

}

void ExpectFreeMemory(CExpectation& panel) {
    if (IsKrx8Family(panel) && panel.kept.mode != 1) {
        panel.SetText(216, "0");
        panel.SetText(214, "0");
        return;
    }
    panel.WriteLine("Querying free memory resources");
    Expect(panel, kFreeMemory, "Update Free memory");
}

void ExpectRefresh(CExpectation& panel) {
    if (!panel.kept.refreshAllowed) {
        return;
    }
    const CExpectedCursor cursor(panel);
    ExpectEverythingReadAnew(panel);
    ExpectUpdateCheck(panel);
    ExpectControlsEnabled(panel, true);
}

void ExpectTypeRead(CExpectation& panel) {
    if (!panel.held.control) {
        return;
    }
    if (!panel.Call("ProgrammingDeviceControl.GetHardwareInfo")) {
        panel.Report("Failed to read the Programming Device hardware info", kCaption);
        return;
    }
    if (!panel.Call("HardwareInfo.GetDeviceType")) {
        panel.Report("Failed to read the Programming Device type", kCaption);
        return;
    }
    panel.kept.type = panel.ToldType();
    if (panel.kept.type >= 1 && panel.kept.type <= 5) {
        ExpectRefresh(panel);
    } else {
        panel.Warn("Wrong prommer type detected.", kCaption);
    }
}

void ExpectControlsEnabled(CExpectation& panel, bool enable) {
    constexpr const char* kTitles[] = {"KRX-8 Info", "KRX-8 Info", "KRX-10 Info", "KRX-20 Info",
                                       "KRX-21 Info"};
    const std::int32_t type = panel.kept.type;
    panel.SetText(201, type >= 1 && type <= 5 ? kTitles[type - 1] : "KRX-unknown");
    for (const panel::ControlId id : {245, 244, 246}) {
        panel.Enable(id, enable && !IsKrx8Family(panel));
    }
    for (const panel::ControlId id : {224, 226, 227, 228, 229}) {
        panel.Enable(id, enable);
    }
    if (!enable) {
        panel.Enable(222, false);
    }
}

}
