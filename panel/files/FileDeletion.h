#pragma once

#include "panel/control/PanelServices.h"
#include "panel/files/DeletionPlan.h"
#include "panel/files/FileRowKey.h"

#include <vector>

namespace panel {

class CFileListing;
class CFreeMemory;

/// Deletes the files selected in the file list. User-interface thread only.
class CFileDeletion {
public:
    CFileDeletion(PanelServices& services, CFreeMemory& freeMemory, CFileListing& files)
        : m_services(services), m_freeMemory(freeMemory), m_files(files) {}

    /// Asks the user, deletes, and shows what remains. A failing call is reported and ends the
    /// deletion of its type; the other types go on. False after any failing call, else true, also
    /// when there was nothing to do or the user declined.
    bool DeleteSelectedFiles();

private:
    bool IsConfirmed(int selectedCount, int rowCount);
    bool DeleteAll();
    bool DeletePlanned(const std::vector<FileRowKey>& selected);
    bool DeleteGroup(const DeletionGroup& group);

    PanelServices& m_services;
    CFreeMemory& m_freeMemory;
    CFileListing& m_files;
};

}
