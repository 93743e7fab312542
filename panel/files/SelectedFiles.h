#pragma once

#include "panel/control/PanelView.h"
#include "panel/files/FileRowKey.h"

#include <string>
#include <vector>

namespace panel {

/// The keys of the files selected in the file list, in list order.
std::vector<FileRowKey> SelectedKeys(const CPanelView& view);

struct SelectedFile {
    std::string name;
    FileRowKey key;
};

/// The same with their names. A snapshot: an event may refill the list while a command works.
std::vector<SelectedFile> SelectedFiles(const CPanelView& view);

}
