#pragma once

#include "frontend/headless/HeadlessFileDialog.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/WritingDevice.h"

#include <memory>
#include <string>
#include <vector>

namespace support {

/// A panel connected to a device that only notes what would change it.
class CommandFixture : public PanelFixture {
protected:
    std::shared_ptr<contract::ISubsystemAccess> Access() override { return device; }

    /// Connects a panel to that device, which is in Normal mode with the files alpha.fia (19, 1),
    /// beta.fia (21, 2) and version.fia (22, 3) unless described otherwise.
    void Start(const simulator::DeviceDescription& description);
    void Start(std::int32_t type = simulator::kKrx20) { Start(HealthyDevice(type)); }

    /// Selects those rows of the file list, and no other.
    void SelectRows(const std::vector<int>& rows);
    /// Makes that call fail, leaving a description.
    void FailCall(const std::string& call, contract::Status status = contract::kUnspecifiedFailure,
                  const std::string& description = "");

    void TearDown() override;

    std::shared_ptr<CWritingDevice> device =
        std::make_shared<CWritingDevice>(host.SubsystemAccess());
};

/// The log lines of what follows a change of the stored files.
inline const std::vector<std::string> kMemoryAndListing = {
    "Querying free memory resources", "Updating file listing...", "File listing updated"};

}
