#include "interception/Forwarders.h"

#include "interception/Forwarder.h"

#include <utility>

namespace interception {

using namespace contract;

namespace {

class CProgrammingDeviceSubsystemForwarder final : public CForwarder<IProgrammingDeviceSubsystem> {
public:
    using CForwarder::CForwarder;

    Status
    get_ProgrammingDeviceControl(std::shared_ptr<IProgrammingDeviceControl>& control) override {
        return CallForObject<&Target::get_ProgrammingDeviceControl>(
            "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl", control);
    }
    Status GetKrx10Control(std::shared_ptr<IKrx10Control>& control) override {
        return CallForObject<&Target::GetKrx10Control>("ProgrammingDeviceSubsystem.GetKrx10Control",
                                                       control);
    }
};

class CProgrammingDeviceControlForwarder final : public CForwarder<IProgrammingDeviceControl> {
public:
    using CForwarder::CForwarder;

    Status QueryBaseObject(
        std::shared_ptr<IBaseObject<_IProgrammingDeviceControlEvents>>& object) override {
        return CallForObject<&Target::QueryBaseObject>("ProgrammingDeviceControl.QueryBaseObject",
                                                       object);
    }
    Status GetHardwareInfo(std::shared_ptr<IHardwareInfo>& info) override {
        return CallForObject<&Target::GetHardwareInfo>("ProgrammingDeviceControl.GetHardwareInfo",
                                                       info);
    }
    Status GetSoftwareInfo(std::shared_ptr<ISoftwareInfo>& info) override {
        return CallForObject<&Target::GetSoftwareInfo>("ProgrammingDeviceControl.GetSoftwareInfo",
                                                       info);
    }
    Status GetFreeResources(std::shared_ptr<IFreeResources>& resources) override {
        return CallForObject<&Target::GetFreeResources>("ProgrammingDeviceControl.GetFreeResources",
                                                        resources);
    }
    Status GetSelfTestResults(std::shared_ptr<ISelfTestResults>& results) override {
        return CallForObject<&Target::GetSelfTestResults>(
            "ProgrammingDeviceControl.GetSelfTestResults", results);
    }
    Status GetFileListing(std::shared_ptr<IFileListing>& listing) override {
        return CallForObject<&Target::GetFileListing>("ProgrammingDeviceControl.GetFileListing",
                                                      listing);
    }
    Status GetExternalStorages(std::shared_ptr<IExternalStorages>& storages) override {
        return CallForObject<&Target::GetExternalStorages>(
            "ProgrammingDeviceControl.GetExternalStorages", storages);
    }
    Status RequestMode(ModeRequest request) override {
        return Call<&Target::RequestMode>("ProgrammingDeviceControl.RequestMode", request);
    }
    Status UploadPhoneFile(const std::string& path, std::int32_t destination, std::int32_t method,
                           std::int32_t& result) override {
        return Call<&Target::UploadPhoneFile>("ProgrammingDeviceControl.UploadPhoneFile", path,
                                              destination, method, result);
    }
    Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                    std::int32_t reserved) override {
        return Call<&Target::MoveFile>("ProgrammingDeviceControl.MoveFile", type, id, destination,
                                       reserved);
    }
    Status DeleteFile(std::int32_t type, std::int32_t id) override {
        return Call<&Target::DeleteFile>("ProgrammingDeviceControl.DeleteFile", type, id);
    }
    Status UploadCode(const std::string& path, std::int32_t codeKind, std::int32_t reserved,
                      std::int32_t mode) override {
        return Call<&Target::UploadCode>("ProgrammingDeviceControl.UploadCode", path, codeKind,
                                         reserved, mode);
    }
    Status UpdateFromIniFile(const std::string& path) override {
        return Call<&Target::UpdateFromIniFile>("ProgrammingDeviceControl.UpdateFromIniFile", path);
    }
    Status RerunMediaTests(std::uint32_t mask) override {
        return Call<&Target::RerunMediaTests>("ProgrammingDeviceControl.RerunMediaTests", mask);
    }
};

class CKrx10ControlForwarder final : public CForwarder<IKrx10Control> {
public:
    using CForwarder::CForwarder;

    Status GetCommunicationConfiguration(
        std::shared_ptr<IKrx10CommunicationConfiguration>& configuration) override {
        return CallForObject<&Target::GetCommunicationConfiguration>(
            "Krx10Control.GetCommunicationConfiguration", configuration);
    }
    Status PrepareMedia(Medium medium) override {
        return Call<&Target::PrepareMedia>("Krx10Control.PrepareMedia", medium);
    }
};

}

Reference<IProgrammingDeviceSubsystem>
MakeForwarder(RegistryReference registry, Reference<IProgrammingDeviceSubsystem> target) {
    return std::make_shared<CProgrammingDeviceSubsystemForwarder>(std::move(registry),
                                                                  std::move(target));
}

Reference<IProgrammingDeviceControl> MakeForwarder(RegistryReference registry,
                                                   Reference<IProgrammingDeviceControl> target) {
    return std::make_shared<CProgrammingDeviceControlForwarder>(std::move(registry),
                                                                std::move(target));
}

Reference<IKrx10Control> MakeForwarder(RegistryReference registry,
                                       Reference<IKrx10Control> target) {
    return std::make_shared<CKrx10ControlForwarder>(std::move(registry), std::move(target));
}

}
