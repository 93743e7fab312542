#include "panel/files/ListingRun.h"

#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"
#include "panel/control/VersionNumber.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileCells.h"
#include "panel/files/FileRowKey.h"

namespace panel {

using contract::IFileInfo;
using contract::Status;

namespace {

constexpr std::size_t kLongestCell = 256;
/// Its version is that of the update package last installed on the device.
constexpr std::string_view kPackageVersionFile = "version.fia";

}

CListingRun::CListingRun(PanelServices& services, const std::uint64_t& latestFill,
                         std::optional<std::string_view> selectName)
    : m_services(services),
      m_view(services.view),
      m_latestFill(latestFill),
      m_thisFill(latestFill),
      m_selectName(selectName),
      m_list(services.view[kFileList]) {}

bool CListingRun::ListFiles() {
    std::shared_ptr<contract::IFileListing> listing;
    const bool hasCount =
        MayGoOn(Obtain(m_services.device.Control(),
                       &contract::IProgrammingDeviceControl::GetFileListing, listing),
                "File listing query failed") &&
        MayGoOn(Call(listing, &contract::IFileListing::GetFileCount, m_count),
                "Cannot get the count of files");
    if (!hasCount) {
        return false;
    }
    // Devices count their files from 1.
    for (std::int32_t i = 0; i < m_count; ++i) {
        if (!ListFile(listing, i + 1)) {
            return false;
        }
    }
    return true;
}

bool CListingRun::ListFile(const std::shared_ptr<contract::IFileListing>& listing,
                           std::int32_t index) {
    File file;
    m_name.clear();
    const bool hasName =
        MayGoOn(m_calls.Obtain(listing, &contract::IFileListing::GetFileInfo, index, file.info),
                "Cannot get info about a file") &&
        MayGoOn(m_calls.Call(file.info, &IFileInfo::GetName, m_name),
                "Cannot get name of the file");
    if (!hasName) {
        return false;
    }
    const std::string_view name = CutToBytes(m_name, kLongestCell);
    if (name.empty()) {
        return true;
    }
    file.isPackageVersion = EqualsIgnoringCase(name, kPackageVersionFile);
    // Nameless files take no row, so a row's index is the list's to tell.
    const int row = m_view->InsertRow(m_list, index - 1, name);
    if (m_selectName && EqualsIgnoringCase(*m_selectName, name)) {
        m_rowToSelect = row;
    }
    return FillRow(row, file);
}

bool CListingRun::FillRow(int row, File& file) {
    if (!FillCells(row, file)) {
        return false;
    }
    m_view->SetRowKey(m_list, row, MakeFileRowKey(file.type, file.location, file.id));
    return true;
}

bool CListingRun::FillCells(int row, File& file) {
    const auto show = [&](FileColumn column, const char* failureText, auto read, auto& value,
                          auto toText) {
        if (!MayGoOn(m_calls.Call(file.info, read, value), failureText)) {
            return false;
        }
        m_view->SetCell(m_list, row, static_cast<int>(column), toText());
        return true;
    };
    CellBuffer buffer;
    return show(FileColumn::Type, "Cannot get type of the file", &IFileInfo::GetType, file.type,
                [&] { return FileTypeText(file.type); }) &&
           show(FileColumn::Id, "Cannot get ID of the file", &IFileInfo::GetId, file.id,
                [&] { return NumberText(file.id, buffer); }) &&
           show(FileColumn::Version, "Cannot get version of the file", &IFileInfo::GetVersion,
                file.version, [&] { return TakeVersion(file); }) &&
           show(FileColumn::Size, "Cannot get size of the file", &IFileInfo::GetSize,
                file.sizeBytes, [&] { return NumberText(file.sizeBytes, buffer); }) &&
           show(FileColumn::Location, "Cannot get file location", &IFileInfo::GetLocation,
                file.location, [&] { return FileLocationText(file.location, buffer); }) &&
           show(FileColumn::Generation, "Cannot get generation of the file",
                &IFileInfo::GetGeneration, file.generation,
                [&] { return FileGenerationText(file.generation, buffer); });
}

std::string_view CListingRun::TakeVersion(const File& file) {
    const std::string_view version = CutToBytes(file.version, kLongestCell);
    if (file.isPackageVersion) {
        m_services.state.installedPackageVersion = NormalizePackageVersion(version);
    }
    return version;
}

bool CListingRun::ReportFailure(Status status, const char* failureText) {
    m_services.output.ReportError(failureText, LoadPanelString(StringId::PrommerMaintenance),
                                  status);
    return false;
}

void CListingRun::SelectRow() {
    if (m_rowToSelect != kNoRow) {
        m_view->SelectRow(m_list, m_rowToSelect, true);
        m_view->EnsureRowVisible(m_list, m_rowToSelect);
        m_view->SetSelectionMark(m_list, m_rowToSelect);
    } else if (m_count > 0) {
        m_view->SelectRow(m_list, 0, true);
        m_view->SetSelectionMark(m_list, 0);
    }
}

}
