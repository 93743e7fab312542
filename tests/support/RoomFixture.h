#pragma once

#include "panel/control/DeviceControls.h"
#include "panel/control/Help.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelServices.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelView.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/DeviceEvents.h"
#include "panel/device/DeviceReset.h"
#include "panel/files/CodeUpload.h"
#include "panel/files/FileContextMenu.h"
#include "panel/files/FileDeletion.h"
#include "panel/files/FileListKeys.h"
#include "panel/files/FileListing.h"
#include "panel/files/FileMove.h"
#include "panel/files/PhoneFileUpload.h"
#include "panel/info/DeviceInformation.h"
#include "panel/info/FreeMemory.h"
#include "panel/info/MaintenanceReport.h"
#include "panel/info/RefreshSequence.h"
#include "panel/netconf/NetworkConfiguration.h"
#include "panel/selftest/SelfTestStatus.h"
#include "panel/update/IniUpdate.h"
#include "panel/update/RegUpdate.h"
#include "panel/update/UpdateCheck.h"
#include "tests/support/PanelFixture.h"

#include <memory>

namespace support {

/// The rooms of a panel and what they share, without the panel object around them.
class CRooms final : public panel::IDialogHandler, public panel::IDeviceEventHandler {
public:
    CRooms(std::unique_ptr<panel::IToolkit> newToolkit,
           std::shared_ptr<contract::IContext> hostContext);

    void OnInit(panel::IView& attached) override;
    void OnCommand(panel::ControlId) override {}
    void OnModeChanged(std::int32_t mode) override { events.OnModeChanged(mode); }
    void OnDeviceMessage(const std::string& text, std::uint32_t done,
                         std::uint32_t total) override {
        events.OnDeviceMessage(text, done, total);
    }

    const std::unique_ptr<panel::IToolkit> toolkit;
    const std::shared_ptr<contract::IContext> context;
    panel::CPanelView view;
    panel::PanelState state;
    panel::COutputArea output{view, *toolkit, context};
    panel::CDeviceConnection device;
    panel::PanelServices services{view, *toolkit, output, device, state};
    panel::CDeviceEvents events{services};
    panel::CHelp help{*toolkit};
    panel::CDeviceControls controls{view, state};
    panel::CFreeMemory freeMemory{services};
    panel::CDeviceInformation information{services, freeMemory};
    panel::CFileListing files{services};
    panel::CSelfTestStatus selfTests{services, help};
    panel::CRegUpdate updateSettings{*toolkit};
    panel::CIniUpdate iniUpdate{services, updateSettings, controls};
    panel::CUpdateCheck updateCheck{services, updateSettings, iniUpdate, help};
    panel::CRefreshSequence refresh{services, selfTests, information, files, updateCheck, controls};
    panel::CDeviceReset reset{services, refresh};
    panel::CMaintenanceReport report{services};
    panel::CNetworkConfiguration network{services, help, refresh};
    panel::CFileDeletion deletion{services, freeMemory, files};
    panel::CFileMove move{services, freeMemory, files};
    panel::CPhoneFileUpload phoneUpload{services, help, freeMemory, files};
    panel::CCodeUpload codeUpload{services, controls, refresh};
    panel::CFileContextMenu fileMenu{
        services, files, controls, {phoneUpload, deletion, move, codeUpload}};
    panel::CFileListKeys fileKeys{services, deletion, fileMenu};
    std::unique_ptr<panel::IView> ownedView;
};

/// Runs one sequence of the panel by itself, in a state that the test sets. What a user sees of it
/// is seen as in PanelFixture, whose own panel stays unused.
class RoomFixture : public PanelFixture {
protected:
    /// A view with its columns; no device control yet.
    void SetUp() override;
    void TearDown() override;

    /// Inserts the device and, the first time, obtains the device control.
    void Insert(const simulator::DeviceDescription& description);

    /// Connects the rooms to another device than the host's; before any Insert.
    void ConnectTo(const std::shared_ptr<contract::ISubsystemAccess>& access);

    panel::PanelState& State() { return rooms->state; }

    std::shared_ptr<CRooms> rooms;
};

}
