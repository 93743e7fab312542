#include "tests/support/PanelFixture.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "interception/InterceptorChain.h"
#include "panel/update/SWUpdateInfoTemplate.h"

#include <utility>

namespace support {

namespace {

constexpr int kFileColumns = 7;

std::shared_ptr<interception::IInterceptor>
Chain(std::shared_ptr<interception::IInterceptor> first,
      std::shared_ptr<interception::IInterceptor> second) {
    return std::make_shared<interception::CInterceptorChain>(
        interception::CInterceptorChain::Links{std::move(first), std::move(second)});
}

}

PanelFixture::PanelFixture()
    : messageService(std::make_shared<CMessageServiceDouble>()),
      viewControl(std::make_shared<CHostViewControlDouble>()),
      desktop(std::make_shared<headless::HeadlessDesktop>()),
      host({.areApplied = false}),
      recorder(std::make_shared<interception::CCallRecorder>()),
      faults(std::make_shared<interception::CFaultInjector>()),
      interception(Chain(recorder, faults)),
      panel(
          panel::CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop))) {
    host.SetHostViewControl(viewControl);
    host.SetMessageService(messageService);
    // A device without a package version is offered an update at every refresh.
    desktop->prompts.AnswerAlways(panel::kSWUpdateInfoTemplate.id, panel::kNoButton);
}

PanelFixture::~PanelFixture() = default;

void PanelFixture::TearDown() {
    EndPanel();
    EXPECT_THAT(desktop->prompts.UnexpectedPrompts(), testing::IsEmpty());
    EXPECT_EQ(desktop->prompts.PendingAnswers(), 0u);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

void PanelFixture::StartView() {
    ASSERT_EQ(panel->SetContextAndRegister(HandOver(host.Context())), contract::kSuccess);
    ASSERT_EQ(panel->CreateView(nullptr), contract::kSuccess);
}

void PanelFixture::StartPanel() {
    StartView();
    ASSERT_EQ(panel->SetSubsystemAccess(HandOver(Access())), contract::kSuccess);
    ASSERT_EQ(panel->SetConnection(HandOver(host.Connection())), contract::kSuccess);
}

void PanelFixture::ConnectDevice(const simulator::DeviceDescription& description) {
    host.InsertDevice(simulator::CDevice::Create(description));
    RaiseState(contract::kConnectionDeviceReady);
}

void PanelFixture::DisconnectDevice() {
    RaiseState(contract::kConnectionDeviceGone);
    host.RemoveDevice();
}

void PanelFixture::RaiseState(contract::Status status, std::int32_t state) {
    host.RaiseConnectionState(status, state);
}

void PanelFixture::ForgetWhatWasSeen() {
    messageService->shown.clear();
    messageService->messages.clear();
    recorder->Clear();
    View().ClearLog(panel::kStatusLog);
}

void PanelFixture::EndPanel() {
    if (!panel) {
        return;
    }
    panel->DestroyView();
    panel.reset();
    EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
    EXPECT_EQ(host.ContextMemberCount(), 0u);
    EXPECT_EQ(border.LiveObjects(), 0u);
    EXPECT_EQ(interception.LiveWrappers(), 0u);
}

std::size_t PanelFixture::LeftBehind() const {
    return host.DeviceSubscriberCount() + host.ConnectionSubscriberCount() +
           host.ContextMemberCount() + border.LiveObjects() + interception.LiveWrappers();
}

headless::CHeadlessView& PanelFixture::View() { return *desktop->windows.PanelView(); }

std::vector<std::string> PanelFixture::Row(int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < kFileColumns; ++column) {
        cells.push_back(View().GetCell(panel::kFileList, row, column));
    }
    return cells;
}

std::vector<Shown> PanelFixture::TakeMessages() { return std::exchange(messageService->shown, {}); }

std::vector<std::string> PanelFixture::TakeCalls() {
    const auto calls = recorder->Calls();
    recorder->Clear();
    return {calls.begin(), calls.end()};
}

}
