#pragma once

#include "contract/device/ProgrammingDeviceControl.h"
#include "simulator/device/DeviceSlot.h"

#include <utility>

namespace simulator {

/// The service's control, for whichever device is in the slot. Every operation but QueryBaseObject
/// fails with kDeviceNotConnected while the slot is empty. What the operations do to a device is
/// said in docs/device-folder.md.
class CProgrammingDeviceControl final : public contract::IProgrammingDeviceControl {
public:
    explicit CProgrammingDeviceControl(std::shared_ptr<CDeviceSlot> slot)
        : m_slot(std::move(slot)) {}

    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>& object)
        override;
    contract::Status GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>& info) override;
    contract::Status GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>& info) override;
    contract::Status
    GetFreeResources(std::shared_ptr<contract::IFreeResources>& resources) override;
    contract::Status
    GetSelfTestResults(std::shared_ptr<contract::ISelfTestResults>& results) override;
    contract::Status GetFileListing(std::shared_ptr<contract::IFileListing>& listing) override;
    contract::Status
    GetExternalStorages(std::shared_ptr<contract::IExternalStorages>& storages) override;
    contract::Status RequestMode(contract::ModeRequest request) override;

    contract::Status UploadPhoneFile(const std::string& path, std::int32_t destination,
                                     std::int32_t method, std::int32_t& result) override;
    contract::Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                              std::int32_t reserved) override;
    contract::Status DeleteFile(std::int32_t type, std::int32_t id) override;
    contract::Status UploadCode(const std::string& path, std::int32_t codeKind,
                                std::int32_t reserved, std::int32_t mode) override;
    contract::Status UpdateFromIniFile(const std::string& path) override;
    contract::Status RerunMediaTests(std::uint32_t mask) override;

private:
    template <class Operation>
    contract::Status Run(const Operation& operation);

    const std::shared_ptr<CDeviceSlot> m_slot;
};

}
