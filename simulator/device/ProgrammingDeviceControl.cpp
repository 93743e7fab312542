#include "simulator/device/ProgrammingDeviceControl.h"

#include "simulator/device/CodeOperations.h"
#include "simulator/device/ExternalStorages.h"
#include "simulator/device/FileListing.h"
#include "simulator/device/FileOperations.h"
#include "simulator/device/FreeResources.h"
#include "simulator/device/HardwareInfo.h"
#include "simulator/device/IniUpdate.h"
#include "simulator/device/MediaOperations.h"
#include "simulator/device/SelfTestResults.h"
#include "simulator/device/SoftwareInfo.h"

namespace simulator {

using contract::Status;

Status CProgrammingDeviceControl::QueryBaseObject(
    std::shared_ptr<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>& object) {
    object = m_slot->Events();
    return contract::kSuccess;
}

Status CProgrammingDeviceControl::GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>& info) {
    return m_slot->Deliver<CHardwareInfo>(info);
}

Status CProgrammingDeviceControl::GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>& info) {
    return m_slot->Deliver<CSoftwareInfo>(info);
}

Status
CProgrammingDeviceControl::GetFreeResources(std::shared_ptr<contract::IFreeResources>& resources) {
    return m_slot->Deliver<CFreeResources>(resources);
}

Status CProgrammingDeviceControl::GetSelfTestResults(
    std::shared_ptr<contract::ISelfTestResults>& results) {
    return m_slot->Deliver<CSelfTestResults>(results);
}

Status CProgrammingDeviceControl::GetFileListing(std::shared_ptr<contract::IFileListing>& listing) {
    return m_slot->Deliver<CFileListing>(listing);
}

Status CProgrammingDeviceControl::GetExternalStorages(
    std::shared_ptr<contract::IExternalStorages>& storages) {
    return m_slot->Deliver<CExternalStorages>(storages);
}

Status CProgrammingDeviceControl::RequestMode(contract::ModeRequest request) {
    return m_slot->WithDevice([&](CDevice& device) { return device.RequestMode(request); });
}

Status CProgrammingDeviceControl::UploadPhoneFile(const std::string& path, std::int32_t destination,
                                                  std::int32_t method, std::int32_t& result) {
    return Run([&](CDevice& device) {
        return simulator::UploadPhoneFile(device, path, destination, method, result);
    });
}

Status CProgrammingDeviceControl::MoveFile(std::int32_t type, std::int32_t id,
                                           std::int32_t destination, std::int32_t reserved) {
    return Run([&](CDevice& device) {
        return simulator::MoveFile(device, type, id, destination, reserved);
    });
}

Status CProgrammingDeviceControl::DeleteFile(std::int32_t type, std::int32_t id) {
    return Run([&](CDevice& device) { return simulator::DeleteFile(device, type, id); });
}

Status CProgrammingDeviceControl::UploadCode(const std::string& path, std::int32_t codeKind,
                                             std::int32_t reserved, std::int32_t mode) {
    return Run([&](CDevice& device) {
        return simulator::UploadCode(device, path, codeKind, reserved, mode);
    });
}

Status CProgrammingDeviceControl::UpdateFromIniFile(const std::string& path) {
    return m_slot->WithDevice([&](CDevice& device) {
        auto isPartial = false;
        const auto status = Report(simulator::UpdateFromIniFile(device, path, isPartial));
        return status.IsSuccess() && isPartial ? contract::kPartialUpdate : status;
    });
}

Status CProgrammingDeviceControl::RerunMediaTests(std::uint32_t mask) {
    return Run([&](CDevice& device) { return simulator::RerunMediaTests(device, mask); });
}

template <class Operation>
Status CProgrammingDeviceControl::Run(const Operation& operation) {
    return m_slot->WithDevice([&](CDevice& device) { return Report(operation(device)); });
}

}
