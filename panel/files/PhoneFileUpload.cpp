#include "panel/files/PhoneFileUpload.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileListing.h"
#include "panel/info/FreeMemory.h"

#include <optional>
#include <string>
#include <string_view>

namespace panel {

namespace {

std::optional<std::string_view> FileNameOf(std::string_view path, char separator) {
    const std::size_t last = path.rfind(separator);
    return last == std::string_view::npos ? std::nullopt : std::optional(path.substr(last + 1));
}

}

void CPhoneFileUpload::UploadChosenFile() {
    const std::string path =
        CPhoneFileUploadDialog(m_services.toolkit, m_services.output, m_help, m_choice).Show();
    if (path.empty()) {
        return;
    }
    const BusyCursor busy(m_services.toolkit);
    std::int32_t ignoredResult = 0;
    const contract::Status status =
        Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::UploadPhoneFile,
             path, m_choice.destination, m_choice.method, ignoredResult);
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(StringId::PhoneFileFailed),
                                      LoadPanelString(StringId::PhoneFileUpload), status);
        return;
    }
    m_freeMemory.UpdateFreeMemory();
    m_files.UpdateFileListing(FileNameOf(path, m_services.toolkit.GetPathSeparator()));
}

}
