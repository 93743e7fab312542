#pragma once

#include "panel/control/PanelServices.h"
#include "panel/files/FileCells.h"

#include <cstdint>

namespace panel {

class CFileListing;
class CFreeMemory;

/// Moves the files selected in the file list to another memory of the device. User-interface thread
/// only.
class CFileMove {
public:
    CFileMove(PanelServices& services, CFreeMemory& freeMemory, CFileListing& files)
        : m_services(services), m_freeMemory(freeMemory), m_files(files) {}

    /// Moves one file after the other and then shows where they are, selecting the last one tried.
    /// The first failing call is reported and ends the moving. The device is told `commonType`, not
    /// each file's own: 0, the device's sign for several types, when they differ.
    void MoveSelectedFiles(std::int32_t commonType, FileLocation destination);

private:
    PanelServices& m_services;
    CFreeMemory& m_freeMemory;
    CFileListing& m_files;
};

}
