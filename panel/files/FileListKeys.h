#pragma once

#include "panel/control/PanelServices.h"

#include <cstdint>

namespace panel {

/// Keys of the file list. User-interface thread only.
class CFileListKeys {
public:
    explicit CFileListKeys(PanelServices& services) : m_services(services) {}

    /// Delete and the context-menu key act on the selection and hand the focus back to the list;
    /// every other key is the list's own affair. There is deliberately no key that selects all.
    void OnFileListKeyDown(std::uint16_t virtualKey);

private:
    PanelServices& m_services;
};

}
