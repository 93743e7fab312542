#include "tests/support/DeviceDouble.h"

namespace support {

using contract::Status;

Status CDeviceDouble::GetSubsystem(const contract::Guid&,
                                   std::shared_ptr<contract::ISubsystem>& subsystem) {
    subsystem = shared_from_this();
    return contract::kSuccess;
}

Status CDeviceDouble::QueryProgrammingDeviceSubsystem(
    std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) {
    subsystem = shared_from_this();
    return contract::kSuccess;
}

Status CDeviceDouble::get_ProgrammingDeviceControl(
    std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    control = shared_from_this();
    return contract::kSuccess;
}

Status CDeviceDouble::GetFileListing(std::shared_ptr<contract::IFileListing>& listing) {
    if (!fileCount) {
        return contract::kUnspecifiedFailure;
    }
    listing = shared_from_this();
    return contract::kSuccess;
}

Status CDeviceDouble::RequestMode(contract::ModeRequest request) {
    modeRequests.push_back(static_cast<std::int32_t>(request));
    return contract::kSuccess;
}

Status CDeviceDouble::GetFileCount(std::int32_t& count) {
    count = *fileCount;
    return contract::kSuccess;
}

Status CDeviceDouble::GetFileInfo(std::int32_t, std::shared_ptr<contract::IFileInfo>&) {
    ++filesAskedFor;
    return contract::kUnspecifiedFailure;
}

}
