#include "fuzz/support/SoundView.h"

#include "fuzz/support/Require.h"
#include "fuzz/support/Utf8Oracle.h"
#include "panel/control/PanelTemplate.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

namespace fuzz {

namespace {

using headless::CHeadlessView;
using panel::ControlId;
using panel::DeviceType;

constexpr int kColumns = 7;
/// What a log line may have of UTF-8; each byte that is none is shown as three.
constexpr std::size_t kLongestLine = 260;
constexpr std::size_t kLongestCell = 256;
constexpr std::size_t kShownBytes = 3;

constexpr ControlId kTextFields[] = {
    panel::kInfoGroup,     panel::kSerialNumberField, panel::kHardwareField,
    panel::kBootSwField,   panel::kFpgaField,         panel::kApplicationSwField,
    panel::kSelfTestField, panel::kIpAddressField,    panel::kTaskLabel};
constexpr ControlId kNumberFields[] = {panel::kFlashSizeField, panel::kFreeFlashField,
                                       panel::kRamSizeField, panel::kFreeRamField};
constexpr ControlId kDeviceControls[] = {panel::kFileList, panel::kUpdateButton,
                                         panel::kDeleteButton, panel::kReportButton,
                                         panel::kResetButton};
constexpr ControlId kNetworkControls[] = {panel::kIpAddressLabel, panel::kIpAddressField,
                                          panel::kNetworkButton};

void RequireFields(const CHeadlessView& view) {
    for (const ControlId field : kTextFields) {
        Require(IsUtf8(view.GetText(field)), "a field is UTF-8");
    }
    for (const ControlId field : kNumberFields) {
        const std::string text = view.GetText(field);
        Require(text.find_first_not_of("0123456789") == std::string::npos, "a size is digits");
    }
    const std::string tests = view.GetText(panel::kSelfTestField);
    Require(tests.empty() || tests == "TEST OK" || tests == "Some tests failed",
            "the self-tests have passed or not");
}

void RequireRows(const CHeadlessView& view) {
    const int count = view.GetRowCount(panel::kFileList);
    std::set<std::uint32_t> keys;
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const std::string cell = view.GetCell(panel::kFileList, row, column);
            Require(IsUtf8(cell), "a cell is UTF-8");
            Require(cell.size() <= kLongestCell * kShownBytes, "a cell is cut");
        }
        Require(!view.GetCell(panel::kFileList, row, 0).empty(), "a row has a name");
        Require(keys.insert(view.GetRowKey(panel::kFileList, row)).second, "a file has one row");
    }
    for (const int row : view.GetSelectedRows(panel::kFileList)) {
        Require(row >= 0 && row < count, "what is selected is there");
    }
    Require(view.GetSelectionMark(panel::kFileList) < count, "what is marked is there");
    Require(view.GetFocusedRow(panel::kFileList) < count, "what has the focus is there");
}

void RequireLog(const CHeadlessView& view) {
    for (const std::string& line : view.LogLines(panel::kStatusLog)) {
        Require(IsUtf8(line), "a line is UTF-8");
        Require(line.size() <= kLongestLine * kShownBytes, "a line is cut");
    }
}

bool AreEnabled(const CHeadlessView& view, std::span<const ControlId> controls) {
    const bool isEnabled = view.IsEnabled(controls.front());
    Require(std::ranges::all_of(controls,
                                [&](ControlId id) { return view.IsEnabled(id) == isEnabled; }),
            "controls that belong together are enabled together");
    return isEnabled;
}

void RequireControls(const CHeadlessView& view) {
    const bool hasDevice = AreEnabled(view, kDeviceControls);
    // The address and its label are enabled at first, before any device.
    const bool hasNetwork =
        hasDevice ? AreEnabled(view, kNetworkControls) : view.IsEnabled(panel::kNetworkButton);
    Require(hasDevice || !hasNetwork, "no network without a device");
    Require(hasDevice || !view.IsEnabled(panel::kDetailsButton), "no details without a device");
    Require(view.IsEnabled(panel::kCloseButton), "the panel can be closed");
    Require(view.IsEnabled(panel::kHelpButton), "help can be had");
}

std::string_view Title(DeviceType type) {
    switch (type) {
    case DeviceType::Krx8:
    case DeviceType::Krx8C:
        return "KRX-8 Info";
    case DeviceType::Krx10:
        return "KRX-10 Info";
    case DeviceType::Krx20:
        return "KRX-20 Info";
    case DeviceType::Krx21:
        return "KRX-21 Info";
    }
    return "KRX-unknown";
}

bool Offers(std::span<const panel::MenuItem> items, int command) {
    return std::ranges::find(items, command, &panel::MenuItem::command) != items.end();
}

}

void RequireSoundView(const CHeadlessView& view, const panel::PanelState& state) {
    RequireFields(view);
    RequireRows(view);
    RequireLog(view);
    RequireControls(view);
    Require(state.installedPackageVersion.size() <= 79, "a package version is cut");
    Require(state.network.description.size() <= 110 * kShownBytes, "a description is cut");
}

void RequireControlsOfType(const CHeadlessView& view, DeviceType type) {
    if (view.IsEnabled(panel::kFileList)) {
        const bool isKrx8 = type == DeviceType::Krx8 || type == DeviceType::Krx8C;
        Require(view.IsEnabled(panel::kNetworkButton) == !isKrx8,
                "the network is for all but the KRX-8 family");
        RequireEqual(view.GetText(panel::kInfoGroup), Title(type), "the title names the model");
    }
}

void RequireSoundMenu(std::span<const panel::MenuItem> items, const CHeadlessView& view,
                      const panel::PanelState& state) {
    const bool isKrx8 =
        state.deviceType == DeviceType::Krx8 || state.deviceType == DeviceType::Krx8C;
    const bool isNormal = state.deviceMode == panel::DeviceMode::Normal;
    const bool hasSelection = !view.GetSelectedRows(panel::kFileList).empty();
    Require(Offers(items, 1) == (isKrx8 || isNormal), "files are uploaded in the right mode");
    Require(Offers(items, 2) == hasSelection, "what is selected can be deleted");
    Require(hasSelection || (!Offers(items, 3) && !Offers(items, 4)),
            "nothing is moved without a selection");
    Require(!isKrx8 || !Offers(items, 4), "the KRX-8 family has no memory card");
    for (const int upload : {5, 6, 7}) {
        Require(Offers(items, upload) == isKrx8, "single code files are for the KRX-8 family");
    }
    Require(Offers(items, 8) == (state.deviceType == DeviceType::Krx10), "an image for a KRX-10");
    Require(Offers(items, 9) ==
                (state.deviceType == DeviceType::Krx20 || state.deviceType == DeviceType::Krx21),
            "an image for a KRX-20 or KRX-21");
    Require(Offers(items, 10) == (view.GetRowCount(panel::kFileList) > 0),
            "what there is can be selected");
    for (const panel::MenuItem& item : items) {
        Require((item.command == panel::kNoCommand) == item.text.empty(), "an item has a text");
    }
}

}
