#pragma once

#include "contract/device/FileListing.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// A device that does what no simulated one would: it takes mode requests without ever answering
/// them and says any count of files. Everything else fails; it raises no events.
class CDeviceDouble final : public contract::ISubsystemAccess,
                            public contract::ISubsystem,
                            public contract::IProgrammingDeviceSubsystem,
                            public contract::IProgrammingDeviceControl,
                            public contract::IFileListing,
                            public std::enable_shared_from_this<CDeviceDouble> {
public:
    /// The requests as numbers, in order.
    std::vector<std::int32_t> modeRequests;
    /// Without a value there is no listing.
    std::optional<std::int32_t> fileCount;
    int filesAskedFor = 0;

    // contract::ISubsystemAccess, ISubsystem and IProgrammingDeviceSubsystem
    contract::Status GetSubsystem(const contract::Guid&,
                                  std::shared_ptr<contract::ISubsystem>& subsystem) override;
    contract::Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) override;
    contract::Status
    QueryProductInformation(std::shared_ptr<contract::IProductInformation>&) override {
        return contract::kNoSuchInterface;
    }
    contract::Status get_ProgrammingDeviceControl(
        std::shared_ptr<contract::IProgrammingDeviceControl>& control) override;
    contract::Status GetKrx10Control(std::shared_ptr<contract::IKrx10Control>&) override {
        return contract::kUnspecifiedFailure;
    }

    // contract::IProgrammingDeviceControl
    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>&)
        override {
        return contract::kNoSuchInterface;
    }
    contract::Status GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status GetFreeResources(std::shared_ptr<contract::IFreeResources>&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status GetSelfTestResults(std::shared_ptr<contract::ISelfTestResults>&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status GetFileListing(std::shared_ptr<contract::IFileListing>& listing) override;
    contract::Status GetExternalStorages(std::shared_ptr<contract::IExternalStorages>&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status RequestMode(contract::ModeRequest request) override;
    contract::Status UploadPhoneFile(const std::string&, std::int32_t, std::int32_t,
                                     std::int32_t&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status MoveFile(std::int32_t, std::int32_t, std::int32_t, std::int32_t) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status DeleteFile(std::int32_t, std::int32_t) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status UploadCode(const std::string&, std::int32_t, std::int32_t,
                                std::int32_t) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status UpdateFromIniFile(const std::string&) override {
        return contract::kUnspecifiedFailure;
    }
    contract::Status RerunMediaTests(std::uint32_t) override {
        return contract::kUnspecifiedFailure;
    }

    // contract::IFileListing
    contract::Status GetFileCount(std::int32_t& count) override;
    contract::Status GetFileInfo(std::int32_t, std::shared_ptr<contract::IFileInfo>&) override;
};

}
