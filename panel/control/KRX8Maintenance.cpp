#include "panel/control/KRX8Maintenance.h"

#include "contract/host/HostViewControl.h"
#include "panel/control/Call.h"
#include "panel/control/PanelLayout.h"
#include "panel/control/PanelTemplate.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace panel {

using contract::Status;

namespace {

// The log is made ready before the others are looked for.
constexpr ControlId kFirstCapturedControl[] = {kStatusLog};
constexpr ControlId kCapturedControls[] = {
    kProgressGroup, kFileGroup,          kUpdateButton,      kDetailsButton,  kDeleteButton,
    kReportButton,  kFileList,           kResetButton,       kHelpButton,     kCloseButton,
    kNetworkButton, kInfoGroup,          kSerialNumberField, kHardwareField,  kBootSwField,
    kFpgaField,     kApplicationSwField, kSelfTestField,     kIpAddressLabel, kIpAddressField};

std::uint16_t ToLength(int pixels) {
    return static_cast<std::uint16_t>(
        std::clamp(pixels, 0, int{std::numeric_limits<std::uint16_t>::max()}));
}

}

std::shared_ptr<CKRX8Maintenance> CKRX8Maintenance::Create(std::unique_ptr<IToolkit> toolkit) {
    return std::make_shared<CKRX8Maintenance>(Private{}, std::move(toolkit));
}

CKRX8Maintenance::CKRX8Maintenance(Private, std::unique_ptr<IToolkit> toolkit)
    : m_toolkit(std::move(toolkit)),
      m_output(m_view, *m_toolkit, Context()),
      m_services{m_view, *m_toolkit, m_output, Device(), m_state},
      m_help(*m_toolkit),
      m_controls(m_view, m_state),
      m_deviceEvents(m_services),
      m_freeMemory(m_services),
      m_information(m_services, m_freeMemory),
      m_files(m_services),
      m_selfTests(m_services, m_help),
      m_updateSettings(*m_toolkit),
      m_iniUpdate(m_services, m_updateSettings, m_controls),
      m_updateCheck(m_services, m_updateSettings, m_iniUpdate, m_help),
      m_refresh(m_services, m_selfTests, m_information, m_files, m_updateCheck, m_controls),
      m_typeReader(m_services, m_refresh),
      m_reset(m_services, m_refresh),
      m_report(m_services),
      m_network(m_services, m_help, m_refresh),
      m_deletion(m_services, m_freeMemory, m_files),
      m_move(m_services, m_freeMemory, m_files),
      m_phoneUpload(m_services, m_help, m_freeMemory, m_files),
      m_codeUpload(m_services, m_controls, m_refresh),
      m_fileMenu(m_services, m_files, m_controls,
                 {m_phoneUpload, m_deletion, m_move, m_codeUpload}),
      m_fileKeys(m_services, m_deletion, m_fileMenu) {}

CKRX8Maintenance::~CKRX8Maintenance() {
    // Host code runs below; nothing the user does meanwhile may reach a panel that is going.
    m_view.Detach();
    m_ownedView.reset();
    Detach();
}

Status CKRX8Maintenance::CreateView(void* nativeParent) {
    if (m_hadView) {
        return contract::kUnspecifiedFailure;
    }
    const auto self = Self();
    // Before the view is made: a host may ask for another one from inside.
    m_hadView = true;
    auto view = m_toolkit->CreateView(kPanelTemplate, nativeParent, *this);
    if (!view) {
        m_hadView = false;
        return nativeParent ? contract::kUnspecifiedFailure : contract::kInvalidPointer;
    }
    if (!m_view.Exists()) {
        // The host has called DestroyView while the view was being made.
        return contract::kUnspecifiedFailure;
    }
    m_ownedView = std::move(view);
    return contract::kSuccess;
}

contract::PixelSize CKRX8Maintenance::GetNaturalSize() const {
    const Size size = ToPixels(kPanelTemplate.size, m_toolkit->MeasureFont());
    return {size.width, size.height};
}

void CKRX8Maintenance::Resize(contract::PixelSize size) {
    const auto self = Self();
    m_view->SetSize({ToLength(size.width), ToLength(size.height)});
}

void CKRX8Maintenance::DestroyView() {
    const auto self = Self();
    m_view.Detach();
    m_ownedView.reset();
}

void CKRX8Maintenance::Arrive(const Notification& notification) {
    // A front end may have something to tell to the last. A panel that has let go of its view, and
    // one that is itself going, hears no more of it.
    const auto self = weak_from_this().lock();
    if (self && m_view.Exists()) {
        Dispatch(*this, notification);
    }
}

void CKRX8Maintenance::OnInit(IView& view) {
    m_view.Attach(view);
    Arrive({PanelEvent::Created});
}

