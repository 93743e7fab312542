#pragma once

#include "panel/control/PanelServices.h"
#include "panel/files/PhoneFileUploadDialog.h"

namespace panel {

class CFileListing;
class CFreeMemory;
class CHelp;

/// Uploads a phone code file. User-interface thread only.
class CPhoneFileUpload {
public:
    CPhoneFileUpload(PanelServices& services, CHelp& help, CFreeMemory& freeMemory,
                     CFileListing& files)
        : m_services(services), m_help(help), m_freeMemory(freeMemory), m_files(files) {}

    /// Lets the user choose a file and how to upload it, uploads it and shows it selected. A
    /// failure is reported and changes nothing that is shown. Phone polling goes on and device
    /// events may start a refresh: a phone file does not disturb the device's own software.
    void UploadChosenFile();

private:
    PanelServices& m_services;
    CHelp& m_help;
    CFreeMemory& m_freeMemory;
    CFileListing& m_files;
    PhoneFileUploadChoice m_choice;
};

}
