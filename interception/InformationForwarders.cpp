#include "interception/Forwarders.h"

#include "interception/Forwarder.h"

#include <utility>

namespace interception {

using namespace contract;

namespace {

class CHardwareInfoForwarder final : public CForwarder<IHardwareInfo> {
public:
    using CForwarder::CForwarder;

    Status GetDeviceType(std::int32_t& type) override {
        return Call<&Target::GetDeviceType>("HardwareInfo.GetDeviceType", type);
    }
    Status GetHardwareVersion(std::string& version) override {
        return Call<&Target::GetHardwareVersion>("HardwareInfo.GetHardwareVersion", version);
    }
    Status GetTotalRamSize(std::uint32_t& sizeBytes) override {
        return Call<&Target::GetTotalRamSize>("HardwareInfo.GetTotalRamSize", sizeBytes);
    }
    Status GetTotalFlashSize(std::uint32_t& sizeBytes) override {
        return Call<&Target::GetTotalFlashSize>("HardwareInfo.GetTotalFlashSize", sizeBytes);
    }
    Status GetSerialNumber(std::int32_t& serialNumber) override {
        return Call<&Target::GetSerialNumber>("HardwareInfo.GetSerialNumber", serialNumber);
    }
};

class CSoftwareInfoForwarder final : public CForwarder<ISoftwareInfo> {
public:
    using CForwarder::CForwarder;

    Status GetBootSwVersion(std::string& version) override {
        return Call<&Target::GetBootSwVersion>("SoftwareInfo.GetBootSwVersion", version);
    }
    Status GetApplicationSwVersion(std::string& version) override {
        return Call<&Target::GetApplicationSwVersion>("SoftwareInfo.GetApplicationSwVersion",
                                                      version);
    }
    Status GetFpgaCodeVersion(std::string& version) override {
        return Call<&Target::GetFpgaCodeVersion>("SoftwareInfo.GetFpgaCodeVersion", version);
    }
    Status GetSecuritySwVersion(std::string& version) override {
        return Call<&Target::GetSecuritySwVersion>("SoftwareInfo.GetSecuritySwVersion", version);
    }
    Status GetFpgaDriverVersion(std::string& version) override {
        return Call<&Target::GetFpgaDriverVersion>("SoftwareInfo.GetFpgaDriverVersion", version);
    }
    Status GetMmcrDriverVersion(std::string& version) override {
        return Call<&Target::GetMmcrDriverVersion>("SoftwareInfo.GetMmcrDriverVersion", version);
    }
    Status GetUsbDeviceFunctionDriverVersion(std::string& version) override {
        return Call<&Target::GetUsbDeviceFunctionDriverVersion>(
            "SoftwareInfo.GetUsbDeviceFunctionDriverVersion", version);
    }
    Status GetUsbHostControllerDriverVersion(std::string& version) override {
        return Call<&Target::GetUsbHostControllerDriverVersion>(
            "SoftwareInfo.GetUsbHostControllerDriverVersion", version);
    }
    Status QueryKrx20SwInfo(std::shared_ptr<IKrx20SwInfo>& info) override {
        return CallForObject<&Target::QueryKrx20SwInfo>("SoftwareInfo.QueryKrx20SwInfo", info);
    }
};

class CTypeInformationForwarder final : public CForwarder<ITypeInformation> {
public:
    using CForwarder::CForwarder;
};

class CKrx20SwInfoForwarder final : public CForwarder<IKrx20SwInfo> {
public:
    using CForwarder::CForwarder;

    Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                       std::shared_ptr<ITypeInformation>& information) override {
        return CallForObject<&Target::GetTypeInfo>("Krx20SwInfo.GetTypeInfo", information, index,
                                                   locale);
    }
    Status GetBootLoaderVersion(std::string& version) override {
        return Call<&Target::GetBootLoaderVersion>("Krx20SwInfo.GetBootLoaderVersion", version);
    }
    Status GetServiceFpgaVersion(std::string& version) override {
        return Call<&Target::GetServiceFpgaVersion>("Krx20SwInfo.GetServiceFpgaVersion", version);
    }
};

class CFreeResourcesForwarder final : public CForwarder<IFreeResources> {
public:
    using CForwarder::CForwarder;

