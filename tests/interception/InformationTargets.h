#pragma once

#include "contract/device/ExternalStorages.h"
#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx20SwInfo.h"
#include "contract/device/SelfTestResults.h"
#include "contract/device/SoftwareInfo.h"
#include "tests/interception/Target.h"

namespace interception {

template <>
class CTarget<contract::IHardwareInfo> final : public CRecordingTarget<contract::IHardwareInfo> {
public:
    contract::Status GetDeviceType(std::int32_t& type) override {
        return Receive<&Target::GetDeviceType>(type);
    }
    contract::Status GetHardwareVersion(std::string& version) override {
        return Receive<&Target::GetHardwareVersion>(version);
    }
    contract::Status GetTotalRamSize(std::uint32_t& sizeBytes) override {
        return Receive<&Target::GetTotalRamSize>(sizeBytes);
    }
    contract::Status GetTotalFlashSize(std::uint32_t& sizeBytes) override {
        return Receive<&Target::GetTotalFlashSize>(sizeBytes);
    }
    contract::Status GetSerialNumber(std::int32_t& serialNumber) override {
        return Receive<&Target::GetSerialNumber>(serialNumber);
    }
};

template <>
class CTarget<contract::ISoftwareInfo> final : public CRecordingTarget<contract::ISoftwareInfo> {
public:
    contract::Status GetBootSwVersion(std::string& version) override {
        return Receive<&Target::GetBootSwVersion>(version);
    }
    contract::Status GetApplicationSwVersion(std::string& version) override {
        return Receive<&Target::GetApplicationSwVersion>(version);
    }
    contract::Status GetFpgaCodeVersion(std::string& version) override {
        return Receive<&Target::GetFpgaCodeVersion>(version);
    }
    contract::Status GetSecuritySwVersion(std::string& version) override {
        return Receive<&Target::GetSecuritySwVersion>(version);
    }
    contract::Status GetFpgaDriverVersion(std::string& version) override {
        return Receive<&Target::GetFpgaDriverVersion>(version);
    }
    contract::Status GetMmcrDriverVersion(std::string& version) override {
        return Receive<&Target::GetMmcrDriverVersion>(version);
    }
    contract::Status GetUsbDeviceFunctionDriverVersion(std::string& version) override {
        return Receive<&Target::GetUsbDeviceFunctionDriverVersion>(version);
    }
    contract::Status GetUsbHostControllerDriverVersion(std::string& version) override {
        return Receive<&Target::GetUsbHostControllerDriverVersion>(version);
    }
    contract::Status QueryKrx20SwInfo(std::shared_ptr<contract::IKrx20SwInfo>& info) override {
        return Receive<&Target::QueryKrx20SwInfo>(info);
    }
};

template <>
class CTarget<contract::ITypeInformation> final
    : public CRecordingTarget<contract::ITypeInformation> {};

template <>
class CTarget<contract::IKrx20SwInfo> final : public CRecordingTarget<contract::IKrx20SwInfo> {
public:
    contract::Status
    GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                std::shared_ptr<contract::ITypeInformation>& information) override {
        return Receive<&Target::GetTypeInfo>(index, locale, information);
    }
    contract::Status GetBootLoaderVersion(std::string& version) override {
        return Receive<&Target::GetBootLoaderVersion>(version);
    }
    contract::Status GetServiceFpgaVersion(std::string& version) override {
        return Receive<&Target::GetServiceFpgaVersion>(version);
    }
};

template <>
class CTarget<contract::IFreeResources> final : public CRecordingTarget<contract::IFreeResources> {
public:
    contract::Status GetFreeRamSize(std::uint32_t& sizeBytes) override {
        return Receive<&Target::GetFreeRamSize>(sizeBytes);
    }
    contract::Status GetFreeFlashSize(std::uint32_t& sizeBytes) override {
        return Receive<&Target::GetFreeFlashSize>(sizeBytes);
    }
};

template <>
class CTarget<contract::ISelfTestResults> final
    : public CRecordingTarget<contract::ISelfTestResults> {
public:
    contract::Status GetResult(contract::SelfTest test, std::int32_t& code) override {
        return Receive<&Target::GetResult>(test, code);
    }
};

template <>
class CTarget<contract::IExternalStorages> final
    : public CRecordingTarget<contract::IExternalStorages> {
public:
    contract::Status GetCount(std::int32_t& count) override {
        return Receive<&Target::GetCount>(count);
    }
};

template <>
class CTarget<contract::IFileListing> final : public CRecordingTarget<contract::IFileListing> {
public:
    contract::Status GetFileCount(std::int32_t& count) override {
        return Receive<&Target::GetFileCount>(count);
    }
    contract::Status GetFileInfo(std::int32_t index,
                                 std::shared_ptr<contract::IFileInfo>& info) override {
        return Receive<&Target::GetFileInfo>(index, info);
    }
};

template <>
class CTarget<contract::IFileInfo> final : public CRecordingTarget<contract::IFileInfo> {
public:
    contract::Status GetName(std::string& name) override { return Receive<&Target::GetName>(name); }
    contract::Status GetType(std::int32_t& type) override {
        return Receive<&Target::GetType>(type);
    }
    contract::Status GetId(std::int32_t& id) override { return Receive<&Target::GetId>(id); }
    contract::Status GetVersion(std::string& version) override {
        return Receive<&Target::GetVersion>(version);
    }
    contract::Status GetSize(std::int32_t& sizeBytes) override {
        return Receive<&Target::GetSize>(sizeBytes);
    }
    contract::Status GetLocation(std::int32_t& location) override {
        return Receive<&Target::GetLocation>(location);
    }
    contract::Status GetGeneration(std::uint32_t& generation) override {
        return Receive<&Target::GetGeneration>(generation);
    }
};

}