void CKRX8Maintenance::OnCommand(ControlId id) {
    Arrive({.event = PanelEvent::ButtonPressed, .source = id});
}

void CKRX8Maintenance::OnResized(Size size) {
    Arrive({.event = PanelEvent::Resized, .size = size});
}

void CKRX8Maintenance::OnListKeyDown(ControlId list, std::uint16_t virtualKey) {
    Arrive({.event = PanelEvent::ListKeyPressed, .source = list, .virtualKey = virtualKey});
}

void CKRX8Maintenance::OnListRightClick(ControlId list, Point screen) {
    Arrive({.event = PanelEvent::ListRightClicked, .source = list, .screen = screen});
}

void CKRX8Maintenance::OnHelp(std::uint32_t context) {
    Arrive({.event = PanelEvent::HelpRequested, .helpContext = context});
}

void CKRX8Maintenance::OnViewCreated(const Notification&) { InitializePanel(); }

void CKRX8Maintenance::OnViewResized(const Notification& notification) {
    LayoutPanel(ToLength(notification.size.width), ToLength(notification.size.height));
}

void CKRX8Maintenance::OnHelpRequest(const Notification& notification) {
    m_help.ShowHelp(notification.helpContext);
}

void CKRX8Maintenance::OnHelpButton(const Notification&) { m_help.ShowHelp(); }

void CKRX8Maintenance::OnDetails(const Notification&) { m_selfTests.ShowDetails(); }

void CKRX8Maintenance::OnUpdate(const Notification&) {
    m_iniUpdate.UpdateFromChosenFile(m_refresh);
}

void CKRX8Maintenance::OnDelete(const Notification&) { m_deletion.DeleteSelectedFiles(); }

void CKRX8Maintenance::OnFileListRightClick(const Notification& notification) {
    m_fileMenu.DisplayAndHandleFileContextMenu(false, notification.screen);
}

void CKRX8Maintenance::OnReport(const Notification&) { m_report.WriteMaintenanceReport(); }

void CKRX8Maintenance::OnReset(const Notification&) { m_reset.ResetDevice(); }

void CKRX8Maintenance::OnNetworkConfiguration(const Notification&) { m_network.Configure(); }

void CKRX8Maintenance::OnFileListKey(const Notification& notification) {
    m_fileKeys.OnFileListKeyDown(notification.virtualKey);
}

void CKRX8Maintenance::OnClose(const Notification&) { ClosePanel(); }

bool CKRX8Maintenance::InitializePanel() {
    std::shared_ptr<contract::IHostViewControl> viewControl;
    if (Query(Context(), &contract::IContext::QueryHostViewControl, viewControl).IsFailure()) {
        // Nobody could close this panel, so it is left as a bare view: nothing captured, no
        // columns.
        m_view->SetVisible(kCloseButton, false);
        return false;
    }
    m_view.Capture(kFirstCapturedControl);
    m_view->SetTextLimit(m_view[kStatusLog], kNoTextLimit);
    m_view.Capture(kCapturedControls);
    m_files.InsertColumns();
    m_view->SetFocus(m_view[kUpdateButton]);
    return true;
}

void CKRX8Maintenance::LayoutPanel(std::uint16_t width, std::uint16_t height) {
    const auto placements =
        LayOutControls({width, height}, m_view->GetClientSize(),
                       [this](ControlId id) { return m_view->GetRectangle(m_view[id]); });
    for (const Placement& placement : placements) {
        m_view->Move(m_view[placement.id], placement.rectangle);
    }
}

void CKRX8Maintenance::ClosePanel() {
    std::shared_ptr<contract::IHostViewControl> viewControl;
    if (Query(Context(), &contract::IContext::QueryHostViewControl, viewControl).IsSuccess()) {
        static_cast<void>(Call(viewControl, &contract::IHostViewControl::ClosePanel));
    }
}

Status CKRX8Maintenance::Go() {
    const auto self = Self();
    bool isConnected = false;
    const Status status =
        Call(ConnectionState(), &contract::IConnectionState::IsConnected, isConnected);
    if (status.IsSuccess() && isConnected) {
        m_typeReader.ReadDeviceType();
    }
    return contract::kSuccess;
}

void CKRX8Maintenance::OnModeChanged(std::int32_t mode) { m_deviceEvents.OnModeChanged(mode); }

void CKRX8Maintenance::OnDeviceMessage(const std::string& text, std::uint32_t done,
                                       std::uint32_t total) {
    m_deviceEvents.OnDeviceMessage(text, done, total);
}

void CKRX8Maintenance::OnDeviceConnected() {
    m_output.ClearStatusLog();
    m_typeReader.ReadDeviceType();
}

void CKRX8Maintenance::OnDeviceDisconnected() {
    m_controls.EnableDeviceControls(false);
    m_state.deviceMode = DeviceMode::NotYetKnown;
}

}
