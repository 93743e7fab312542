#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedCommands.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedScopes.h"

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace sweeps {

namespace {

constexpr const char* kCaption = "KRX-10 Configuration";
constexpr const char* kUnreadable =
    "Cannot get communication configuration parameters of KRX-10 / KRX-20";
constexpr const char* kUnwritable =
    "Configuration of KRX-10's / KRX-20's communication parameters failed";

std::string Hex(std::uint32_t number) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", number);
    return text;
}

/// An address as its field shows it: the first byte is the highest.
std::string Dotted(std::uint32_t address) {
    return std::to_string(address & 0xFF) + "." + std::to_string(address >> 8 & 0xFF) + "." +
           std::to_string(address >> 16 & 0xFF) + "." + std::to_string(address >> 24);
}

DialogRows Rows(const Kept& kept) {
    return {{"IP address", Dotted(kept.ipAddress)}, {"Subnet mask", Dotted(kept.subnetMask)},
            {"Gateway", Dotted(kept.gateway)},      {"DHCP", kept.useDhcp ? "yes" : "no"},
            {"Description", kept.description},      {"Formatting", "none"}};
}

/// What is applied.
struct Values {
    NetworkAnswer answer;
    std::uint32_t ipAddress;
    std::uint32_t subnetMask;
    std::uint32_t gateway;

    bool FormatsAny() const { return answer.formatsFlash || answer.formatsPcCard; }
};

/// One after the other, until one fails.
class CWrites {
public:
    explicit CWrites(CExpectation& panel) : m_panel(panel) {}

    CWrites& Add(bool isDue, const char* operation, const std::string& arguments,
                 const char* failureText) {
        if (m_isDone && isDue && !Write(operation, arguments)) {
            m_panel.Report(failureText, kCaption);
            m_isDone = false;
        }
        return *this;
    }

    bool AreDone() const { return m_isDone; }

private:
    bool Write(std::string_view operation, const std::string& arguments) {
        const std::string name(operation.substr(operation.find('.') + 1));
        return m_panel.Call(operation, [&] { m_panel.NoteWrite(name + arguments); });
    }

    CExpectation& m_panel;
    bool m_isDone = true;
};

bool ExpectConfiguration(CExpectation& panel) {
    if (panel.CallInTurn({"Krx10Control.GetCommunicationConfiguration",
                          "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2"})) {
        return true;
    }
    panel.Report(kUnreadable, kCaption);
    return false;
}

bool ExpectWritten(CExpectation& panel, const Values& values, bool isNewAddress) {
    const bool isFixed = !values.answer.usesDhcp;
    return ExpectConfiguration(panel) &&
           CWrites(panel)
               .Add(isNewAddress, "Krx10CommunicationConfiguration2.SetIpAddress",
                    "(" + Hex(values.ipAddress) + ")", kUnwritable)
               .Add(true, "Krx10CommunicationConfiguration2.SetDhcp",
                    isFixed ? "(false)" : "(true)", kUnwritable)
               .Add(isFixed, "Krx10CommunicationConfiguration2.SetSubnetMask",
                    "(" + Hex(values.subnetMask) + ")", kUnwritable)
               .Add(isFixed, "Krx10CommunicationConfiguration2.SetGateway",
                    "(" + Hex(values.gateway) + ")", kUnwritable)
               .Add(true, "Krx10CommunicationConfiguration2.SetDescription", "(bench 4)",
                    kUnwritable)
               .Add(true, "Krx10CommunicationConfiguration2.ApplyConfiguration", "()", kUnwritable)
               .AreDone();
}

void ExpectReadBack(CExpectation& panel) {
    struct Step {
        const char* operation;
        void (*onSuccess)(CExpectation&);
    };
    constexpr Step kSteps[] = {
        {"Krx10CommunicationConfiguration2.GetIpAddressValue",
         [](CExpectation& p) { p.kept.ipAddress = p.Device().network.ipAddressValue; }},
        {"Krx10CommunicationConfiguration2.GetSubnetMask",
         [](CExpectation& p) { p.kept.subnetMask = p.Device().network.subnetMask; }},
        {"Krx10CommunicationConfiguration2.GetGateway",
         [](CExpectation& p) { p.kept.gateway = p.Device().network.gateway; }},
        {"Krx10CommunicationConfiguration2.GetUseDhcp",
         [](CExpectation& p) { p.kept.useDhcp = p.Device().network.useDhcp; }},
        {"Krx10CommunicationConfiguration2.GetIpAddress",
         [](CExpectation& p) { p.SetText(244, p.Device().network.ipAddress); }},
    };
    if (!ExpectConfiguration(panel)) {
        return;
    }
    for (const Step& step : kSteps) {
        if (!panel.Call(step.operation)) {
            panel.Report(kUnreadable, kCaption);
            return;
        }
        step.onSuccess(panel);
    }
}

void ExpectApplied(CExpectation& panel, const Values& values) {
    const CExpectedPolling::Suspended onRequest = CExpectedPolling::Suspended::OnRequest;
    std::optional<CExpectedCursor> cursor;
    CExpectedPolling polling(panel, onRequest);
    if (values.FormatsAny()) {
        polling.Suspend();
    }
    const bool isFormatted = CWrites(panel)
                                 .Add(values.answer.formatsFlash, "Krx10Control.PrepareMedia",
                                      "(1)", "Flash preparation failed")
                                 .Add(values.answer.formatsPcCard, "Krx10Control.PrepareMedia",
                                      "(2)", "PCCard preparation failed")
                                 .AreDone();
    if (!isFormatted) {
        return;
    }
    const bool isNewAddress = values.ipAddress != panel.kept.ipAddress;
    cursor.emplace(panel);
    if (ExpectWritten(panel, values, isNewAddress)) {
        ExpectReadBack(panel);
    }
}

void ExpectMediaBroughtBack(CExpectation& panel, const NetworkAnswer& answer) {
    const std::uint32_t mask =
        (answer.formatsFlash ? 0x10000u : 0u) | (answer.formatsPcCard ? 0x2000u : 0u);
    CWrites(panel).Add(true, "ProgrammingDeviceControl.RequestMode", "(1)",
                       "Mode changing to Normal mode failed");
    CWrites(panel).Add(true, "ProgrammingDeviceControl.RerunMediaTests", "(" + Hex(mask) + ")",
                       "Re-executing of CF and/or PCCard test(s) failed");
    ExpectRefresh(panel);
}

}

void ExpectNetwork(CExpectation& panel) {
    const NetworkAnswer answer = panel.UserAnswers().network;
    Values values{answer, 0x0200000A, panel.kept.subnetMask, panel.kept.gateway};
    if (answer.usesDhcp) {
        values = {answer, 0xFFFFFFFF, 0, 0};
    }
    if (!panel.CanMake(CExpectation::Prompt::Kind::Network)) {
        return;
    }
    panel.OpenDialog(CExpectation::Prompt::Kind::Network, Rows(panel.kept));
    if (!answer.isConfirmed) {
        return;
    }
    panel.kept.description = "bench 4";
    if (!panel.Call("ProgrammingDeviceSubsystem.GetKrx10Control")) {
        panel.Report("Krx10Control Feature getting failed", kCaption);
    } else {
        panel.kept.refreshAllowed = false;
        ExpectApplied(panel, values);
        panel.kept.refreshAllowed = true;
    }
    if (values.FormatsAny()) {
        ExpectMediaBroughtBack(panel, answer);
    }
}

}
