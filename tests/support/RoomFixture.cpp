#include "tests/support/RoomFixture.h"

#include "frontend/headless/HeadlessToolkit.h"

#include <utility>

namespace support {

namespace {

constexpr panel::ControlId kCapturedControls[] = {
    panel::kStatusLog,         panel::kUpdateButton,       panel::kDetailsButton,
    panel::kDeleteButton,      panel::kReportButton,       panel::kFileList,
    panel::kResetButton,       panel::kNetworkButton,      panel::kInfoGroup,
    panel::kSerialNumberField, panel::kHardwareField,      panel::kBootSwField,
    panel::kFpgaField,         panel::kApplicationSwField, panel::kSelfTestField,
    panel::kIpAddressLabel,    panel::kIpAddressField};

}

CRooms::CRooms(std::unique_ptr<panel::IToolkit> newToolkit,
               std::shared_ptr<contract::IContext> hostContext)
    : toolkit(std::move(newToolkit)), context(std::move(hostContext)) {}

void CRooms::OnInit(panel::IView& attached) {
    view.Attach(attached);
    view.Capture(kCapturedControls);
}

void RoomFixture::SetUp() {
    rooms = std::make_shared<CRooms>(std::make_unique<headless::CHeadlessToolkit>(desktop),
                                     interception.Wrap(host.Context()));
    rooms->ownedView = rooms->toolkit->CreateView(panel::kPanelTemplate, nullptr, *rooms);
    ASSERT_TRUE(rooms->ownedView);
    rooms->files.InsertColumns();
}

void RoomFixture::TearDown() {
    rooms.reset();
    PanelFixture::TearDown();
}

void RoomFixture::Insert(const simulator::DeviceDescription& description) {
    host.InsertDevice(simulator::CDevice::Create(description));
    ASSERT_EQ(rooms->device.ConnectToProgrammingDeviceSubsystem(
                  interception.Wrap(host.SubsystemAccess()),
                  std::make_shared<panel::CProgrammingDeviceControlEvents>(rooms)),
              contract::kSuccess);
    ForgetWhatWasSeen();
}

void RoomFixture::ConnectTo(const std::shared_ptr<contract::ISubsystemAccess>& access) {
    // One that offers no events fails to subscribe, and its control is held all the same.
    static_cast<void>(rooms->device.ConnectToProgrammingDeviceSubsystem(
        access, std::make_shared<panel::CProgrammingDeviceControlEvents>(rooms)));
    ASSERT_TRUE(rooms->device.Control());
}

}
