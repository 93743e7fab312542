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
constexpr std::size_t kPackageVersionSize = 80;
/// Its version is that of the update package last installed on the device.
constexpr std::string_view kPackageVersionFile = "version.fia";

}

/// Reads one property of a file and says how its cell shows it.
struct CListingRun::CellStep {
    FileColumn column;
    const char* failureText;
    Status (*read)(File&);
    std::string_view (*text)(const File&, CellBuffer&);
};

const CListingRun::CellStep CListingRun::kCellSteps[] = {
    {FileColumn::Type, "Cannot get type of the file",
     [](File& f) { return Call(f.info, &IFileInfo::GetType, f.type); },
     [](const File& f, CellBuffer&) { return FileTypeText(f.type); }},
    {FileColumn::Id, "Cannot get ID of the file",
     [](File& f) { return Call(f.info, &IFileInfo::GetId, f.id); },
     [](const File& f, CellBuffer& buffer) { return NumberText(f.id, buffer); }},
    {FileColumn::Version, "Cannot get version of the file",
     [](File& f) { return Call(f.info, &IFileInfo::GetVersion, f.version); },
     [](const File& f, CellBuffer&) { return CutToBytes(f.version, kLongestCell); }},
    {FileColumn::Size, "Cannot get size of the file",
     [](File& f) { return Call(f.info, &IFileInfo::GetSize, f.sizeBytes); },
     [](const File& f, CellBuffer& buffer) { return NumberText(f.sizeBytes, buffer); }},
    {FileColumn::Location, "Cannot get file location",
     [](File& f) { return Call(f.info, &IFileInfo::GetLocation, f.location); },
     [](const File& f, CellBuffer& buffer) { return FileLocationText(f.location, buffer); }},
    {FileColumn::Generation, "Cannot get generation of the file",
     [](File& f) { return Call(f.info, &IFileInfo::GetGeneration, f.generation); },
     [](const File& f, CellBuffer& buffer) { return FileGenerationText(f.generation, buffer); }},
};

CListingRun::CListingRun(PanelServices& services, const std::uint64_t& latestFill,
                         std::optional<std::string_view> selectName)
    : m_services(services),
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
        MayGoOn(Obtain(listing, &contract::IFileListing::GetFileInfo, index, file.info),
                "Cannot get info about a file") &&
        MayGoOn(Call(file.info, &IFileInfo::GetName, m_name), "Cannot get name of the file");
    if (!hasName) {
        return false;
    }
    const std::string_view name = CutToBytes(m_name, kLongestCell);
    if (name.empty()) {
        return true;
    }
    // Nameless files take no row, so a row's index is the list's to tell.
    const int row = m_services.view->InsertRow(m_list, index - 1, name);
    if (m_selectName && EqualsIgnoringCase(*m_selectName, name)) {
        m_rowToSelect = row;
    }
    return FillRow(row, file, EqualsIgnoringCase(name, kPackageVersionFile));
}

bool CListingRun::FillRow(int row, File& file, bool isPackageVersion) {
    CellBuffer buffer;
    for (const CellStep& step : kCellSteps) {
        if (!MayGoOn(step.read(file), step.failureText)) {
            return false;
        }
        m_services.view->SetCell(m_list, row, static_cast<int>(step.column),
                                 step.text(file, buffer));
        if (isPackageVersion && step.column == FileColumn::Version) {
            m_services.state.installedPackageVersion = FormatVersion(
                ParseVersion(CutToBytes(file.version, kLongestCell)), kPackageVersionSize);
        }
    }
    m_services.view->SetRowKey(m_list, row, MakeFileRowKey(file.type, file.location, file.id));
    return true;
}

bool CListingRun::MayGoOn(Status status, const char* failureText) {
    if (status.IsFailure()) {
        m_services.output.ReportError(failureText, LoadPanelString(StringId::PrommerMaintenance),
                                      status);
        return false;
    }
    return m_latestFill == m_thisFill;
}

void CListingRun::SelectRow() {
    CPanelView& view = m_services.view;
    if (m_rowToSelect != kNoRow) {
        view->SelectRow(m_list, m_rowToSelect, true);
        view->EnsureRowVisible(m_list, m_rowToSelect);
        view->SetSelectionMark(m_list, m_rowToSelect);
    } else if (m_count > 0) {
        view->SelectRow(m_list, 0, true);
        view->SetSelectionMark(m_list, 0);
    }
}

}
