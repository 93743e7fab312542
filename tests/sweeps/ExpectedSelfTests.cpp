#include "tests/sweeps/ExpectedSelfTests.h"

#include "contract/device/SelfTestResults.h"
#include "tests/sweeps/Expectation.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace sweeps {

namespace {

constexpr const char* kFailureText = "Cannot get self-test results";
constexpr const char* kResultQuery = "SelfTestResults.GetResult";

struct Test {
    const char* label;
    int position;
};

constexpr Test kTests[] = {
    {"Application SW", 3},
    {"Boot code", 4},
    {"EEPROM", 9},
    {"Ethernet", 18},
    {"External Flash", 7},
    {"External RAM", 6},
    {"Flash", 12},
    {"FPGA", 21},
    {"FPGA Code", 1},
    {"FPGA Load", 2},
    {"USB Host Controller", 16},
    {"MCUSW", 11},
    {"MMCR driver", 14},
    {"ZTWCDC driver", 17},
    {"Paged Flash", 8},
    {"Paged RAM", 13},
    {"RAM", 5},
    {"RS-232", 20},
    {"Secondary and Algorithm files", 10},
    {"USB", 19},
    {"USB Device Function", 15},
};

struct Result {
    std::int32_t code;
    const char* text;
    bool hasPassed;
};

/// Those that the devices of the sweeps have.
constexpr Result kResults[] = {{0, "OK", true}, {814, "Media not usable", false}};

const Result& ResultOf(const CExpectation& panel, const Test& test) {
    const std::int32_t code =
        panel.Device().selfTests.at(static_cast<contract::SelfTest>(test.position));
    return *std::find_if(std::begin(kResults), std::end(kResults),
                         [code](const Result& result) { return result.code == code; });
}

bool ExpectResults(CExpectation& panel) {
    panel.kept.refreshAllowed = false;
    const bool isDone = panel.Call("ProgrammingDeviceControl.GetSelfTestResults");
    panel.kept.refreshAllowed = true;
    if (!isDone) {
        panel.Report(kFailureText, "Prommer Maintenance");
    }
    return isDone;
}

}

bool ExpectSelfTestQuery(CExpectation& panel) {
    panel.WriteLine("Querying self-tests results");
    if (!ExpectResults(panel)) {
        return false;
    }
    for (const Test& test : kTests) {
        if (!panel.Call(kResultQuery)) {
            panel.Report(kFailureText, "Prommer Maintenance");
            return false;
        }
        if (!ResultOf(panel, test).hasPassed) {
            return false;
        }
    }
    return true;
}

void ExpectDetails(CExpectation& panel) {
    if (!ExpectResults(panel) || !panel.CanMake(CExpectation::Prompt::Kind::SelfTests)) {
        return;
    }
    DialogRows rows;
    for (const Test& test : kTests) {
        if (!panel.Call(kResultQuery)) {
            panel.Report(kFailureText, "Self-test results");
            break;
        }
        rows.emplace_back(test.label, ResultOf(panel, test).text);
    }
    panel.OpenDialog(CExpectation::Prompt::Kind::SelfTests, std::move(rows));
}

}
