#include "interception/Forwarder.h"

#include "interception/CallRecorder.h"
#include "interception/FaultInjector.h"
#include "tests/interception/OperationCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace interception {

using namespace contract;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Status kOtherSuccess{7};

const std::vector<NamedOperation>& AllOperations() {
    static const std::vector<NamedOperation> operations = {
        Named<&ISubsystemAccess::GetSubsystem>("SubsystemAccess.GetSubsystem"),
        Named<&ISubsystem::QueryProgrammingDeviceSubsystem>(
            "Subsystem.QueryProgrammingDeviceSubsystem"),
        Named<&ISubsystem::QueryProductInformation>("Subsystem.QueryProductInformation"),
        Named<&IProductInformation::GetProductDetection>("ProductInformation.GetProductDetection"),
        Named<&IProductDetection::QueryProductDetectionControl>(
            "ProductDetection.QueryProductDetectionControl"),
        Named<&IProductDetectionControl::GetPollingEnabled>(
            "ProductDetectionControl.GetPollingEnabled"),
        Named<&IProductDetectionControl::SetPollingEnabled>(
            "ProductDetectionControl.SetPollingEnabled"),
        Named<&IConnection::QueryConnectionState>("Connection.QueryConnectionState"),
        Named<&IConnection::QueryBaseObject>("Connection.QueryBaseObject"),
        Named<&IConnectionState::IsConnected>("ConnectionState.IsConnected"),
        Named<&IBaseObject<_IExtConnectionEvents>::FindEventSource>(
            "ExtConnectionEvents.FindEventSource"),
        Named<&IEventSource<_IExtConnectionEvents>::Subscribe>("ExtConnectionEvents.Subscribe"),
        Named<&IEventSource<_IExtConnectionEvents>::Unsubscribe>("ExtConnectionEvents.Unsubscribe"),
        Named<&IContext::Register>("Context.Register"),
        Named<&IContext::Unregister>("Context.Unregister"),
        Named<&IContext::QueryHostViewControl>("Context.QueryHostViewControl"),
        Named<&IContext::QueryMessageService>("Context.QueryMessageService"),
        Named<&IHostViewControl::ClosePanel>("HostViewControl.ClosePanel"),
        Named<&IMessageService::ShowMessage>("MessageService.ShowMessage"),
        Named<&IProgrammingDeviceSubsystem::get_ProgrammingDeviceControl>(
            "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"),
        Named<&IProgrammingDeviceSubsystem::GetKrx10Control>(
            "ProgrammingDeviceSubsystem.GetKrx10Control"),
        Named<&IProgrammingDeviceControl::QueryBaseObject>(
            "ProgrammingDeviceControl.QueryBaseObject"),
        Named<&IProgrammingDeviceControl::GetHardwareInfo>(
            "ProgrammingDeviceControl.GetHardwareInfo"),
        Named<&IProgrammingDeviceControl::GetSoftwareInfo>(
            "ProgrammingDeviceControl.GetSoftwareInfo"),
        Named<&IProgrammingDeviceControl::GetFreeResources>(
            "ProgrammingDeviceControl.GetFreeResources"),
        Named<&IProgrammingDeviceControl::GetSelfTestResults>(
            "ProgrammingDeviceControl.GetSelfTestResults"),
        Named<&IProgrammingDeviceControl::GetFileListing>(
            "ProgrammingDeviceControl.GetFileListing"),
        Named<&IProgrammingDeviceControl::GetExternalStorages>(
            "ProgrammingDeviceControl.GetExternalStorages"),
        Named<&IProgrammingDeviceControl::RequestMode>("ProgrammingDeviceControl.RequestMode"),
        Named<&IProgrammingDeviceControl::UploadPhoneFile>(
            "ProgrammingDeviceControl.UploadPhoneFile"),
        Named<&IProgrammingDeviceControl::MoveFile>("ProgrammingDeviceControl.MoveFile"),
        Named<&IProgrammingDeviceControl::DeleteFile>("ProgrammingDeviceControl.DeleteFile"),
        Named<&IProgrammingDeviceControl::UploadCode>("ProgrammingDeviceControl.UploadCode"),
        Named<&IProgrammingDeviceControl::UpdateFromIniFile>(
            "ProgrammingDeviceControl.UpdateFromIniFile"),
        Named<&IProgrammingDeviceControl::RerunMediaTests>(
            "ProgrammingDeviceControl.RerunMediaTests"),
        Named<&IBaseObject<_IProgrammingDeviceControlEvents>::FindEventSource>(
            "ProgrammingDeviceControlEvents.FindEventSource"),
        Named<&IEventSource<_IProgrammingDeviceControlEvents>::Subscribe>(
            "ProgrammingDeviceControlEvents.Subscribe"),
        Named<&IEventSource<_IProgrammingDeviceControlEvents>::Unsubscribe>(
            "ProgrammingDeviceControlEvents.Unsubscribe"),
        Named<&IHardwareInfo::GetDeviceType>("HardwareInfo.GetDeviceType"),
        Named<&IHardwareInfo::GetHardwareVersion>("HardwareInfo.GetHardwareVersion"),
        Named<&IHardwareInfo::GetTotalRamSize>("HardwareInfo.GetTotalRamSize"),
        Named<&IHardwareInfo::GetTotalFlashSize>("HardwareInfo.GetTotalFlashSize"),
        Named<&IHardwareInfo::GetSerialNumber>("HardwareInfo.GetSerialNumber"),
        Named<&ISoftwareInfo::GetBootSwVersion>("SoftwareInfo.GetBootSwVersion"),
        Named<&ISoftwareInfo::GetApplicationSwVersion>("SoftwareInfo.GetApplicationSwVersion"),
        Named<&ISoftwareInfo::GetFpgaCodeVersion>("SoftwareInfo.GetFpgaCodeVersion"),
        Named<&ISoftwareInfo::GetSecuritySwVersion>("SoftwareInfo.GetSecuritySwVersion"),
        Named<&ISoftwareInfo::GetFpgaDriverVersion>("SoftwareInfo.GetFpgaDriverVersion"),
        Named<&ISoftwareInfo::GetMmcrDriverVersion>("SoftwareInfo.GetMmcrDriverVersion"),
        Named<&ISoftwareInfo::GetUsbDeviceFunctionDriverVersion>(
            "SoftwareInfo.GetUsbDeviceFunctionDriverVersion"),
        Named<&ISoftwareInfo::GetUsbHostControllerDriverVersion>(
            "SoftwareInfo.GetUsbHostControllerDriverVersion"),
        Named<&ISoftwareInfo::QueryKrx20SwInfo>("SoftwareInfo.QueryKrx20SwInfo"),
        Named<&IKrx20SwInfo::GetTypeInfo>("Krx20SwInfo.GetTypeInfo"),
        Named<&IKrx20SwInfo::GetBootLoaderVersion>("Krx20SwInfo.GetBootLoaderVersion"),
        Named<&IKrx20SwInfo::GetServiceFpgaVersion>("Krx20SwInfo.GetServiceFpgaVersion"),
        Named<&IFreeResources::GetFreeRamSize>("FreeResources.GetFreeRamSize"),
        Named<&IFreeResources::GetFreeFlashSize>("FreeResources.GetFreeFlashSize"),
        Named<&ISelfTestResults::GetResult>("SelfTestResults.GetResult"),
        Named<&IExternalStorages::GetCount>("ExternalStorages.GetCount"),
        Named<&IFileListing::GetFileCount>("FileListing.GetFileCount"),
        Named<&IFileListing::GetFileInfo>("FileListing.GetFileInfo"),
        Named<&IFileInfo::GetName>("FileInfo.GetName"),
        Named<&IFileInfo::GetType>("FileInfo.GetType"),
        Named<&IFileInfo::GetId>("FileInfo.GetId"),
        Named<&IFileInfo::GetVersion>("FileInfo.GetVersion"),
        Named<&IFileInfo::GetSize>("FileInfo.GetSize"),
        Named<&IFileInfo::GetLocation>("FileInfo.GetLocation"),
        Named<&IFileInfo::GetGeneration>("FileInfo.GetGeneration"),
        Named<&IKrx10Control::GetCommunicationConfiguration>(
            "Krx10Control.GetCommunicationConfiguration"),
        Named<&IKrx10Control::PrepareMedia>("Krx10Control.PrepareMedia"),
        Named<&IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2>(
            "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2"),
        Named<&IKrx10CommunicationConfiguration2::GetIpAddress>(
            "Krx10CommunicationConfiguration2.GetIpAddress"),
        Named<&IKrx10CommunicationConfiguration2::GetIpAddressValue>(
            "Krx10CommunicationConfiguration2.GetIpAddressValue"),
        Named<&IKrx10CommunicationConfiguration2::GetSubnetMask>(
            "Krx10CommunicationConfiguration2.GetSubnetMask"),
        Named<&IKrx10CommunicationConfiguration2::GetGateway>(
            "Krx10CommunicationConfiguration2.GetGateway"),
        Named<&IKrx10CommunicationConfiguration2::GetUseDhcp>(
            "Krx10CommunicationConfiguration2.GetUseDhcp"),
        Named<&IKrx10CommunicationConfiguration2::GetDescription>(
            "Krx10CommunicationConfiguration2.GetDescription"),
        Named<&IKrx10CommunicationConfiguration2::GetMacAddress>(
            "Krx10CommunicationConfiguration2.GetMacAddress"),
        Named<&IKrx10CommunicationConfiguration2::SetIpAddress>(
            "Krx10CommunicationConfiguration2.SetIpAddress"),
        Named<&IKrx10CommunicationConfiguration2::SetDhcp>(
            "Krx10CommunicationConfiguration2.SetDhcp"),
        Named<&IKrx10CommunicationConfiguration2::SetSubnetMask>(
            "Krx10CommunicationConfiguration2.SetSubnetMask"),
        Named<&IKrx10CommunicationConfiguration2::SetGateway>(
            "Krx10CommunicationConfiguration2.SetGateway"),
        Named<&IKrx10CommunicationConfiguration2::SetDescription>(
            "Krx10CommunicationConfiguration2.SetDescription"),
        Named<&IKrx10CommunicationConfiguration2::ApplyConfiguration>(
            "Krx10CommunicationConfiguration2.ApplyConfiguration"),
    };
    return operations;
}

