#include "simulator/Host.h"

#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx10Control.h"
#include "contract/host/HostViewControl.h"
#include "contract/host/MessageService.h"
#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "contract/panel/ContextMember.h"
#include "tests/simulator/HostFixture.h"

namespace simulator {
namespace {

using contract::kSuccess;

class CMember final : public contract::IContextMember {
public:
    contract::Status SetContextAndRegister(const std::shared_ptr<contract::IContext>&) override {
        return kSuccess;
    }
    contract::Status SetContext(const std::shared_ptr<contract::IContext>&) override {
        return kSuccess;
    }
};

class CViewControl final : public contract::IHostViewControl {
public:
    contract::Status ClosePanel() override {
        ++closeRequests;
        return kSuccess;
    }
    int closeRequests = 0;
};

class CMessageService final : public contract::IMessageService {
public:
    contract::Status ShowMessage(const contract::Message& message, std::int32_t& button) override {
        shown = message.text;
        return Give(1, button);
    }
    std::string shown;
};

class HostTest : public HostFixture {
protected:
    std::shared_ptr<contract::ISubsystem> SubsystemOf(const contract::Guid& identifier) {
        std::shared_ptr<contract::ISubsystem> subsystem;
        EXPECT_EQ(m_host.SubsystemAccess()->GetSubsystem(identifier, subsystem), kSuccess);
        return subsystem;
    }
    std::shared_ptr<contract::IProductDetectionControl> PollingControl() {
        const auto product = ObjectOf(*SubsystemOf(contract::kProductInformationSubsystem),
                                      &contract::ISubsystem::QueryProductInformation);
        const auto detection =
            ObjectOf(*product, &contract::IProductInformation::GetProductDetection);
        return ObjectOf(*detection, &contract::IProductDetection::QueryProductDetectionControl);
    }
    bool IsConnected() {
        const auto state =
            ObjectOf(*m_host.Connection(), &contract::IConnection::QueryConnectionState);
        return ValueOf(*state, &contract::IConnectionState::IsConnected);
    }
    std::int32_t DeviceTypeOf(contract::IProgrammingDeviceControl& control) {
        const auto info = ObjectOf(control, &contract::IProgrammingDeviceControl::GetHardwareInfo);
        return ValueOf(*info, &contract::IHardwareInfo::GetDeviceType);
    }
};

TEST_F(HostTest, RegisterCountsCookiesFromOne) {
    const auto member = std::make_shared<CMember>();
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    EXPECT_EQ(m_host.Context()->Register(member, first), kSuccess);
    EXPECT_EQ(m_host.Context()->Register(member, second), kSuccess);
    EXPECT_EQ(first, 1u);
    EXPECT_EQ(second, 2u);
    EXPECT_EQ(m_host.ContextMemberCount(), 2u);
    EXPECT_EQ(member.use_count(), 1);
}

TEST_F(HostTest, UnregisterForgetsOneMember) {
    const auto member = std::make_shared<CMember>();
    std::uint32_t cookie = 0;
    EXPECT_EQ(m_host.Context()->Register(member, cookie), kSuccess);
    EXPECT_EQ(m_host.Context()->Unregister(cookie), kSuccess);
    EXPECT_EQ(m_host.ContextMemberCount(), 0u);
    ExpectFailure(m_host.Context()->Unregister(cookie), 0x80040200,
                  "There is no such context member");
}

TEST_F(HostTest, RegisterNullFails) {
    std::uint32_t cookie = 5;
    ExpectFailure(m_host.Context()->Register(nullptr, cookie), 0x80004003,
                  "There is no context member to register");
    EXPECT_EQ(cookie, 5u);
}

TEST_F(HostTest, ContextWithoutServicesAnswersNoInterface) {
    std::shared_ptr<contract::IHostViewControl> control;
    ExpectFailure(m_host.Context()->QueryHostViewControl(control), 0x80004002,
                  "This host has no view control");
    std::shared_ptr<contract::IMessageService> service;
    ExpectFailure(m_host.Context()->QueryMessageService(service), 0x80004002,
                  "This host has no message service");
}

TEST_F(HostTest, ContextAnswersTheServicesItWasGiven) {
    const auto viewControl = std::make_shared<CViewControl>();
    const auto messageService = std::make_shared<CMessageService>();
    m_host.SetHostViewControl(viewControl);
    m_host.SetMessageService(messageService);
    const auto control = ObjectOf(*m_host.Context(), &contract::IContext::QueryHostViewControl);
    EXPECT_EQ(control->ClosePanel(), kSuccess);
    EXPECT_EQ(viewControl->closeRequests, 1);
    const auto service = ObjectOf(*m_host.Context(), &contract::IContext::QueryMessageService);
    contract::Message message;
    message.text = "hello";
    std::int32_t button = 0;
    EXPECT_EQ(service->ShowMessage(message, button), kSuccess);
    EXPECT_EQ(messageService->shown, "hello");
}

TEST_F(HostTest, SubsystemsAnswerToTheirOwnKindOnly) {
    std::shared_ptr<contract::IProductInformation> product;
    ExpectFailure(
        SubsystemOf(contract::kProgrammingDeviceSubsystem)->QueryProductInformation(product),
        0x80004002, "The subsystem is of another kind");
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> programming;
    ExpectFailure(SubsystemOf(contract::kProductInformationSubsystem)
                      ->QueryProgrammingDeviceSubsystem(programming),
                  0x80004002, "The subsystem is of another kind");
}

TEST_F(HostTest, UnknownSubsystemFails) {
    std::shared_ptr<contract::ISubsystem> subsystem;
    ExpectFailure(m_host.SubsystemAccess()->GetSubsystem(contract::Guid{}, subsystem), 0x80070057,
                  "This host has no subsystem of that identifier");
    EXPECT_EQ(subsystem, nullptr);
}

TEST_F(HostTest, PollingIsOneFlagForHostAndPanel) {
    EXPECT_TRUE(m_host.PollingEnabled());
    EXPECT_EQ(PollingControl()->SetPollingEnabled(false), kSuccess);
    EXPECT_FALSE(m_host.PollingEnabled());
    m_host.SetPollingEnabled(true);
    EXPECT_TRUE(ValueOf(*PollingControl(), &contract::IProductDetectionControl::GetPollingEnabled));
}

TEST_F(HostTest, IsConnectedFollowsTheDevice) {
    EXPECT_FALSE(IsConnected());
    const auto device = InsertDevice({});
    EXPECT_TRUE(IsConnected());
    EXPECT_EQ(m_host.Device(), device);
    m_host.RemoveDevice();
    EXPECT_FALSE(IsConnected());
    EXPECT_EQ(m_host.Device(), nullptr);
}

TEST_F(HostTest, ControlStaysWhileDevicesChange) {
    const auto control = Control();
    InsertDevice(DeviceOfType(kKrx8));
    EXPECT_EQ(Control(), control);
    EXPECT_EQ(DeviceTypeOf(*control), 1);
    InsertDevice(DeviceOfType(kKrx21));
    EXPECT_EQ(Control(), control);
    EXPECT_EQ(DeviceTypeOf(*control), 5);
}

TEST_F(HostTest, InsertAndRemoveRaiseNothing) {
    HearDevice(m_log);
    HearConnection(m_log);
    InsertDevice({});
    m_host.RemoveDevice();
    EXPECT_EQ(m_log->events, Events{});
}

TEST_F(HostTest, OperationsWithoutDeviceFailAsNotConnected) {
    const auto expectNotConnected = [](contract::Status status) {
        ExpectFailure(status, 0x8007048F, "No programming device is connected");
    };
    expectNotConnected(CallGetHardwareInfo());
    expectNotConnected(Control()->RequestMode(contract::ModeRequest::Report));
    expectNotConnected(Control()->DeleteFile(0, 0));
    std::shared_ptr<contract::IFileListing> listing;
    expectNotConnected(Control()->GetFileListing(listing));
    std::shared_ptr<contract::IKrx10Control> krx10Control;
    expectNotConnected(Subsystem()->GetKrx10Control(krx10Control));
}

TEST_F(HostTest, Krx10ControlWithoutItsDeviceFails) {
    InsertDevice({});
    const auto control =
        ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control);
    m_host.RemoveDevice();
    std::shared_ptr<contract::IKrx10CommunicationConfiguration> configuration;
    ExpectFailure(control->GetCommunicationConfiguration(configuration), 0x8007048F,
                  "No programming device is connected");
    ExpectFailure(control->PrepareMedia(contract::Medium::PcCard), 0x8007048F,
                  "No programming device is connected");
}

TEST_F(HostTest, EventsOfTheInsertedDeviceArePassedOn) {
    HearDevice(m_log);
    const auto first = InsertDevice({});
    const auto second = InsertDevice({});
    first->RaiseMode(1);
    second->RaiseMode(2);
    second->RaiseMessage("Copying", 1, 4);
    second->RaiseEvent3(8, 9);
    m_host.RemoveDevice();
    second->RaiseMode(3);
    EXPECT_EQ(m_log->events, (Events{"mode 2", "message Copying 1/4", "event3 8 9"}));
}

TEST_F(HostTest, ConnectionEventsAreRaisedAsGiven) {
    HearConnection(m_log);
    m_host.RaiseConnectionState(kSuccess, contract::kConnectionDeviceReady);
    m_host.RaiseConnectionState(contract::Status(-2), contract::kConnectionDeviceGone);
    m_host.RaiseConnectionEvent2(3, -4);
    EXPECT_EQ(m_log->events, (Events{"state 0 7", "state -2 5", "event2 3 -4"}));
}

TEST_F(HostTest, SubscribersAreCounted) {
    EXPECT_EQ(m_host.DeviceSubscriberCount(), 0u);
    EXPECT_EQ(m_host.ConnectionSubscriberCount(), 0u);
    HearDevice(m_log);
    EXPECT_EQ(m_host.DeviceSubscriberCount(), 1u);
    EXPECT_EQ(m_host.ConnectionSubscriberCount(), 0u);
    HearConnection(m_log);
    EXPECT_EQ(m_host.ConnectionSubscriberCount(), 1u);
}

TEST_F(HostTest, DeviceReplacedInsideItsOwnEventStaysAlive) {
    HearDevice(m_log);
    InsertDevice({});
    m_log->onEvent = [&] { m_host.RemoveDevice(); };
    EXPECT_EQ(Control()->RequestMode(contract::ModeRequest::Normal), kSuccess);
    EXPECT_EQ(m_log->events, Events{"mode 1"});
}

TEST(HostLifeTest, ObjectsAnswerAfterTheHostsEnd) {
    std::shared_ptr<contract::IConnection> connection;
    {
        CHost host;
        host.InsertDevice(CDevice::Create({}));
        connection = host.Connection();
    }
    const auto state = ObjectOf(*connection, &contract::IConnection::QueryConnectionState);
    EXPECT_TRUE(ValueOf(*state, &contract::IConnectionState::IsConnected));
}

TEST(HostLifeTest, HostReleasesDeviceAndServices) {
    const auto device = CDevice::Create({});
    const auto service = std::make_shared<CMessageService>();
    {
        CHost host;
        host.InsertDevice(device);
        host.SetMessageService(service);
    }
    EXPECT_EQ(device.use_count(), 1);
    EXPECT_EQ(service.use_count(), 1);
}

TEST(HostLifeTest, HostWithForgottenSubscriptionsEnds) {
    std::weak_ptr<CDevice> device;
    {
        CHost host;
        DeviceDescription description;
        description.faults.push_back({"FileInfo.GetName", 1, false, contract::Status(-1), ""});
        const auto inserted = CDevice::Create(description);
        device = inserted;
        host.InsertDevice(inserted);
        const auto base = ObjectOf(*host.Connection(), &contract::IConnection::QueryBaseObject);
        const auto source = ObjectOf(
            *base, &contract::IBaseObject<contract::_IExtConnectionEvents>::FindEventSource);
        std::uint32_t cookie = 0;
        EXPECT_EQ(source->Subscribe(std::make_shared<CEventLog>(), cookie), kSuccess);
    }
    EXPECT_TRUE(device.expired());
}

}
}
