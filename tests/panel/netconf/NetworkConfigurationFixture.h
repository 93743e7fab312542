#pragma once

#include "tests/support/CommandFixture.h"

#include <cstddef>
#include <utility>

namespace support {

/// The network command on a connected device.
class NetworkConfigurationFixture : public CommandFixture {
protected:
    void SetUp() override { Start(); }

    /// Presses the button, changes what `change` does, and presses OK.
    void Configure(headless::CPromptQueue::DialogScript change = [](headless::CHeadlessView&) {}) {
        desktop->prompts.AnswerDialog(
            [change = std::move(change)](headless::CHeadlessView& dialog) {
                change(dialog);
                dialog.Press(1);
            });
        ASSERT_TRUE(PressButton(panel::kNetworkButton));
    }
    static void NewAddress(headless::CHeadlessView& dialog) { dialog.TypeAddress(247, 0x0A000002); }
    static void FormatBoth(headless::CHeadlessView& dialog) {
        dialog.Toggle(250);
        dialog.Toggle(251);
    }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
};

}
