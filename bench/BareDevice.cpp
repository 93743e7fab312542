#include "bench/BareDevice.h"

#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/ProgrammingDeviceControl.h"

#include <stdexcept>
#include <string>

namespace bench {

namespace {

void Require(contract::Status status) {
    if (status.IsFailure()) {
        throw std::runtime_error("the simulated device failed");
    }
}

}

std::size_t ReadAllFiles(contract::IProgrammingDeviceSubsystem& subsystem) {
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    Require(subsystem.get_ProgrammingDeviceControl(control));
    std::shared_ptr<contract::IFileListing> listing;
    Require(control->GetFileListing(listing));
    std::int32_t count = 0;
    Require(listing->GetFileCount(count));
    std::size_t bytes = 0;
    std::string name;
    std::string version;
    for (std::int32_t index = 1; index <= count; ++index) {
        std::shared_ptr<contract::IFileInfo> file;
        std::int32_t number = 0;
        std::uint32_t generation = 0;
        Require(listing->GetFileInfo(index, file));
        Require(file->GetName(name));
        Require(file->GetType(number));
        Require(file->GetId(number));
        Require(file->GetVersion(version));
        Require(file->GetSize(number));
        Require(file->GetLocation(number));
        Require(file->GetGeneration(generation));
        bytes += name.size() + version.size();
    }
    return bytes;
}

}
