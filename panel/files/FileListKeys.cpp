#include "panel/files/FileListKeys.h"

#include "panel/control/DialogHandler.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/Trace.h"
#include "panel/files/FileContextMenu.h"
#include "panel/files/FileDeletion.h"

namespace panel {

void CFileListKeys::OnFileListKeyDown(std::uint16_t virtualKey) {
    Trace(m_services.toolkit, "CKRX8Maintenance::OnFileListKeyDown: key 0x%hX pressed\n",
          virtualKey);
    if (virtualKey == kDeleteKey) {
        m_deletion.DeleteSelectedFiles();
    } else if (virtualKey == kContextMenuKey) {
        m_menu.DisplayAndHandleFileContextMenu(true);
    } else {
        return;
    }
    m_services.view->SetFocus(m_services.view[kFileList]);
}

}
