#include "tests/sweeps/ExpectedUpdate.h"

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedFileDialogs.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedScopes.h"
#include "tests/sweeps/Files.h"

#include <cstdio>
#include <string>

namespace sweeps {

namespace {

constexpr std::int32_t kYes = 6;
constexpr const char* kCaption = "Updating Programming Device software";

/// The three numbers of the workstation's package, with three digits each: comparing such texts
/// compares the versions.
std::string Normalized(const std::string& version) {
    int numbers[3] = {};
    std::sscanf(version.c_str(), "%d.%d.%d", &numbers[0], &numbers[1], &numbers[2]);
    char text[40];
    std::snprintf(text, sizeof text, "%.3d.%.3d.%.3d", numbers[0], numbers[1], numbers[2]);
    return text;
}

DialogRows OfferRows(const std::string& package, const std::string& installed) {
    const bool isNewer = !installed.empty();
    return {{isNewer ? "Newer version of Programming Device software is available."
                     : "No \"version.fia\" file was found from the Programming Device. This may be "
                       "a result of previously failed update.",
             ""},
            {package, isNewer ? installed : "unknown"}};
}

bool ExpectUpdateFrom(CExpectation& panel, const std::string& path) {
    return panel.Call("ProgrammingDeviceControl.UpdateFromIniFile",
                      [&] { panel.NoteWrite("UpdateFromIniFile(" + path + ")"); });
}

void ExpectOutcome(CExpectation& panel, bool isDone) {
    const contract::Status status = panel.UpdateStatus();
    if (!isDone) {
        panel.Report("Programming Device update via INI-file failed", kCaption);
    } else if (status == contract::Status::FromBits(0x041B1010)) {
        panel.Tell("Update via INI-file partially failed: not all files are updated", kCaption,
                   0x30, status);
    } else {
        panel.Tell("Prommer SW updated succesfully.", kCaption, 0x40, status);
    }
}

void ExpectPackageUpdate(CExpectation& panel) {
    const CExpectedCursor cursor(panel);
    const bool isKrx8 = panel.kept.type == 1 || panel.kept.type == 2;
    panel.kept.refreshAllowed = false;
    const CExpectedPolling polling(panel, CExpectedPolling::Suspended::AtOnce);
    const bool isDone = ExpectUpdateFrom(panel, std::string("C:\\Package\\Flash\\") +
                                                    (isKrx8 ? "krx8upd.ini" : "krxxupd.ini"));
    panel.kept.refreshAllowed = true;
    ExpectOutcome(panel, isDone);
}

}

void ExpectUpdateCheck(CExpectation& panel) {
    const std::string package = Normalized(panel.PackageVersion());
    const std::string installed = panel.kept.packageVersion;
    if (!installed.empty()) {
        panel.WriteLine("Currently installed Flash Update Package in Programming Device is: " +
                        installed);
        if (package <= installed) {
            return;
        }
    }
    if (!panel.CanMake(CExpectation::Prompt::Kind::Offer)) {
        return;
    }
    const std::int32_t answer = panel.TakeOfferAnswer();
    panel.OpenDialog(CExpectation::Prompt::Kind::Offer, OfferRows(package, installed), answer);
    if (answer == kYes) {
        ExpectPackageUpdate(panel);
        ExpectRefresh(panel);
    }
}

void ExpectUpdate(CExpectation& panel) {
    panel.kept.refreshAllowed = false;
    const bool isChosen = ExpectFileDialog(
        panel, {.startFolder = "C:\\Package\\Flash",
                .defaultExtension = "ini",
                .filters = {{"Ini files (*.ini)", "*.ini"}, {"All files (*.*)", "*.*"}}});
    if (!isChosen) {
        panel.kept.refreshAllowed = true;
        return;
    }
    const CExpectedCursor cursor(panel);
    ExpectControlsEnabled(panel, false);
    const CExpectedPolling polling(panel, CExpectedPolling::Suspended::AtOnce);
    const bool isDone = ExpectUpdateFrom(panel, kChosenPath);
    ExpectOutcome(panel, isDone);
    panel.kept.refreshAllowed = true;
    if (isDone) {
        ExpectRefresh(panel);
    } else {
        ExpectControlsEnabled(panel, true);
    }
}

}
