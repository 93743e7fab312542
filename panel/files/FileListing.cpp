#include "panel/files/FileListing.h"

#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileCells.h"
#include "panel/files/ListingRun.h"

namespace panel {

void CFileListing::InsertColumns() {
    CPanelView& view = m_services.view;
    int index = 0;
    for (const ListColumn& column : FileColumns()) {
        view->InsertColumn(view[kFileList], index++, column);
    }
}

void CFileListing::Clear() {
    ++m_fillNumber;
    m_services.view->RemoveAllRows(m_services.view[kFileList]);
}

void CFileListing::UpdateFileListing(std::optional<std::string_view> selectName) {
    COutputArea& output = m_services.output;
    if (!m_services.device.Control()) {
        output.ShowFatalError(LoadPanelString(StringId::PrommerMaintenance));
        return;
    }
    Clear();
    if (m_services.state.deviceMode != DeviceMode::Normal) {
        return;
    }
    output.AppendStatusLine("Updating file listing...");
    CListingRun run(m_services, m_fillNumber, selectName);
    if (run.ListFiles()) {
        run.SelectRow();
        output.AppendStatusLine("File listing updated");
    }
}

}
