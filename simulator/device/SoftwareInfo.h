#pragma once

#include "contract/device/SoftwareInfo.h"
#include "simulator/Device.h"

namespace simulator {

/// A device's software versions at the moment of asking.
class CSoftwareInfo final : public contract::ISoftwareInfo {
public:
    explicit CSoftwareInfo(const CDevice& device);

    contract::Status GetBootSwVersion(std::string& version) override {
        return Give(m_versions.boot, version);
    }
    contract::Status GetApplicationSwVersion(std::string& version) override {
        return Give(m_versions.application, version);
    }
    contract::Status GetFpgaCodeVersion(std::string& version) override {
        return Give(m_versions.fpgaCode, version);
    }
    contract::Status GetSecuritySwVersion(std::string& version) override {
        return Give(m_versions.security, version);
    }
    contract::Status GetFpgaDriverVersion(std::string& version) override {
        return Give(m_versions.fpgaDriver, version);
    }
    contract::Status GetMmcrDriverVersion(std::string& version) override {
        return Give(m_versions.mmcrDriver, version);
    }
    contract::Status GetUsbDeviceFunctionDriverVersion(std::string& version) override {
        return Give(m_versions.usbDeviceFunctionDriver, version);
    }
    contract::Status GetUsbHostControllerDriverVersion(std::string& version) override {
        return Give(m_versions.usbHostControllerDriver, version);
    }

    /// kNoSuchInterface unless the device is a KRX-20 or KRX-21.
    contract::Status QueryKrx20SwInfo(std::shared_ptr<contract::IKrx20SwInfo>& info) override;

private:
    const SoftwareVersions m_versions;
    const std::shared_ptr<contract::IKrx20SwInfo> m_krx20Info;
};

}
