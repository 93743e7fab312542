#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/ProgrammingDeviceControl.h"

#include <cstdint>
#include <string>
#include <vector>

namespace support {

/// A device that, of everything that would change it, only notes the call with its arguments, such
/// as "DeleteFile(22, 2)".
class CNotingDevice : public contract::IProgrammingDeviceControl,
                      public contract::IKrx10Control,
                      public contract::IKrx10CommunicationConfiguration,
                      public contract::IKrx10CommunicationConfiguration2 {
public:
    using Status = contract::Status;

    /// In order.
    std::vector<std::string> calls;

    // contract::IProgrammingDeviceControl
    /// A request for the mode changes nothing and is not noted.
    Status RequestMode(contract::ModeRequest request) override;
    /// Delivers a result that looks like a failure, for nobody to heed.
    Status UploadPhoneFile(const std::string& path, std::int32_t destination, std::int32_t method,
                           std::int32_t& result) override;
    Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                    std::int32_t reserved) override;
    Status DeleteFile(std::int32_t type, std::int32_t id) override;
    Status UploadCode(const std::string& path, std::int32_t codeKind, std::int32_t reserved,
                      std::int32_t mode) override;
    Status UpdateFromIniFile(const std::string& path) override;
    Status RerunMediaTests(std::uint32_t mask) override;

    // contract::IKrx10Control and the configuration
    Status PrepareMedia(contract::Medium medium) override;
    Status SetIpAddress(contract::AddressValue address) override;
    Status SetDhcp(bool useDhcp) override;
    Status SetSubnetMask(contract::AddressValue mask) override;
    Status SetGateway(contract::AddressValue gateway) override;
    Status SetDescription(const std::string& description) override;
    Status ApplyConfiguration() override;

private:
    virtual Status ReportMode() = 0;
    /// What a call that was noted returns.
    virtual Status AnswerTo(const std::string& call) = 0;

    Status Note(const std::string& call);
};

}
