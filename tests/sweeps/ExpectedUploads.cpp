#include "tests/sweeps/ExpectedUploads.h"

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedCommands.h"
#include "tests/sweeps/ExpectedFileDialogs.h"
#include "tests/sweeps/ExpectedListing.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedScopes.h"
#include "tests/sweeps/Files.h"

#include <optional>
#include <string>

namespace sweeps {

namespace {

constexpr const char* kPhoneCaption = "Upload Phone Code file";

struct CodeUpload {
    const char* failureText;
    const char* filterText;
    DialogRows filters;
    const char* kindAndMode;
};

/// Commands 5 to 9.
const CodeUpload kCodeUploads[] = {
    {"FPGA code updating failed",
     "Fpga files (*.bin)|*.bin|All files (*.*)|*.*|",
     {{"Fpga files (*.bin)", "*.bin"}, {"All files (*.*)", "*.*"}},
     ", 0, -1, 0)"},
    {"Application code updating failed",
     "Application files (*.bin)|*.bin|All files (*.*)|*.*|",
     {{"Application files (*.bin)", "*.bin"}, {"All files (*.*)", "*.*"}},
     ", 1, -1, 1)"},
    {"Application code updating failed",
     "Application files (*.bin)|*.bin|All files (*.*)|*.*|",
     {{"Application files (*.bin)", "*.bin"}, {"All files (*.*)", "*.*"}},
     ", 1, -1, 0)"},
    {"KRX-10 software image upload failed",
     "KRX-10 image (*.krx10)|*.krx10|All files (*.*)|*.*|",
     {{"KRX-10 image (*.krx10)", "*.krx10"}, {"All files (*.*)", "*.*"}},
     ", -1, -1, -1)"},
    {"KRX-20 software image upload failed",
     "KRX-20 image (*.krx20)|*.krx20|All files (*.*)|*.*|",
     {{"KRX-20 image (*.krx20)", "*.krx20"}, {"All files (*.*)", "*.*"}},
     ", -1, -1, -1)"},
};

void ExpectCodeUploaded(CExpectation& panel, const CodeUpload& upload) {
    const CExpectedCursor cursor(panel);
    const CExpectedPolling polling(panel, CExpectedPolling::Suspended::AtOnce);
    panel.kept.refreshAllowed = false;
    const bool isDone = panel.Call("ProgrammingDeviceControl.UploadCode", [&] {
        panel.NoteWrite(std::string("UploadCode(") + kChosenPath + upload.kindAndMode);
    });
    panel.kept.refreshAllowed = true;
    if (isDone) {
        ExpectRefresh(panel);
    } else {
        panel.Report(upload.failureText, "Software upload");
    }
}

/// The method comes first, and without it the destination is not looked at. What cannot be read is
/// taken all the same, as -1.
void ExpectOptionsTaken(CExpectation& panel, FileChoice choice) {
    if (choice == FileChoice::WithoutMethod) {
        panel.Warn("Method not selected", kPhoneCaption);
        return;
    }
    const bool isMethodRead = choice != FileChoice::UnreadableMethod;
    if (!isMethodRead) {
        panel.Warn("Upload method retrieving failed", kPhoneCaption);
    }
    panel.uploadMethod = isMethodRead ? 3 : -1;
    if (choice == FileChoice::WithoutDestination) {
        panel.Warn("Destination not selected", kPhoneCaption);
        return;
    }
    const bool isDestinationRead = choice != FileChoice::UnreadableDestination;
    if (!isDestinationRead) {
        panel.Warn("Destination retrieving failed", kPhoneCaption);
    }
    panel.uploadDestination = isDestinationRead ? 0 : -1;
}

bool ExpectPhoneFileDialog(CExpectation& panel) {
    const bool isTaken = ExpectFileDialog(
        panel, {.title = "Phone file to be uploaded",
                .filters = {{"All files (*.*)", "*.*"},
                            {"Secondary and Algorithm files (*.fia)", "*.fia"},
                            {"Secondary and Algorithm files for QX3 (*.fg)", "*.fg"},
                            {std::to_string(panel.uploadMethod),
                             std::to_string(panel.uploadDestination)}}});
    const FileChoice choice = panel.UserAnswers().file;
    if (choice == FileChoice::Failed) {
        panel.Tell("GetOpenFileName() failed, error code 12290", kPhoneCaption, 0x10);
    } else if (choice != FileChoice::Cancelled) {
        ExpectOptionsTaken(panel, choice);
    }
    return isTaken;
}

void ExpectPhoneFileUpload(CExpectation& panel) {
    if (!ExpectPhoneFileDialog(panel)) {
        return;
    }
    const CExpectedCursor cursor(panel);
    const bool isDone = panel.Call("ProgrammingDeviceControl.UploadPhoneFile", [&] {
        panel.NoteWrite(std::string("UploadPhoneFile(") + kChosenPath + ", " +
                        std::to_string(panel.uploadDestination) + ", " +
                        std::to_string(panel.uploadMethod) + ")");
    });
    if (!isDone) {
        panel.Report("Phone Code file uploading failed", "Phone Code file upload");
        return;
    }
    ExpectFreeMemory(panel);
    ExpectListing(panel, "OMEGA.BIN");
}

void ExpectMove(CExpectation& panel, std::uint32_t type, int destination) {
    const CExpectedCursor cursor(panel);
    std::vector<FileRow> rows;
    if (const Picture* list = panel.List()) {
        for (const int row : list->selection) {
            rows.push_back(list->rows[static_cast<std::size_t>(row)]);
        }
    }
    std::optional<std::string> lastName;
    for (const FileRow& row : rows) {
        lastName = row.cells.front();
        const bool isDone = panel.Call("ProgrammingDeviceControl.MoveFile", [&] {
            panel.NoteWrite("MoveFile(" + std::to_string(type) + ", " +
                            std::to_string(row.key & 0xFFFF) + ", " + std::to_string(destination) +
                            ", 0)");
        });
        if (!isDone) {
            panel.Report("File moving failed", "File move");
            break;
        }
    }
    ExpectFreeMemory(panel);
    ExpectListing(panel, lastName);
}

}

void ExpectCodeUpload(CExpectation& panel, int command) {
    const CodeUpload& upload = kCodeUploads[command - 5];
    const bool isChosen =
        ExpectFileDialog(panel, {.defaultExtension = upload.filterText, .filters = upload.filters});
    if (isChosen) {
        ExpectControlsEnabled(panel, false);
        ExpectCodeUploaded(panel, upload);
        ExpectControlsEnabled(panel, true);
    }
}

void ExpectWithControlsDisabled(CExpectation& panel, int command, std::uint32_t type) {
    ExpectControlsEnabled(panel, false);
    if (command == 1) {
        ExpectPhoneFileUpload(panel);
    } else if (command == 2) {
        ExpectDeletion(panel);
    } else {
        ExpectMove(panel, type, command == 3 ? 2 : 3);
    }
    ExpectControlsEnabled(panel, true);
}

}
