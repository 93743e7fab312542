#include "panel/files/FileMove.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileListing.h"
#include "panel/files/SelectedFiles.h"
#include "panel/info/FreeMemory.h"

#include <optional>
#include <string>

namespace panel {

namespace {

constexpr std::size_t kLongestName = 256;
constexpr std::int32_t kReserved = 0;

}

void CFileMove::MoveSelectedFiles(std::int32_t commonType, FileLocation destination) {
    const BusyCursor busy(m_services.toolkit);
    std::optional<std::string> lastName;
    for (const SelectedFile& file : SelectedFiles(m_services.view)) {
        lastName = CutToBytes(file.name, kLongestName);
        const contract::Status status =
            Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::MoveFile,
                 commonType, IdOf(file.key), static_cast<std::int32_t>(destination), kReserved);
        if (status.IsFailure()) {
            m_services.output.ReportError(LoadPanelString(StringId::FileMoveFailed),
                                          LoadPanelString(StringId::FileMove), status);
            break;
        }
    }
    m_freeMemory.UpdateFreeMemory();
    m_files.UpdateFileListing(lastName);
}

}
