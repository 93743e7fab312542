#include "panel/info/DeviceInformation.h"

#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/device/SoftwareInfo.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"
#include "panel/device/DeviceConnection.h"
#include "panel/info/FreeMemory.h"

#include <span>
#include <string>

namespace panel {

namespace {

using contract::IKrx10CommunicationConfiguration2;
using contract::Status;

constexpr std::size_t kLongestDescription = 110;

/// One run through the steps, with the objects that they obtain.
struct Reading {
    PanelServices& services;
    CFreeMemory& freeMemory;
    std::shared_ptr<contract::ISoftwareInfo> software = {};
    std::shared_ptr<contract::IHardwareInfo> hardware = {};
    std::shared_ptr<contract::IKrx10Control> krx10 = {};
    std::shared_ptr<contract::IKrx10CommunicationConfiguration> configuration = {};
    std::shared_ptr<IKrx10CommunicationConfiguration2> network = {};

    void Show(ControlId field, const std::string& text) {
        services.view->SetText(services.view[field], text);
    }

    template <class Object>
    Status ShowText(const std::shared_ptr<Object>& object, Status (Object::*read)(std::string&),
                    ControlId field, const char* whenEmpty = "") {
        std::string text;
        const Status status = Call(object, read, text);
        if (status.IsSuccess()) {
            Show(field, text.empty() ? whenEmpty : text);
        }
        return status;
    }

    /// The size fields are not among the captured controls; they are addressed by id.
    Status ShowSize(Status (contract::IHardwareInfo::*read)(std::uint32_t&), ControlId field) {
        std::uint32_t sizeBytes = 0;
        const Status status = Call(hardware, read, sizeBytes);
        if (status.IsSuccess()) {
            services.view->SetText(field, std::to_string(sizeBytes));
        }
        return status;
    }

    Status ShowSerialNumber() {
        std::int32_t serialNumber = 0;
        const Status status =
            Call(hardware, &contract::IHardwareInfo::GetSerialNumber, serialNumber);
        if (status.IsSuccess()) {
            Show(kSerialNumberField, std::to_string(serialNumber));
        }
        return status;
    }

    /// A read that fails leaves the value from before, whatever the device wrote.
    template <class Value>
    Status Keep(Status (IKrx10CommunicationConfiguration2::*read)(Value&), Value& kept) {
        Value value{};
        const Status status = Call(network, read, value);
        if (status.IsSuccess()) {
            kept = value;
        }
        return status;
    }

    Status KeepDescription() {
        std::string description;
        const Status status =
            Call(network, &IKrx10CommunicationConfiguration2::GetDescription, description);
        if (status.IsSuccess()) {
            services.state.network.description = CutToBytes(description, kLongestDescription);
        }
        return status;
    }

