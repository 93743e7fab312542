#pragma once

#include "contract/Status.h"

#include <memory>
#include <string>

namespace contract {

class IKrx20SwInfo;

/// The software versions of a device, each a UTF-8 text that is empty when the device has no such
/// part. A report shows the first 80 bytes. One call at a time, on the thread of the call (see
/// ProgrammingDeviceControl.h); results are untouched on failure.
class ISoftwareInfo {
public:
    virtual ~ISoftwareInfo() = default;

    virtual Status GetBootSwVersion(std::string& version) = 0;
    virtual Status GetApplicationSwVersion(std::string& version) = 0;
    virtual Status GetFpgaCodeVersion(std::string& version) = 0;
    /// Asked of the KRX-8 family only.
    virtual Status GetSecuritySwVersion(std::string& version) = 0;
    /// The four driver versions are asked of the KRX-10 only.
    virtual Status GetFpgaDriverVersion(std::string& version) = 0;
    virtual Status GetMmcrDriverVersion(std::string& version) = 0;
    virtual Status GetUsbDeviceFunctionDriverVersion(std::string& version) = 0;
    virtual Status GetUsbHostControllerDriverVersion(std::string& version) = 0;

    /// Asks for the versions that the KRX-20 and KRX-21 add. Other devices fail with
    /// kNoSuchInterface.
    virtual Status QueryKrx20SwInfo(std::shared_ptr<IKrx20SwInfo>& info) = 0;
};

}
