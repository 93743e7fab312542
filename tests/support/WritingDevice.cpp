#include "tests/support/WritingDevice.h"

#include "contract/device/ExternalStorages.h"
#include "contract/device/HardwareInfo.h"

#include <utility>

namespace support {

using contract::Status;

namespace {

/// A device's values, with another type in the place of its own.
class COtherType final : public contract::IHardwareInfo {
public:
    COtherType(std::shared_ptr<contract::IHardwareInfo> info, std::int32_t type)
        : m_info(std::move(info)), m_type(type) {}

    Status GetDeviceType(std::int32_t& type) override {
        std::int32_t own = 0;
        const Status status = m_info->GetDeviceType(own);
        if (status.IsSuccess()) {
            type = m_type;
        }
        return status;
    }
    Status GetHardwareVersion(std::string& version) override {
        return m_info->GetHardwareVersion(version);
    }
    Status GetTotalRamSize(std::uint32_t& sizeBytes) override {
        return m_info->GetTotalRamSize(sizeBytes);
    }
    Status GetTotalFlashSize(std::uint32_t& sizeBytes) override {
        return m_info->GetTotalFlashSize(sizeBytes);
    }
    Status GetSerialNumber(std::int32_t& serialNumber) override {
        return m_info->GetSerialNumber(serialNumber);
    }

private:
    const std::shared_ptr<contract::IHardwareInfo> m_info;
    const std::int32_t m_type;
};

class CToldStorages final : public contract::IExternalStorages {
public:
    explicit CToldStorages(std::int32_t count) : m_count(count) {}

    Status GetCount(std::int32_t& count) override {
        count = m_count;
        return contract::kSuccess;
    }

private:
    const std::int32_t m_count;
};

}

Status CWritingDevice::ReportMode() {
    return m_control->RequestMode(contract::ModeRequest::Report);
}

Status CWritingDevice::AnswerTo(const std::string& call) {
    return answer ? answer(call) : contract::kSuccess;
}

Status CWritingDevice::GetSubsystem(const contract::Guid& identifier,
                                    std::shared_ptr<contract::ISubsystem>& subsystem) {
    if (identifier != contract::kProgrammingDeviceSubsystem) {
        return m_host->GetSubsystem(identifier, subsystem);
    }
    const Status status = m_host->GetSubsystem(identifier, m_hostSubsystem);
    if (status.IsSuccess()) {
        subsystem = shared_from_this();
    }
    return status;
}

Status CWritingDevice::QueryProgrammingDeviceSubsystem(
    std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) {
    const Status status = m_hostSubsystem->QueryProgrammingDeviceSubsystem(m_subsystem);
    if (status.IsSuccess()) {
        subsystem = shared_from_this();
    }
    return status;
}

Status CWritingDevice::QueryProductInformation(std::shared_ptr<contract::IProductInformation>&) {
    return contract::kNoSuchInterface;
}

Status CWritingDevice::get_ProgrammingDeviceControl(
    std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    const Status status = m_subsystem->get_ProgrammingDeviceControl(m_control);
    if (status.IsSuccess()) {
        control = shared_from_this();
    }
    return status;
}

Status CWritingDevice::GetKrx10Control(std::shared_ptr<contract::IKrx10Control>& control) {
    const Status status = m_subsystem->GetKrx10Control(m_krx10);
    if (status.IsSuccess()) {
        control = shared_from_this();
    }
    return status;
}

Status CWritingDevice::GetCommunicationConfiguration(
    std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) {
    const Status status = m_krx10->GetCommunicationConfiguration(m_configuration);
    if (status.IsSuccess()) {
        configuration = shared_from_this();
    }
    return status;
}

Status CWritingDevice::QueryCommunicationConfiguration2(
    std::shared_ptr<contract::IKrx10CommunicationConfiguration2>& configuration) {
    const Status status = m_configuration->QueryCommunicationConfiguration2(m_network);
    if (status.IsSuccess()) {
        configuration = shared_from_this();
    }
    return status;
}

Status CWritingDevice::GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>& info) {
    const Status status = m_control->GetHardwareInfo(info);
    if (status.IsSuccess() && toldType) {
        info = std::make_shared<COtherType>(info, *toldType);
    }
    return status;
}

Status CWritingDevice::GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>& info) {
    if (!software) {
        return m_control->GetSoftwareInfo(info);
    }
    info = software;
    return contract::kSuccess;
}

Status CWritingDevice::GetExternalStorages(std::shared_ptr<contract::IExternalStorages>& storages) {
    if (!toldStorages) {
        return m_control->GetExternalStorages(storages);
    }
    storages = std::make_shared<CToldStorages>(*toldStorages);
    return contract::kSuccess;
}

}
