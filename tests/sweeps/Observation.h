#pragma once

#include "contract/Status.h"
#include "frontend/headless/PromptQueue.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/PanelTemplate.h"
#include "tests/support/HostDoubles.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sweeps {

/// The controls whose text, and those whose enable state, belongs to the picture.
inline constexpr panel::ControlId kTextControls[] = {
    panel::kInfoGroup,          panel::kSerialNumberField, panel::kHardwareField,
    panel::kFlashSizeField,     panel::kFreeFlashField,    panel::kRamSizeField,
    panel::kFreeRamField,       panel::kBootSwField,       panel::kFpgaField,
    panel::kApplicationSwField, panel::kSelfTestField,     panel::kIpAddressField};
inline constexpr panel::ControlId kSwitchedControls[] = {
    panel::kIpAddressLabel, panel::kIpAddressField, panel::kNetworkButton, panel::kFileList,
    panel::kUpdateButton,   panel::kDeleteButton,   panel::kReportButton,  panel::kResetButton,
    panel::kDetailsButton,  panel::kHelpButton,     panel::kCloseButton};

struct FileRow {
    std::vector<std::string> cells;
    std::uint32_t key = 0;

    friend bool operator==(const FileRow&, const FileRow&) = default;
};

/// The panel's view as its user sees it, the status log apart.
struct Picture {
    std::map<panel::ControlId, std::string> texts;
    std::map<panel::ControlId, bool> enabled;
    bool isCloseVisible = true;
    /// The progress bar or its label; nothing shows them.
    bool isProgressVisible = false;
    std::vector<FileRow> rows;
    std::vector<int> selection;
    int mark = -1;

    friend bool operator==(const Picture&, const Picture&) = default;
};

/// A call that writes to the device, with whether the wait cursor is shown, the host polls, and a
/// refresh may start; the last is unknown of a panel that its host has released.
std::string DescribeWrite(const std::string& call, bool isBusy, bool isPolling,
                          std::optional<bool> isRefreshAllowed);

/// A view of which nothing has been changed yet.
Picture FreshPicture();

/// What the panel remembers of itself and its device.
struct Kept {
    std::int32_t type = 3;
    std::int32_t mode = 0;
    bool refreshAllowed = true;
    std::uint32_t ipAddress = 0;
    std::uint32_t subnetMask = 0;
    std::uint32_t gateway = 0;
    bool useDhcp = true;
    std::string description;
    std::string packageVersion;

    friend bool operator==(const Kept&, const Kept&) = default;
};

/// What a dialog or a menu opens with, in pairs: label and status of each self-test, name and value
/// of a field, command and text of a menu's line.
using DialogRows = std::vector<std::pair<std::string, std::string>>;

/// Everything that host, device and user see of a stretch of a panel's life.
struct Observation {
    /// What the panel called, in order.
    std::vector<std::string_view> calls;
    /// What its own operations returned.
    std::vector<contract::Status> statuses;
    /// Boxes of the message service, and plain ones.
    std::vector<support::Shown> messages;
    std::vector<headless::ShownBox> boxes;
    /// Dialogs of the panel and of the system, and menus.
    std::vector<DialogRows> dialogs;
    /// The panel behind each box, in the order in which they opened.
    std::vector<Picture> behindBoxes;
    /// Which controls are enabled behind each dialog and menu.
    std::vector<std::map<panel::ControlId, bool>> enabledBehindDialogs;
    /// What would have changed the device, and under what circumstances.
    std::vector<std::string> writes;
    /// The control that a key in the file list leaves the focus on.
    std::vector<panel::ControlId> focused;
    /// What is in the file of the report; none when it was not written.
    std::optional<std::string> report;
    /// Whether the host polls for phones at the end of the stretch.
    bool isPolling = true;
    std::vector<std::string> log;
    /// At the end of the stretch; none when there is no view or no panel any more.
    std::optional<Picture> picture;
    std::optional<Kept> kept;

    friend bool operator==(const Observation&, const Observation&) = default;
};

/// The lines in which two observations differ, for a person to read; empty when they are equal.
std::string Difference(const Observation& expected, const Observation& seen);

/// Likewise for two pictures.
std::string Difference(const Picture& expected, const Picture& seen);

}
