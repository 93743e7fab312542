#pragma once

#include "contract/device/ExternalStorages.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx20SwInfo.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/device/SelfTestResults.h"
#include "contract/device/SoftwareInfo.h"
#include "simulator/EventSource.h"
#include "tests/support/NotingDevice.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace controltests {

/// A KRX-20 in Normal mode with the files alpha.fia (19, 1), beta.fia (21, 2) and version.fia
/// (22, 3), of whose self-tests one has failed. What would change it is only noted.
class CSmallDevice final : public support::CNotingDevice,
                           public contract::IProgrammingDeviceSubsystem,
                           public contract::IHardwareInfo,
                           public contract::ISoftwareInfo,
                           public contract::IKrx20SwInfo,
                           public contract::IFreeResources,
                           public contract::ISelfTestResults,
                           public contract::IFileListing,
                           public contract::IExternalStorages,
                           public std::enable_shared_from_this<CSmallDevice> {
public:
    using Events = contract::_IProgrammingDeviceControlEvents;
    template <class Interface>
    using Shared = std::shared_ptr<Interface>;

    /// Runs inside each call that asks it for an object or would change it, and says what that
    /// returns.
    std::function<Status(const std::string& call)> inside;

    std::size_t SubscriberCount() const { return m_events->SubscriberCount(); }

    // contract::IProgrammingDeviceSubsystem
    Status
    get_ProgrammingDeviceControl(Shared<contract::IProgrammingDeviceControl>& control) override {
        return Give("get_ProgrammingDeviceControl", control);
    }
    Status GetKrx10Control(Shared<contract::IKrx10Control>& control) override {
        return Give("GetKrx10Control", control);
    }

    // contract::IProgrammingDeviceControl
    Status QueryBaseObject(Shared<contract::IBaseObject<Events>>& object) override {
        object = m_events;
        return contract::kSuccess;
    }
    Status GetHardwareInfo(Shared<contract::IHardwareInfo>& info) override {
        return Give("GetHardwareInfo", info);
    }
    Status GetSoftwareInfo(Shared<contract::ISoftwareInfo>& info) override {
        return Give("GetSoftwareInfo", info);
    }
    Status GetFreeResources(Shared<contract::IFreeResources>& resources) override {
        return Give("GetFreeResources", resources);
    }
    Status GetSelfTestResults(Shared<contract::ISelfTestResults>& results) override {
        return Give("GetSelfTestResults", results);
    }
    Status GetFileListing(Shared<contract::IFileListing>& listing) override {
        return Give("GetFileListing", listing);
    }
    Status GetExternalStorages(Shared<contract::IExternalStorages>& storages) override {
        return Give("GetExternalStorages", storages);
    }

    // contract::IHardwareInfo, ISoftwareInfo and IKrx20SwInfo
    Status GetDeviceType(std::int32_t& type) override { return Tell(4, type); }
    Status GetHardwareVersion(std::string& version) override { return Tell("HW 2.1", version); }
    Status GetTotalRamSize(std::uint32_t& sizeBytes) override { return Tell(2097152u, sizeBytes); }
    Status GetTotalFlashSize(std::uint32_t& sizeBytes) override {
        return Tell(8388608u, sizeBytes);
    }
    Status GetSerialNumber(std::int32_t& number) override { return Tell(4711, number); }
    Status GetBootSwVersion(std::string& version) override { return Tell("boot 1.02", version); }
    Status GetApplicationSwVersion(std::string& version) override {
        return Tell("app 3.04", version);
    }
    Status GetFpgaCodeVersion(std::string& version) override { return Tell("fpga 5.06", version); }
    Status GetSecuritySwVersion(std::string& version) override { return Tell("", version); }
    Status GetFpgaDriverVersion(std::string& version) override { return Tell("", version); }
    Status GetMmcrDriverVersion(std::string& version) override { return Tell("", version); }
    Status GetUsbDeviceFunctionDriverVersion(std::string& version) override {
        return Tell("", version);
    }
    Status GetUsbHostControllerDriverVersion(std::string& version) override {
        return Tell("", version);
    }
    Status QueryKrx20SwInfo(Shared<contract::IKrx20SwInfo>& info) override {
        return Give("QueryKrx20SwInfo", info);
    }
    Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                       Shared<contract::ITypeInformation>& information) override;
    Status GetBootLoaderVersion(std::string& version) override { return Tell("loader 1", version); }
    Status GetServiceFpgaVersion(std::string& version) override { return Tell("fpga 7", version); }

    // contract::IFreeResources, ISelfTestResults, IFileListing and IExternalStorages
    Status GetFreeRamSize(std::uint32_t& sizeBytes) override { return Tell(2000000u, sizeBytes); }
    Status GetFreeFlashSize(std::uint32_t& sizeBytes) override { return Tell(8000000u, sizeBytes); }
    Status GetResult(contract::SelfTest test, std::int32_t& code) override {
        return Tell(test == contract::SelfTest::Ram ? 1 : 0, code);
    }
    Status GetFileCount(std::int32_t& count) override { return Tell(3, count); }
    Status GetFileInfo(std::int32_t index, Shared<contract::IFileInfo>& info) override;
    Status GetCount(std::int32_t& count) override { return Tell(0, count); }

    // contract::IKrx10Control and the configuration
    Status GetCommunicationConfiguration(
        Shared<contract::IKrx10CommunicationConfiguration>& configuration) override {
        return Give("GetCommunicationConfiguration", configuration);
    }
    Status QueryCommunicationConfiguration2(
        Shared<contract::IKrx10CommunicationConfiguration2>& configuration) override {
        return Give("QueryCommunicationConfiguration2", configuration);
    }
    Status GetIpAddress(std::string& text) override { return Tell("192.168.0.1", text); }
    Status GetIpAddressValue(contract::AddressValue& address) override {
        return Tell(0x0100A8C0u, address);
    }
    Status GetSubnetMask(contract::AddressValue& mask) override { return Tell(0x00FFFFFFu, mask); }
    Status GetGateway(contract::AddressValue& gateway) override {
        return Tell(0xFE00A8C0u, gateway);
    }
    Status GetUseDhcp(bool& useDhcp) override { return Tell(false, useDhcp); }
    Status GetDescription(std::string& text) override { return Tell("bench 3", text); }
    Status GetMacAddress(std::string& text) override { return Tell("00-00-5E-00-53-14", text); }

private:
    template <class Interface>
    Status Give(const char* call, Shared<Interface>& object) {
        const Status status = Run(call);
        if (status.IsSuccess()) {
            object = shared_from_this();
        }
        return status;
    }
    template <class Value, class Result>
    Status Tell(const Value& value, Result& result) {
        result = value;
        return contract::kSuccess;
    }
    Status ReportMode() override;
    Status AnswerTo(const std::string& call) override { return Run(call); }
    /// A copy, since what runs inside may be replaced from there.
    Status Run(const std::string& call) {
        const auto act = inside;
        return act ? act(call) : contract::kSuccess;
    }

    const Shared<simulator::CEventSource<Events>> m_events =
        std::make_shared<simulator::CEventSource<Events>>();
};

}