    Status GetFreeRamSize(std::uint32_t& sizeBytes) override {
        return Call<&Target::GetFreeRamSize>("FreeResources.GetFreeRamSize", sizeBytes);
    }
    Status GetFreeFlashSize(std::uint32_t& sizeBytes) override {
        return Call<&Target::GetFreeFlashSize>("FreeResources.GetFreeFlashSize", sizeBytes);
    }
};

class CSelfTestResultsForwarder final : public CForwarder<ISelfTestResults> {
public:
    using CForwarder::CForwarder;

    Status GetResult(SelfTest test, std::int32_t& code) override {
        return Call<&Target::GetResult>("SelfTestResults.GetResult", test, code);
    }
};

class CExternalStoragesForwarder final : public CForwarder<IExternalStorages> {
public:
    using CForwarder::CForwarder;

    Status GetCount(std::int32_t& count) override {
        return Call<&Target::GetCount>("ExternalStorages.GetCount", count);
    }
};

class CFileListingForwarder final : public CForwarder<IFileListing> {
public:
    using CForwarder::CForwarder;

    Status GetFileCount(std::int32_t& count) override {
        return Call<&Target::GetFileCount>("FileListing.GetFileCount", count);
    }
    Status GetFileInfo(std::int32_t index, std::shared_ptr<IFileInfo>& info) override {
        return CallForObject<&Target::GetFileInfo>("FileListing.GetFileInfo", info, index);
    }
};

class CFileInfoForwarder final : public CForwarder<IFileInfo> {
public:
    using CForwarder::CForwarder;

    Status GetName(std::string& name) override {
        return Call<&Target::GetName>("FileInfo.GetName", name);
    }
    Status GetType(std::int32_t& type) override {
        return Call<&Target::GetType>("FileInfo.GetType", type);
    }
    Status GetId(std::int32_t& id) override { return Call<&Target::GetId>("FileInfo.GetId", id); }
    Status GetVersion(std::string& version) override {
        return Call<&Target::GetVersion>("FileInfo.GetVersion", version);
    }
    Status GetSize(std::int32_t& sizeBytes) override {
        return Call<&Target::GetSize>("FileInfo.GetSize", sizeBytes);
    }
    Status GetLocation(std::int32_t& location) override {
        return Call<&Target::GetLocation>("FileInfo.GetLocation", location);
    }
    Status GetGeneration(std::uint32_t& generation) override {
        return Call<&Target::GetGeneration>("FileInfo.GetGeneration", generation);
    }
};

}

Reference<IHardwareInfo> MakeForwarder(RegistryReference registry,
                                       Reference<IHardwareInfo> target) {
    return std::make_shared<CHardwareInfoForwarder>(std::move(registry), std::move(target));
}

Reference<ISoftwareInfo> MakeForwarder(RegistryReference registry,
                                       Reference<ISoftwareInfo> target) {
    return std::make_shared<CSoftwareInfoForwarder>(std::move(registry), std::move(target));
}

Reference<ITypeInformation> MakeForwarder(RegistryReference registry,
                                          Reference<ITypeInformation> target) {
    return std::make_shared<CTypeInformationForwarder>(std::move(registry), std::move(target));
}

Reference<IKrx20SwInfo> MakeForwarder(RegistryReference registry, Reference<IKrx20SwInfo> target) {
    return std::make_shared<CKrx20SwInfoForwarder>(std::move(registry), std::move(target));
}

Reference<IFreeResources> MakeForwarder(RegistryReference registry,
                                        Reference<IFreeResources> target) {
    return std::make_shared<CFreeResourcesForwarder>(std::move(registry), std::move(target));
}

Reference<ISelfTestResults> MakeForwarder(RegistryReference registry,
                                          Reference<ISelfTestResults> target) {
    return std::make_shared<CSelfTestResultsForwarder>(std::move(registry), std::move(target));
}

Reference<IExternalStorages> MakeForwarder(RegistryReference registry,
                                           Reference<IExternalStorages> target) {
    return std::make_shared<CExternalStoragesForwarder>(std::move(registry), std::move(target));
}

Reference<IFileListing> MakeForwarder(RegistryReference registry, Reference<IFileListing> target) {
    return std::make_shared<CFileListingForwarder>(std::move(registry), std::move(target));
}

Reference<IFileInfo> MakeForwarder(RegistryReference registry, Reference<IFileInfo> target) {
    return std::make_shared<CFileInfoForwarder>(std::move(registry), std::move(target));
}

}
