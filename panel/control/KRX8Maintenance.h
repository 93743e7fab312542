#pragma once

#include "contract/panel/Panel.h"
#include "panel/control/CommandTable.h"
#include "panel/control/DeviceControls.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/Help.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelServices.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelView.h"
#include "panel/control/Toolkit.h"
#include "panel/device/ConnectionClientImpl2.h"
#include "panel/device/ContextMemberImpl.h"
#include "panel/device/DeviceEvents.h"
#include "panel/device/DeviceReset.h"
#include "panel/device/DeviceTypeReader.h"
#include "panel/device/ProgrammingDeviceClientImpl.h"
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

#include <cstdint>
#include <memory>
#include <string>

namespace panel {

/// The maintenance panel: what a host embeds (contract/panel/Panel.h).
///
/// Owns the state, the view and one object per sequence, and routes what arrives from host, device
/// and view to them; holds no device sequence itself. Held by shared references only: every entry
/// keeps the panel alive until it returns, so a host may release it from inside. Its end lets go of
/// connection, device events and context. User-interface thread only.
class CKRX8Maintenance final : public contract::IPanel,
                               public IContextMemberImpl<CKRX8Maintenance>,
                               public CProgrammingDeviceClientImpl<CKRX8Maintenance>,
                               public IConnectionClientImpl2<CKRX8Maintenance>,
                               public IDeviceEventHandler,
                               public IDialogHandler,
                               public std::enable_shared_from_this<CKRX8Maintenance> {
    struct Private {};

public:
    static std::shared_ptr<CKRX8Maintenance> Create(std::unique_ptr<IToolkit> toolkit);

    CKRX8Maintenance(Private, std::unique_ptr<IToolkit> toolkit);
    ~CKRX8Maintenance() override;
    CKRX8Maintenance(const CKRX8Maintenance&) = delete;
    CKRX8Maintenance& operator=(const CKRX8Maintenance&) = delete;

    // contract::IPanel
    contract::Status CreateView(void* nativeParent) override;
    contract::PixelSize GetNaturalSize() const override;
    void Resize(contract::PixelSize size) override;
    void DestroyView() override;
    contract::Status Go() override;

    // IDialogHandler: arrivals from the view
    void OnInit(IView& view) override;
    void OnCommand(ControlId id) override;
    void OnResized(Size size) override;
    void OnListKeyDown(ControlId list, std::uint16_t virtualKey) override;
    void OnListRightClick(ControlId list, Point screen) override;
    void OnHelp(std::uint32_t context) override;

    // Device events
    void OnModeChanged(std::int32_t mode) override;
    void OnDeviceMessage(const std::string& text, std::uint32_t done, std::uint32_t total) override;

    // The connection. The first three are places for a panel that has something to do there; this
    // one does not.
    void OnAfterAttach() {}
    void OnBeforeDetach() {}
    void OnConnectionEvent(contract::Status, std::int32_t) {}
    void OnDeviceConnected();
    void OnDeviceDisconnected();

    // Handlers of the command table
    void OnViewCreated(const Notification&);
    void OnViewResized(const Notification& notification);
    void OnHelpRequest(const Notification& notification);
    void OnHelpButton(const Notification&);
    void OnDetails(const Notification&);
    void OnUpdate(const Notification&);
    void OnDelete(const Notification&);
    void OnFileListRightClick(const Notification& notification);
    void OnFileListKey(const Notification& notification);
    void OnReport(const Notification&);
    void OnReset(const Notification&);
    void OnClose(const Notification&);
    void OnNetworkConfiguration(const Notification&);

    std::shared_ptr<CKRX8Maintenance> Self() { return shared_from_this(); }
    COutputArea& Output() { return m_output; }
    const PanelState& State() const { return m_state; }

private:
    void Arrive(const Notification& notification);
    bool InitializePanel();
    void LayoutPanel(std::uint16_t width, std::uint16_t height);
    void ClosePanel();

    std::unique_ptr<IToolkit> m_toolkit;
    CPanelView m_view;
    PanelState m_state;
    COutputArea m_output;
    PanelServices m_services;
    CHelp m_help;
    CDeviceControls m_controls;
    CDeviceEvents m_deviceEvents;
    CFreeMemory m_freeMemory;
    CDeviceInformation m_information;
    CFileListing m_files;
    CSelfTestStatus m_selfTests;
    CRegUpdate m_updateSettings;
    CIniUpdate m_iniUpdate;
    CUpdateCheck m_updateCheck;
    CRefreshSequence m_refresh;
    CDeviceTypeReader m_typeReader;
    CDeviceReset m_reset;
    CMaintenanceReport m_report;
    CNetworkConfiguration m_network;
    CFileDeletion m_deletion;
    CFileMove m_move;
    CPhoneFileUpload m_phoneUpload;
    CCodeUpload m_codeUpload;
    CFileContextMenu m_fileMenu;
    CFileListKeys m_fileKeys;
    // Last, so that it ends before what its handler uses.
    std::unique_ptr<IView> m_ownedView;
    bool m_hadView = false;
};

}
