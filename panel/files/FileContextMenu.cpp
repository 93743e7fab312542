#include "panel/files/FileContextMenu.h"

#include "contract/device/ExternalStorages.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/Call.h"
#include "panel/control/DeviceControls.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileListing.h"
#include "panel/files/SelectedFiles.h"

#include <algorithm>

namespace panel {

using contract::Status;

namespace {

using enum FileContextMenuCommand;

/// Where the menu opens by keyboard when there is no row in sight to open it at.
constexpr Point kListCorner{2, 3};

/// The status of a system's error number (HRESULT_FROM_WIN32 of winerror.h); 0 stays success.
Status FromSystemError(int error) {
    return error == 0
               ? contract::kSuccess
               : Status::FromBits(0x80070000U | (static_cast<std::uint32_t>(error) & 0xFFFF));
}

bool ConcernsSelection(FileContextMenuCommand command) {
    return command >= Delete && command <= MoveToExternalStorage;
}

bool IsInside(Point point, Size area) {
    return point.x >= 0 && point.y >= 0 && point.x < area.width && point.y < area.height;
}

}

void CFileContextMenu::DisplayAndHandleFileContextMenu(bool fromKeyboard, Point mouse) {
    if (!m_services.device.Control()) {
        m_services.output.ShowFatalError(LoadPanelString(StringId::PrommerMaintenance));
        return;
    }
    const CPanelView& view = m_services.view;
    const std::uint64_t listed = m_files.FillNumber();
    const SelectionSummary selection =
        SummarizeSelection(SelectedKeys(view), view->GetRowCount(view[kFileList]));
    const auto command = AskForCommand(selection, fromKeyboard, mouse);
    // Other files may be listed by now than those that the user has chosen this for.
    if (command && (m_files.FillNumber() == listed || !ConcernsSelection(*command))) {
        Run(*command, selection);
    }
}

std::optional<FileContextMenuCommand>
CFileContextMenu::AskForCommand(const SelectionSummary& selection, bool fromKeyboard, Point mouse) {
    int error = 0;
    const auto menu = m_services.toolkit.CreatePopupMenu(error);
    if (!menu) {
        m_services.output.ShowMessage("Popup menu creation failed",
                                      LoadPanelString(StringId::PrommerMaintenance),
                                      FromSystemError(error), "", kErrorStyle);
        return std::nullopt;
    }
    const PanelState& state = m_services.state;
    const bool hasExternalStorage =
        DependsOnExternalStorage(state.deviceType, selection) && HasExternalStorage();
    const auto items =
        FileMenu({state.deviceType, state.deviceMode, selection, hasExternalStorage});
    return static_cast<FileContextMenuCommand>(
        menu->Show(items, fromKeyboard ? KeyboardPosition() : mouse));
}

bool CFileContextMenu::HasExternalStorage() const {
    std::shared_ptr<contract::IExternalStorages> storages;
    std::int32_t count = 0;
    return Obtain(m_services.device.Control(),
                  &contract::IProgrammingDeviceControl::GetExternalStorages, storages)
               .IsSuccess() &&
           Call(storages, &contract::IExternalStorages::GetCount, count).IsSuccess() && count > 0;
}

Point CFileContextMenu::KeyboardPosition() const {
    const CPanelView& view = m_services.view;
    const ControlId list = view[kFileList];
    const int focused = view->GetFocusedRow(list);
    const std::vector<int> selected = view->GetSelectedRows(list);
    const bool isSelected = std::ranges::find(selected, focused) != selected.end();
    const auto position = view->GetRowPosition(list, isSelected ? focused : 0);
    const bool isInSight = position && IsInside(*position, view->GetListClientSize(list));
    return view->ToScreen(list, isInSight ? *position : kListCorner);
}

void CFileContextMenu::Run(FileContextMenuCommand command, const SelectionSummary& selection) {
    if (const CodeUpload* upload = FindCodeUpload(command)) {
        m_commands.codeUpload.Upload(*upload);
    } else if (command == SelectAll) {
        SelectAllFiles();
    } else if (command >= UploadPhoneFile && command <= MoveToExternalStorage) {
        m_controls.EnableDeviceControls(false);
        RunWithControlsDisabled(command, selection);
        m_controls.EnableDeviceControls(true);
    }
}

void CFileContextMenu::RunWithControlsDisabled(FileContextMenuCommand command,
                                               const SelectionSummary& selection) {
    if (command == UploadPhoneFile) {
        m_commands.phoneUpload.UploadChosenFile();
    } else if (command == Delete) {
        m_commands.deletion.DeleteSelectedFiles();
    } else {
        m_commands.move.MoveSelectedFiles(selection.commonType, command == MoveToFlash
                                                                    ? FileLocation::Flash
                                                                    : FileLocation::PcCard);
    }
}

void CFileContextMenu::SelectAllFiles() {
    const CPanelView& view = m_services.view;
    const ControlId list = view[kFileList];
    for (int row = 0; row < view->GetRowCount(list); ++row) {
        view->SelectRow(list, row, true);
    }
}

}
