#pragma once

#include "simulator/Device.h"
#include "simulator/Host.h"
#include "tests/component/win32/control/ControlFixture.h"
#include "tests/simulator/TemporaryFolder.h"

#include <string>
#include <vector>

namespace controltests {

/// The control in a container whose host and device are the simulator's, behind the edge of COM.
/// The device is a copy of a sample, which may be written to.
///
/// Every test ends as those of ControlFixture, and with the proof that the simulated host is let go
/// of too: no member of its context, no subscription.
class SimulatedDeviceFixture : public ControlFixture {
protected:
    /// Connects the sample of that name, such as "krx-8".
    void StartWithSample(const std::string& name);
    /// The same, with `members` added to the description of the device.
    void StartWithSample(const std::string& name, const std::string& members);

    /// The full path of a copy of a file of the update package, such as "krx8/nor16_alg.fia".
    std::string PackageFile(const std::string& name) const;

    std::string Field(int id) { return User().ShownText(static_cast<panel::ControlId>(id)); }
    std::string Log();
    int RowCount() const;
    std::vector<std::string> Row(int row);
    int RowOf(const std::string& name);
    /// The names in the selected rows.
    std::vector<std::string> SelectedNames();
    bool IsEnabled(int button) const { return IsWindowEnabled(container.Button(button)); }

    /// Right-clicks the first file and chooses a command, which asks for a file and gets this one.
    void ChooseWithFile(int command, const std::string& path);

    void TearDown() override;

    const simulator::CTemporaryFolder folder;
    simulator::CHost simulated;

private:
    void InsertSample(const std::string& name, const std::string& members);
};

}
