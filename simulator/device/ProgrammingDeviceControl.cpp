#include "simulator/device/ProgrammingDeviceControl.h"

#include "simulator/device/ExternalStorages.h"
#include "simulator/device/FileListing.h"
#include "simulator/device/FreeResources.h"
#include "simulator/device/HardwareInfo.h"
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

Status CProgrammingDeviceControl::UploadPhoneFile(const std::string&, std::int32_t, std::int32_t,
                                                  std::int32_t&) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::MoveFile(std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::DeleteFile(std::int32_t, std::int32_t) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::UploadCode(const std::string&, std::int32_t, std::int32_t,
                                             std::int32_t) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::UpdateFromIniFile(const std::string&) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::RerunMediaTests(std::uint32_t) {
    return FailAsNotAvailableOnDevice();
}

Status CProgrammingDeviceControl::FailAsNotAvailableOnDevice() {
    return m_slot->WithDevice([](CDevice&) { return FailAsNotAvailable(); });
}

}
