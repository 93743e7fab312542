#pragma once

#include "panel/control/PanelServices.h"

#include <cstdint>

namespace panel {

class CFileContextMenu;
class CFileDeletion;

/// Keys of the file list. User-interface thread only.
class CFileListKeys {
public:
    CFileListKeys(PanelServices& services, CFileDeletion& deletion, CFileContextMenu& menu)
        : m_services(services), m_deletion(deletion), m_menu(menu) {}

    /// Delete deletes the selection, the context-menu key opens the menu at the focused row, and
    /// both hand the focus back to the list; every other key is the list's own affair. There is
    /// deliberately no key that selects all.
    void OnFileListKeyDown(std::uint16_t virtualKey);

private:
    PanelServices& m_services;
    CFileDeletion& m_deletion;
    CFileContextMenu& m_menu;
};

}
