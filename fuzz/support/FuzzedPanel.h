#pragma once

#include "fuzz/support/Person.h"
#include "tests/support/PanelFixture.h"

#include <memory>

namespace fuzz {

/// The panel in a simulated host, as the tests have it, with a person before it.
///
/// What a test would count as a failure ends the process, as Require does. The end of the panel,
/// whoever brings it about, leaves nothing behind.
class CFuzzedPanel : public support::PanelFixture {
public:
    /// `person` outlives the panel.
    explicit CFuzzedPanel(IPerson& person);

protected:
    /// Nothing is open and nobody waits.
    void RequireIdle();
    /// Ends the panel and requires that it let go of everything.
    void End();
    /// Ends a panel whose host has refused to let it go.
    void Release();

    /// Null after the view's end.
    headless::CHeadlessView* PanelView() { return desktop->windows.PanelView(); }
    /// What the host offers at first.
    const std::shared_ptr<contract::IMessageService>& MessageService() const { return m_service; }

private:
    void TestBody() override {}

    const std::shared_ptr<contract::IMessageService> m_service;
};

}