    NetworkValues& Kept() { return services.state.network; }
};

struct Step {
    const char* failureText;
    Status (*run)(Reading&);
};

constexpr Step kCommonSteps[] = {
    {"Software Info request failed",
     [](Reading& r) {
         return Obtain(r.services.device.Control(),
                       &contract::IProgrammingDeviceControl::GetSoftwareInfo, r.software);
     }},
    {"Hardware Info request failed",
     [](Reading& r) {
         return Obtain(r.services.device.Control(),
                       &contract::IProgrammingDeviceControl::GetHardwareInfo, r.hardware);
     }},
    {"Boot SW version query failed",
     [](Reading& r) {
         return r.ShowText(r.software, &contract::ISoftwareInfo::GetBootSwVersion, kBootSwField);
     }},
    {"Application SW version query failed",
     [](Reading& r) {
         return r.ShowText(r.software, &contract::ISoftwareInfo::GetApplicationSwVersion,
                           kApplicationSwField);
     }},
    {"FPGA Code version query failed",
     [](Reading& r) {
         return r.ShowText(r.software, &contract::ISoftwareInfo::GetFpgaCodeVersion, kFpgaField);
     }},
    {"Hardware version query failed",
     [](Reading& r) {
         return r.ShowText(r.hardware, &contract::IHardwareInfo::GetHardwareVersion,
                           kHardwareField);
     }},
    {"Total RAM size query failed",
     [](Reading& r) {
         return r.ShowSize(&contract::IHardwareInfo::GetTotalRamSize, kRamSizeField);
     }},
    {"Total Flash size query failed",
     [](Reading& r) {
         return r.ShowSize(&contract::IHardwareInfo::GetTotalFlashSize, kFlashSizeField);
     }},
    // Reports its own failures, which do not end the routine.
    {"",
     [](Reading& r) {
         r.freeMemory.UpdateFreeMemory();
         return contract::kSuccess;
     }},
};

constexpr Step kNetworkSteps[] = {
    {"Krx10Control feature get failed",
     [](Reading& r) {
         return Obtain(r.services.device.Subsystem(),
                       &contract::IProgrammingDeviceSubsystem::GetKrx10Control, r.krx10);
     }},
    {"KRX-10 Communication configuration query failed",
     [](Reading& r) {
         return Obtain(r.krx10, &contract::IKrx10Control::GetCommunicationConfiguration,
                       r.configuration);
     }},
    {"IKrx10CommunicationConfiguration2 interface query failed",
     [](Reading& r) {
         return Query(r.configuration,
                      &contract::IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2,
                      r.network);
     }},
    {"IP address query failed",
     [](Reading& r) {
         return r.ShowText(r.network, &IKrx10CommunicationConfiguration2::GetIpAddress,
                           kIpAddressField, kNoAddress);
     }},
    {"Querying of IP address as a 32-bit integer failed",
     [](Reading& r) {
         return r.Keep(&IKrx10CommunicationConfiguration2::GetIpAddressValue, r.Kept().ipAddress);
     }},
    {"Subnet mask getting failed",
     [](Reading& r) {
         return r.Keep(&IKrx10CommunicationConfiguration2::GetSubnetMask, r.Kept().subnetMask);
     }},
    {"Gateway address getting failed",
     [](Reading& r) {
         return r.Keep(&IKrx10CommunicationConfiguration2::GetGateway, r.Kept().gateway);
     }},
    {"DHCP use getting failed",
     [](Reading& r) {
         return r.Keep(&IKrx10CommunicationConfiguration2::GetUseDhcp, r.Kept().useDhcp);
     }},
    {"KRX-10 description query failed", [](Reading& r) { return r.KeepDescription(); }},
    {"MAC address query failed",
     [](Reading& r) {
         return r.ShowText(r.network, &IKrx10CommunicationConfiguration2::GetMacAddress,
                           kSerialNumberField);
     }},
};

constexpr Step kSerialNumberSteps[] = {
    {"Serial Number query failed", [](Reading& r) { return r.ShowSerialNumber(); }},
};

/// Runs the steps up to the first that fails, which it reports. Returns whether none did.
bool RunSteps(std::span<const Step> steps, Reading& reading) {
    for (const Step& step : steps) {
        const Status status = step.run(reading);
        if (status.IsFailure()) {
            reading.services.output.ReportError(
                step.failureText, LoadPanelString(StringId::PrommerMaintenance), status);
            return false;
        }
    }
    return true;
}

}

void CDeviceInformation::ReadDeviceInformation() {
    const BusyCursor busy(m_services.toolkit);
    m_services.output.AppendStatusLine(
        "Querying hardware and software info from Programming Device");
    Reading reading{m_services, m_freeMemory};
    if (RunSteps(kCommonSteps, reading)) {
        // The type is looked at here, not before: a device may have been exchanged meanwhile.
        const bool isNetworked = IsNetworked(m_services.state.deviceType);
        RunSteps(isNetworked ? std::span<const Step>(kNetworkSteps) : kSerialNumberSteps, reading);
    }
}

}
