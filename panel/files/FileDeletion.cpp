#include "panel/files/FileDeletion.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/Format.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileListing.h"
#include "panel/files/SelectedFiles.h"
#include "panel/info/FreeMemory.h"

namespace panel {

namespace {

constexpr std::size_t kLongestName = 260;
/// Type and identifier that stand for every file.
constexpr std::int32_t kEveryFile = 0;

}

bool CFileDeletion::DeleteSelectedFiles() {
    CPanelView& view = m_services.view;
    const int rowCount = view->GetRowCount(view[kFileList]);
    const std::vector<FileRowKey> selected = SelectedKeys(view);
    const int selectedCount = static_cast<int>(selected.size());
    const std::uint64_t shown = m_files.FillNumber();
    // A device event may refill the list while the question is open; a Yes to files that are no
    // longer shown must not delete others.
    if (selectedCount == 0 || !IsConfirmed(selectedCount, rowCount) ||
        m_files.FillNumber() != shown) {
        return true;
    }
    const BusyCursor busy(m_services.toolkit);
    const bool isDone =
        IsDeletionOfAll(selectedCount, rowCount) ? DeleteAll() : DeletePlanned(selected);
    m_freeMemory.UpdateFreeMemory();
    m_files.UpdateFileListing();
    return isDone;
}

bool CFileDeletion::IsConfirmed(int selectedCount, int rowCount) {
    CPanelView& view = m_services.view;
    const ControlId list = view[kFileList];
    const std::string name = view->GetCell(list, view->GetSelectionMark(list), 0);
    const std::string question =
        DeletionQuestion(selectedCount, rowCount, CutToBytes(name, kLongestName));
    return m_services.output.ShowMessage(question, LoadPanelString(StringId::DeletingFiles),
                                         contract::kSuccess, "", kQuestionStyle) == kYesButton;
}

bool CFileDeletion::DeleteAll() {
    const contract::Status status =
        Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::DeleteFile,
             kEveryFile, kEveryFile);
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(StringId::CannotDeleteFile),
                                      LoadPanelString(StringId::DeletingFiles), status);
    }
    return status.IsSuccess();
}

bool CFileDeletion::DeletePlanned(const std::vector<FileRowKey>& selected) {
    bool isDone = true;
    for (const DeletionGroup& group : PlanDeletion(selected)) {
        // A type that cannot be deleted says nothing about the others.
        isDone = DeleteGroup(group) && isDone;
    }
    return isDone;
}

bool CFileDeletion::DeleteGroup(const DeletionGroup& group) {
    for (const std::int32_t id : group.ids) {
        const contract::Status status =
            Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::DeleteFile,
                 group.type, id);
        if (status.IsFailure()) {
            m_services.output.ReportError(Format(group.failureFormat, long{id}),
                                          LoadPanelString(group.caption), status);
            return false;
        }
    }
    return true;
}

}
