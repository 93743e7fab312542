#pragma once

#include "contract/device/Krx20SwInfo.h"
#include "simulator/DeviceDescription.h"
#include "simulator/Failure.h"

namespace simulator {

/// The versions that the KRX-20 and KRX-21 add. It stands for its own type information, which
/// nobody looks into.
class CKrx20SwInfo final : public contract::IKrx20SwInfo,
                           public contract::ITypeInformation,
                           public std::enable_shared_from_this<CKrx20SwInfo> {
public:
    explicit CKrx20SwInfo(const SoftwareVersions& versions)
        : m_bootLoader(versions.bootLoader), m_serviceFpga(versions.serviceFpga) {}

    contract::Status
    GetTypeInfo(std::uint32_t, std::uint32_t,
                std::shared_ptr<contract::ITypeInformation>& information) override {
        information = shared_from_this();
        return contract::kSuccess;
    }
    contract::Status GetBootLoaderVersion(std::string& version) override {
        return Give(m_bootLoader, version);
    }
    contract::Status GetServiceFpgaVersion(std::string& version) override {
        return Give(m_serviceFpga, version);
    }

private:
    const std::string m_bootLoader;
    const std::string m_serviceFpga;
};

}
