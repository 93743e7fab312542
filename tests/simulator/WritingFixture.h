#pragma once

#include "simulator/DeviceFolder.h"
#include "tests/simulator/HostFixture.h"
#include "tests/simulator/TemporaryFolder.h"

#include <string>
#include <vector>

namespace simulator {

/// A device in memory that is written to through the service, and files of the workstation.
class WritingFixture : public HostFixture {
protected:
    /// 1000 bytes of RAM, 10000 of flash memory and a card of 500, in Normal mode.
    static DeviceDescription SmallDevice(std::int32_t type);

    /// Connects it and listens to it.
    void Connect(DeviceDescription description);
    /// The same for a copy of a sample device, which lives in its folder.
    void ConnectSample(const std::string& name);
    /// Connects the sample as it now lies in its folder.
    void Reconnect();

    /// Makes a file on the workstation and gives its path.
    std::string WorkstationFile(const std::string& name, const std::string& content);

    contract::Status Upload(const std::string& path, std::int32_t destination = 0,
                            std::int32_t method = 0);

    /// Fails the test when there is no such file.
    StoredFile FileNamed(const std::string& name) const;
    std::vector<std::string> Names() const;
    const DeviceDescription& Description() const { return m_device->Description(); }

    const CTemporaryFolder m_workstation;
    const CTemporaryFolder m_devices;
    std::shared_ptr<CDevice> m_device;
    std::filesystem::path m_deviceFolder;
    std::int32_t m_result = -1;
};

}
