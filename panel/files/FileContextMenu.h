#pragma once

#include "panel/control/Geometry.h"
#include "panel/control/PanelServices.h"
#include "panel/files/CodeUpload.h"
#include "panel/files/FileDeletion.h"
#include "panel/files/FileMove.h"
#include "panel/files/MenuContents.h"
#include "panel/files/PhoneFileUpload.h"

#include <optional>

namespace panel {

class CDeviceControls;
class CFileListing;

/// The commands of the file list's menu other than the menu itself.
struct FileCommands {
    CPhoneFileUpload& phoneUpload;
    CFileDeletion& deletion;
    CFileMove& move;
    CCodeUpload& codeUpload;
};

/// The pop-up menu of the file list. User-interface thread only.
class CFileContextMenu {
public:
    CFileContextMenu(PanelServices& services, CFileListing& files, CDeviceControls& controls,
                     const FileCommands& commands)
        : m_services(services), m_files(files), m_controls(controls), m_commands(commands) {}

    /// Shows the menu that fits device and selection and carries out what the user chooses. By
    /// mouse it opens at `mouse`, a point of the screen; by keyboard at the row with the item
    /// focus. Without a device control a report says so, and a menu that cannot be made is
    /// reported.
    void DisplayAndHandleFileContextMenu(bool fromKeyboard, Point mouse = {});

private:
    /// Nothing when no menu could be made, which is reported.
    std::optional<FileContextMenuCommand> AskForCommand(const SelectionSummary& selection,
                                                        bool fromKeyboard, Point mouse);
    bool HasExternalStorage() const;
    Point KeyboardPosition() const;
    void Run(FileContextMenuCommand command, const SelectionSummary& selection);
    void RunWithControlsDisabled(FileContextMenuCommand command, const SelectionSummary& selection);
    void SelectAllFiles();

    PanelServices& m_services;
    CFileListing& m_files;
    CDeviceControls& m_controls;
    const FileCommands m_commands;
};

}
