#include "panel/files/CodeUpload.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/DeviceControls.h"
#include "panel/control/FileDialog.h"
#include "panel/control/OutputArea.h"
#include "panel/control/RefreshInhibition.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/ProductDetectionDisabler.h"
#include "panel/info/RefreshSequence.h"

#include <algorithm>
#include <iterator>

namespace panel {

namespace {

using enum FileContextMenuCommand;

constexpr std::int32_t kReserved = -1;

constexpr CodeUpload kCodeUploads[] = {
    {UploadFpgaCode, StringId::FpgaCodeFailed, StringId::FpgaCodeFilter, 0, 0},
    {UploadApplicationCode, StringId::ApplicationCodeFailed, StringId::ApplicationCodeFilter, 1, 1},
    {UploadApplicationCodeRs232, StringId::ApplicationCodeFailed, StringId::ApplicationCodeFilter,
     1, 0},
    {UpdateKrx10Software, StringId::Krx10ImageFailed, StringId::Krx10ImageFilter, -1, -1},
    {UpdateKrx20Software, StringId::Krx20ImageFailed, StringId::Krx20ImageFilter, -1, -1},
};

}

const CodeUpload* FindCodeUpload(FileContextMenuCommand command) {
    const auto* upload = std::ranges::find(kCodeUploads, command, &CodeUpload::command);
    return upload == std::end(kCodeUploads) ? nullptr : upload;
}

void CCodeUpload::Upload(const CodeUpload& upload) {
    if (const auto path = ChooseFile(upload.filter)) {
        m_controls.EnableDeviceControls(false);
        UploadFile(upload, *path);
        m_controls.EnableDeviceControls(true);
    }
}

std::optional<std::string> CCodeUpload::ChooseFile(StringId filter) {
    const std::string filterText = LoadPanelString(filter);
    // The default extension is deliberately the filter text, of which a dialog uses the first three
    // letters: users know the names that come of it.
    const FileOutcome outcome = m_services.toolkit.OpenFile(
        {.filters = SplitFilter(filterText), .defaultExtension = filterText});
    const bool isChosen = outcome.kind == FileOutcome::Kind::Accepted && !outcome.path.empty();
    return isChosen ? std::optional(outcome.path) : std::nullopt;
}

void CCodeUpload::UploadFile(const CodeUpload& upload, const std::string& path) {
    const BusyCursor busy(m_services.toolkit);
    const CProductDetectionDisabler disabler(m_services, true);
    contract::Status status;
    {
        const CRefreshInhibition inhibition(m_services.state);
        status = Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::UploadCode,
                      path, upload.codeKind, kReserved, upload.mode);
    }
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(upload.failureText),
                                      LoadPanelString(StringId::SoftwareUpload), status);
        return;
    }
    m_refresh.RefreshDeviceInfo();
}

}
