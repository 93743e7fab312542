#pragma once

#include "simulator/Device.h"
#include "simulator/device/CodeFile.h"

#include <cstdint>
#include <string>

namespace simulator {

/// Takes a device through Maintenance mode: entered at once, left at the end of the scope for the
/// mode that is stored by then.
class CMaintenance {
public:
    explicit CMaintenance(CDevice& device) : m_device(device) {
        m_device.EnterMode(kMaintenanceMode);
    }
    ~CMaintenance() { m_device.EnterMode(m_device.Description().mode); }
    CMaintenance(const CMaintenance&) = delete;
    CMaintenance& operator=(const CMaintenance&) = delete;

private:
    CDevice& m_device;
};

/// Loads the file's code, with messages that begin with `verb` and tell the progress in bytes. The
/// code itself is not kept: the versions are what a device shows of it. The mode that is stored
/// with them is that of the start that follows.
Outcome LoadCode(CDevice& device, const CSourceFile& source, CodeKind kind,
                 const std::string& verb);

/// UploadCode of the service. The device is in Maintenance mode meanwhile, and starts when the code
/// is loaded. After a failure it is as it was.
Outcome UploadCode(CDevice& device, const std::string& path, std::int32_t codeKind,
                   std::int32_t reserved, std::int32_t mode);

}