const std::vector<NamedOperation>& AllEvents() {
    static const std::vector<NamedOperation> events = {
        Named<&_IProgrammingDeviceControlEvents::ModeChanged>(
            "ProgrammingDeviceControlEvents.ModeChanged"),
        Named<&_IProgrammingDeviceControlEvents::DeviceMessage>(
            "ProgrammingDeviceControlEvents.DeviceMessage"),
        Named<&_IProgrammingDeviceControlEvents::Event3>("ProgrammingDeviceControlEvents.Event3"),
        Named<&_IExtConnectionEvents::ConnectionStateChanged>(
            "ExtConnectionEvents.ConnectionStateChanged"),
        Named<&_IExtConnectionEvents::Event2>("ExtConnectionEvents.Event2"),
    };
    return events;
}

std::vector<NamedOperation> OperationsThatDeliver(Delivers delivers) {
    std::vector<NamedOperation> chosen;
    std::copy_if(AllOperations().begin(), AllOperations().end(), std::back_inserter(chosen),
                 [&](const NamedOperation& operation) { return operation.delivers == delivers; });
    return chosen;
}

std::vector<std::string> Names(const std::vector<NamedOperation>& operations) {
    std::vector<std::string> names;
    for (const NamedOperation& operation : operations) {
        names.push_back(operation.name);
    }
    return names;
}

