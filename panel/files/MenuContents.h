#pragma once

#include "panel/control/PopupMenu.h"
#include "panel/device/DeviceMode.h"
#include "panel/device/DeviceType.h"
#include "panel/files/SelectionSummary.h"

#include <vector>

namespace panel {

/// The commands of the file list's menu.
enum class FileContextMenuCommand : int {
    UploadPhoneFile = 1,
    Delete = 2,
    MoveToFlash = 3,
    MoveToExternalStorage = 4,
    UploadFpgaCode = 5,
    UploadApplicationCode = 6,
    UploadApplicationCodeRs232 = 7,
    UpdateKrx10Software = 8,
    UpdateKrx20Software = 9,
    SelectAll = 10,
};

/// What the file list's menu depends on.
struct MenuSituation {
    DeviceType type = DeviceType::Krx10;
    DeviceMode mode = DeviceMode::NotYetKnown;
    SelectionSummary selection;
    bool hasExternalStorage = false;
};

/// Whether the menu depends on the device's external storage, so that it must be asked for.
bool DependsOnExternalStorage(DeviceType type, const SelectionSummary& selection);

/// The menu, top to bottom. An unknown device can get two separators in a row.
std::vector<MenuItem> FileMenu(const MenuSituation& situation);

}
