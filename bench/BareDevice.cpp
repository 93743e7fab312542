#include "bench/BareDevice.h"

#include "bench/Require.h"
#include "contract/ErrorInfo.h"
#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/ProgrammingDeviceControl.h"

#include <memory>
#include <string>

namespace bench {

namespace {

template <Caller kCaller>
class CReader {
public:
    std::size_t Read(contract::IProgrammingDeviceSubsystem& subsystem) {
        std::shared_ptr<contract::IProgrammingDeviceControl> control;
        Call([&] { return subsystem.get_ProgrammingDeviceControl(control); });
        ReadFreeMemory(*control);
        std::shared_ptr<contract::IFileListing> listing;
        Call([&] { return control->GetFileListing(listing); });
        std::int32_t count = 0;
        Call([&] { return listing->GetFileCount(count); });
        std::size_t bytes = 0;
        for (std::int32_t index = 1; index <= count; ++index) {
            bytes += ReadFile(*listing, index);
        }
        return bytes;
    }

private:
    template <class Operation>
    void Call(Operation operation) {
        if constexpr (kCaller == Caller::Client) {
            m_errorInfo.Clear();
        }
        Require(operation(), "the simulated device failed");
    }

    void ReadFreeMemory(contract::IProgrammingDeviceControl& control) {
        std::shared_ptr<contract::IFreeResources> resources;
        std::uint32_t sizeBytes = 0;
        Call([&] { return control.GetFreeResources(resources); });
        Call([&] { return resources->GetFreeRamSize(sizeBytes); });
        Call([&] { return resources->GetFreeFlashSize(sizeBytes); });
    }

    std::size_t ReadFile(contract::IFileListing& listing, std::int32_t index) {
        std::shared_ptr<contract::IFileInfo> file;
        std::int32_t number = 0;
        std::uint32_t generation = 0;
        Call([&] { return listing.GetFileInfo(index, file); });
        Call([&] { return file->GetName(m_name); });
        Call([&] { return file->GetType(number); });
        Call([&] { return file->GetId(number); });
        Call([&] { return file->GetVersion(m_version); });
        Call([&] { return file->GetSize(number); });
        Call([&] { return file->GetLocation(number); });
        Call([&] { return file->GetGeneration(generation); });
        return m_name.size() + m_version.size();
    }

    contract::CErrorInfoClearer m_errorInfo;
    std::string m_name;
    std::string m_version;
};

}

std::size_t ReadFiles(contract::IProgrammingDeviceSubsystem& subsystem, Caller caller) {
    return caller == Caller::Client ? CReader<Caller::Client>().Read(subsystem)
                                    : CReader<Caller::Bare>().Read(subsystem);
}

}