std::vector<std::string> Names(std::span<const Operation> operations) {
    std::vector<std::string> names;
    for (const Operation& operation : operations) {
        names.emplace_back(operation.name);
    }
    return names;
}

std::string TestName(const testing::TestParamInfo<NamedOperation>& info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

TEST(ForwarderTableTest, EveryListedOperationIsTested) {
    EXPECT_THAT(Names(AllOperations()), testing::UnorderedElementsAreArray(Names(Operations())));
}

TEST(ForwarderTableTest, EveryListedEventIsTested) {
    EXPECT_THAT(Names(AllEvents()), testing::UnorderedElementsAreArray(Names(Events())));
}

void ExpectReceivedOnce(const Outcome& outcome) {
    ASSERT_EQ(outcome.received.size(), 1u);
    EXPECT_EQ(outcome.received.front().method, outcome.expected.method);
    EXPECT_EQ(outcome.received.front().arguments, outcome.expected.arguments);
}

class ForwarderTest : public testing::TestWithParam<NamedOperation> {
protected:
    ~ForwarderTest() override { EXPECT_EQ(m_interception.LiveWrappers(), 0u); }

    Outcome Run(Status answer) { return GetParam().run(m_interception, answer); }

    std::shared_ptr<CFaultInjector> m_faults = std::make_shared<CFaultInjector>();
    CInterception m_interception{m_faults};
};

TEST_P(ForwarderTest, CallReachesTargetOnceWithItsArguments) {
    ExpectReceivedOnce(Run(kOtherSuccess));
    EXPECT_EQ(m_faults->Calls(), 1u);
    EXPECT_EQ(m_faults->Calls(GetParam().name), 1u);
}

TEST_P(ForwarderTest, SuccessReturnsStatusAndResultsOfTarget) {
    const Outcome outcome = Run(kOtherSuccess);
    EXPECT_EQ(outcome.status, kOtherSuccess);
    EXPECT_EQ(outcome.after, outcome.delivered);
}

TEST_P(ForwarderTest, FailureOfTargetLeavesResultsUntouched) {
    const Outcome outcome = Run(kNoSuchInterface);
    EXPECT_EQ(outcome.status, kNoSuchInterface);
    EXPECT_EQ(outcome.after, outcome.before);
}

TEST_P(ForwarderTest, FailureOfInterceptorKeepsCallFromTarget) {
    m_faults->Fail({.number = 1, .operation = GetParam().name}, {.status = Status(-5)});
    const Outcome outcome = Run(kSuccess);
    EXPECT_EQ(outcome.status, Status(-5));
    EXPECT_THAT(outcome.received, IsEmpty());
    EXPECT_EQ(outcome.after, outcome.before);
}

TEST_P(ForwarderTest, TableDeliversWhatSignatureSays) {
    ASSERT_NE(FindOperation(GetParam().name), nullptr);
    EXPECT_EQ(FindOperation(GetParam().name)->delivers, GetParam().delivers);
}

INSTANTIATE_TEST_SUITE_P(Operations, ForwarderTest, testing::ValuesIn(AllOperations()), TestName);

class ObjectForwarderTest : public ForwarderTest {};

TEST_P(ObjectForwarderTest, SuccessWithoutRunDeliversNull) {
    m_faults->DeliverNull({.number = 1});
    const Outcome outcome = Run(kSuccess);
    EXPECT_EQ(outcome.status, kSuccess);
    EXPECT_THAT(outcome.received, IsEmpty());
    EXPECT_EQ(outcome.after, outcome.null);
    EXPECT_NE(outcome.after, outcome.before);
}

INSTANTIATE_TEST_SUITE_P(Objects, ObjectForwarderTest,
                         testing::ValuesIn(OperationsThatDeliver(Delivers::Object)), TestName);

class EventForwarderTest : public testing::TestWithParam<NamedOperation> {
protected:
    std::shared_ptr<CCallRecorder> m_recorder = std::make_shared<CCallRecorder>();
    CInterception m_interception{m_recorder};
};

TEST_P(EventForwarderTest, EventReachesSinkOnceWithItsArguments) {
    const Outcome outcome = GetParam().run(m_interception, kOtherSuccess);
    ExpectReceivedOnce(outcome);
    EXPECT_EQ(outcome.status, kOtherSuccess);
}

TEST_P(EventForwarderTest, EventPassesUnderItsName) {
    (void)GetParam().run(m_interception, kSuccess);
    EXPECT_THAT(m_recorder->Events(), ElementsAre(GetParam().name));
    EXPECT_THAT(m_recorder->Calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Events, EventForwarderTest, testing::ValuesIn(AllEvents()), TestName);

}

}
