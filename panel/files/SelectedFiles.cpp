#include "panel/files/SelectedFiles.h"

#include "panel/control/PanelTemplate.h"

namespace panel {

std::vector<FileRowKey> SelectedKeys(const CPanelView& view) {
    const ControlId list = view[kFileList];
    std::vector<FileRowKey> keys;
    for (const int row : view->GetSelectedRows(list)) {
        keys.push_back(view->GetRowKey(list, row));
    }
    return keys;
}

std::vector<SelectedFile> SelectedFiles(const CPanelView& view) {
    const ControlId list = view[kFileList];
    std::vector<SelectedFile> files;
    for (const int row : view->GetSelectedRows(list)) {
        files.push_back({view->GetCell(list, row, 0), view->GetRowKey(list, row)});
    }
    return files;
}

}
