#include "fuzz/support/FuzzedPanel.h"

#include "fuzz/support/PersonalToolkit.h"
#include "fuzz/support/Require.h"

#include <utility>

namespace fuzz {

namespace {

/// Tests go on after a failure; a fuzzer must not.
class CEndOnFailure final : public testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult& result) override {
        Require(!result.failed(), result.message());
    }
};

void ListenOnce() {
    static const bool isListening = [] {
        testing::UnitTest::GetInstance()->listeners().Append(new CEndOnFailure);
        return true;
    }();
    static_cast<void>(isListening);
}

class CPersonalMessageService final : public contract::IMessageService {
public:
    CPersonalMessageService(std::shared_ptr<headless::HeadlessDesktop> desktop, IPerson& person)
        : m_desktop(std::move(desktop)), m_person(person) {}

    contract::Status ShowMessage(const contract::Message& message, std::int32_t& button) override {
        const std::shared_ptr<headless::HeadlessDesktop> desktop = m_desktop;
        const headless::CWindowStack::BoxScope isOpen(desktop->windows);
        button =
            m_person.AnswerBox({message.text, message.caption, message.description, message.style});
        return contract::kSuccess;
    }

private:
    const std::shared_ptr<headless::HeadlessDesktop> m_desktop;
    IPerson& m_person;
};

}

CFuzzedPanel::CFuzzedPanel(IPerson& person)
    : m_service(std::make_shared<CPersonalMessageService>(desktop, person)) {
    ListenOnce();
    panel = panel::CKRX8Maintenance::Create(std::make_unique<CPersonalToolkit>(desktop, person));
    host.SetMessageService(m_service);
}

void CFuzzedPanel::RequireIdle() {
    Require(desktop->cursorDepth == 0, "no wait cursor is left");
    Require(!panel || State().refreshAllowed, "refreshes are allowed");
    const headless::CHeadlessView* view = PanelView();
    Require(!view || desktop->windows.IsActive(*view), "no prompt is left open");
}

void CFuzzedPanel::Release() {
    if (panel) {
        panel->DestroyView();
        panel.reset();
    }
    Require(!PanelView(), "no view is left");
    Require(desktop->cursorDepth == 0, "the end leaves no wait cursor");
}

void CFuzzedPanel::End() {
    Release();
    Require(host.DeviceSubscriberCount() == 0, "nobody hears the device any more");
    Require(host.ConnectionSubscriberCount() == 0, "nobody hears the connection any more");
    Require(host.ContextMemberCount() == 0, "nobody is registered any more");
    Require(interception.LiveWrappers() == 0, "no object of the host is held any more");
}

}
