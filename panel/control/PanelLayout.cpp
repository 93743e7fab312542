#include "panel/control/PanelLayout.h"

#include "panel/control/PanelTemplate.h"

#include <algorithm>

namespace panel {

namespace {

constexpr Size kSmallestSize{687, 440};

enum class Follows { AnnouncedSize, ClientSize };

constexpr int kKeepHeight = -1;

/// A control that keeps its place and grows to a margin at the right and, if it has one, at the
/// bottom.
struct StretchedControl {
    ControlId id;
    Follows follows;
    int rightMargin;
    int bottomMargin;
};

constexpr StretchedControl kStretchedControls[] = {
    {kProgressGroup, Follows::AnnouncedSize, 11, 45},
    {kFileGroup, Follows::AnnouncedSize, 11, kKeepHeight},
    {kFileList, Follows::AnnouncedSize, 22, kKeepHeight},
    {kStatusLog, Follows::ClientSize, 22, 56},
};

constexpr ControlId kButtonsFromTheRight[] = {kHelpButton,    kCloseButton, kNetworkButton,
                                              kDetailsButton, kResetButton, kReportButton,
                                              kDeleteButton,  kUpdateButton};

constexpr int kButtonHeight = 23;
constexpr int kButtonTopFromBottom = 34;
constexpr int kButtonGap = 5;
constexpr int kButtonRightMargin = 11;
constexpr int kWidestButton = 75;

// Ten although there are eight buttons: the row keeps room at its left end.
constexpr int ButtonWidth(int width) { return std::min((width - 67) / 10, kWidestButton); }

Rectangle Stretch(const StretchedControl& control, Size available, const Rectangle& current) {
    const int height = control.bottomMargin == kKeepHeight
                           ? current.height
                           : available.height - control.bottomMargin - current.y;
    return {current.x, current.y, available.width - control.rightMargin - current.x, height};
}

}

std::vector<Placement> LayOutControls(Size size, Size client,
                                      const std::function<Rectangle(ControlId)>& rectangleOf) {
    std::vector<Placement> placements;
    if (size.width < kSmallestSize.width || size.height < kSmallestSize.height) {
        return placements;
    }
    for (const StretchedControl& control : kStretchedControls) {
        const Size available = control.follows == Follows::ClientSize ? client : size;
        placements.push_back({control.id, Stretch(control, available, rectangleOf(control.id))});
    }
    const int width = ButtonWidth(size.width);
    int left = size.width - kButtonRightMargin - width;
    for (const ControlId id : kButtonsFromTheRight) {
        placements.push_back(
            {id, {left, size.height - kButtonTopFromBottom, width, kButtonHeight}});
        left -= width + kButtonGap;
    }
    return placements;
}

}
