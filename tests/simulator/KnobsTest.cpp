#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/HardwareInfo.h"
#include "contract/host/Subsystem.h"
#include "tests/simulator/HostFixture.h"

#include <optional>

namespace simulator {
namespace {

using contract::kSuccess;
using std::chrono::milliseconds;

constexpr auto kGetHardwareInfo = "ProgrammingDeviceControl.GetHardwareInfo";

class KnobsTest : public HostFixture {
protected:
    void InsertDeviceWithFault(Fault fault) {
        DeviceDescription description;
        description.faults.push_back(std::move(fault));
        InsertDevice(std::move(description));
    }
    void InsertDeviceWithLoss(std::uint32_t call, std::optional<std::uint32_t> returnsAfterCalls) {
        DeviceDescription description;
        description.files = {{"a.fia", 22, 1, "", 1, 2, 0, ""}};
        description.loss = DeviceLoss{kGetHardwareInfo, call, returnsAfterCalls};
        InsertDevice(std::move(description));
    }
    void InsertDeviceWithLatency(Latency latency) {
        DeviceDescription description;
        description.latency = std::move(latency);
        InsertDevice(std::move(description));
    }
};

TEST_F(KnobsTest, FaultFailsTheNthCallOnly) {
    InsertDeviceWithFault(
        {kGetHardwareInfo, 2, false, contract::Status::FromBits(0x80040123), "Link broken"});
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
    ExpectFailure(CallGetHardwareInfo(), 0x80040123, "Link broken");
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
}

TEST_F(KnobsTest, FaultWithoutDescriptionLeavesNone) {
    InsertDeviceWithFault({kGetHardwareInfo, 1, false, contract::kUnspecifiedFailure, ""});
    ExpectFailure(CallGetHardwareInfo(), 0x80004005, "");
}

TEST_F(KnobsTest, NullFaultSucceedsWithoutObject) {
    InsertDeviceWithFault({kGetHardwareInfo, 1, true, {}, ""});
    std::shared_ptr<contract::IHardwareInfo> info;
    EXPECT_EQ(Control()->GetHardwareInfo(info), kSuccess);
    EXPECT_EQ(info, nullptr);
}

TEST_F(KnobsTest, FaultReachesObjectsOfTheDevice) {
    InsertDeviceWithFault({"HardwareInfo.GetSerialNumber", 1, false, contract::Status(-7), "gone"});
    const auto info = ObjectOf(*Control(), &contract::IProgrammingDeviceControl::GetHardwareInfo);
    std::int32_t serialNumber = 5;
    EXPECT_EQ(info->GetSerialNumber(serialNumber), contract::Status(-7));
    EXPECT_EQ(serialNumber, 5);
}

TEST_F(KnobsTest, FaultReachesOperationsOfTheHost) {
    InsertDeviceWithFault({"SubsystemAccess.GetSubsystem", 1, false, contract::Status(-8), ""});
    std::shared_ptr<contract::ISubsystem> subsystem;
    EXPECT_EQ(
        m_host.SubsystemAccess()->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem),
        contract::Status(-8));
    EXPECT_EQ(subsystem, nullptr);
}

TEST_F(KnobsTest, InsertingAgainCountsFromTheStart) {
    InsertDeviceWithFault({kGetHardwareInfo, 1, false, contract::Status(-9), ""});
    EXPECT_EQ(CallGetHardwareInfo(), contract::Status(-9));
    m_host.InsertDevice(m_host.Device());
    EXPECT_EQ(CallGetHardwareInfo(), contract::Status(-9));
}

TEST_F(KnobsTest, NextDeviceIsFreeOfTheOldKnobs) {
    InsertDeviceWithFault({kGetHardwareInfo, 1, false, contract::Status(-9), ""});
    InsertDevice({});
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
}

TEST_F(KnobsTest, ControlObtainedBeforeReachesTheKnobsOfLaterDevices) {
    InsertDevice({});
    const auto control = Control();
    InsertDeviceWithFault({"HardwareInfo.GetDeviceType", 1, false, contract::Status(-3), ""});
    const auto info = ObjectOf(*control, &contract::IProgrammingDeviceControl::GetHardwareInfo);
    std::int32_t type = 0;
    EXPECT_EQ(info->GetDeviceType(type), contract::Status(-3));
}

TEST_F(KnobsTest, DefaultLatencyAppliesToDeviceOperations) {
    InsertDeviceWithLatency({5, {}});
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
    // The control itself is obtained from the device service, too; the way there is the host's.
    EXPECT_EQ(m_waits,
              (std::vector<interception::CLatency::Duration>{milliseconds(5), milliseconds(5)}));
}

TEST_F(KnobsTest, LatencyOfAnOperationReplacesTheDefault) {
    const auto control = Control();
    InsertDeviceWithLatency({5, {{kGetHardwareInfo, 70}, {"HardwareInfo.GetSerialNumber", 9}}});
    const auto info = ObjectOf(*control, &contract::IProgrammingDeviceControl::GetHardwareInfo);
    ValueOf(*info, &contract::IHardwareInfo::GetDeviceType);
    ValueOf(*info, &contract::IHardwareInfo::GetSerialNumber);
    EXPECT_EQ(m_waits, (std::vector<interception::CLatency::Duration>{
                           milliseconds(70), milliseconds(5), milliseconds(9)}));
}

TEST_F(KnobsTest, WithoutLatencyNothingWaits) {
    InsertDeviceWithFault({kGetHardwareInfo, 9, false, contract::Status(-9), ""});
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
    EXPECT_TRUE(m_waits.empty());
}

TEST_F(KnobsTest, LossRemovesDeviceAndRaisesStateInsideTheCall) {
    HearConnection(m_log);
    InsertDeviceWithLoss(2, std::nullopt);
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
    EXPECT_EQ(m_log->events, Events{});
    ExpectFailure(CallGetHardwareInfo(), 0x8007048F, "The programming device was disconnected");
    EXPECT_EQ(m_log->events, Events{"state 0 5"});
    EXPECT_EQ(m_host.Device(), nullptr);
    ExpectFailure(CallGetHardwareInfo(), 0x8007048F, "No programming device is connected");
    EXPECT_EQ(m_log->events, Events{"state 0 5"});
}

TEST_F(KnobsTest, LostDeviceReturnsAfterFurtherCalls) {
    const auto control = Control();
    HearConnection(m_log);
    InsertDeviceWithLoss(1, 2);
    std::shared_ptr<contract::IHardwareInfo> info;
    for (int call = 0; call < 3; ++call) {
        EXPECT_EQ(control->GetHardwareInfo(info), contract::Status::FromBits(0x8007048F));
        EXPECT_EQ(m_log->events, Events{"state 0 5"}) << call;
    }
    EXPECT_EQ(control->GetHardwareInfo(info), kSuccess);
    EXPECT_EQ(m_log->events, (Events{"state 0 5", "state 0 7"}));
}

TEST_F(KnobsTest, LostDeviceReturnsOnRequestOnce) {
    HearConnection(m_log);
    InsertDeviceWithLoss(1, std::nullopt);
    const auto device = m_host.Device();
    EXPECT_TRUE(CallGetHardwareInfo().IsFailure());
    m_host.BringBackLostDevice();
    EXPECT_EQ(m_host.Device(), device);
    m_host.BringBackLostDevice();
    EXPECT_EQ(m_log->events, (Events{"state 0 5", "state 0 7"}));
    EXPECT_EQ(CallGetHardwareInfo(), kSuccess);
}

TEST_F(KnobsTest, RemovedDeviceDoesNotReturn) {
    HearConnection(m_log);
    InsertDeviceWithLoss(1, 0);
    EXPECT_TRUE(CallGetHardwareInfo().IsFailure());
    m_host.RemoveDevice();
    m_host.BringBackLostDevice();
    EXPECT_TRUE(CallGetHardwareInfo().IsFailure());
    EXPECT_EQ(m_host.Device(), nullptr);
    EXPECT_EQ(m_log->events, Events{"state 0 5"});
}

TEST_F(KnobsTest, CallsInsideTheLossEventFindNoDevice) {
    HearConnection(m_log);
    std::optional<contract::Status> inside;
    m_log->onEvent = [&] {
        m_log->onEvent = [] {};
        inside = CallGetHardwareInfo();
    };
    InsertDeviceWithLoss(1, std::nullopt);
    EXPECT_TRUE(CallGetHardwareInfo().IsFailure());
    EXPECT_EQ(inside, contract::Status::FromBits(0x8007048F));
}

TEST(KnobOptionsTest, HostWithoutKnobsIgnoresThem) {
    CHost host({false, {}});
    DeviceDescription description;
    description.latency.defaultMs = 60000;
    description.faults.push_back(
        {"ConnectionState.IsConnected", 1, false, contract::Status(-1), ""});
    host.InsertDevice(CDevice::Create(description));
    const auto state = ObjectOf(*host.Connection(), &contract::IConnection::QueryConnectionState);
    EXPECT_TRUE(ValueOf(*state, &contract::IConnectionState::IsConnected));
}

}
}
