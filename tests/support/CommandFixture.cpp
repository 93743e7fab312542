#include "tests/support/CommandFixture.h"

#include "contract/ErrorInfo.h"

#include <algorithm>

namespace support {

void CommandFixture::Start(const simulator::DeviceDescription& description) {
    StartPanel();
    ConnectDevice(description);
    ForgetWhatWasSeen();
}

void CommandFixture::SelectRows(const std::vector<int>& rows) {
    for (int row = 0; row < RowCount(); ++row) {
        View().SelectRow(panel::kFileList, row, std::ranges::find(rows, row) != rows.end());
    }
    if (!rows.empty()) {
        View().SetSelectionMark(panel::kFileList, rows.back());
    }
}

void CommandFixture::FailCall(const std::string& call, contract::Status status,
                              const std::string& description) {
    device->answer = [=](const std::string& made) {
        if (made != call) {
            return contract::kSuccess;
        }
        contract::SetErrorInfo(description);
        return status;
    };
}

void CommandFixture::TearDown() {
    if (panel) {
        EXPECT_TRUE(State().refreshAllowed);
    }
    PanelFixture::TearDown();
}

}
