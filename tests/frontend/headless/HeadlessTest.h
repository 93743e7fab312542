#pragma once

#include "frontend/headless/HeadlessToolkit.h"
#include "tests/frontend/conformance/RecordingHandler.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace headless {

using Events = std::vector<std::string>;

/// A toolkit on a desktop of its own, with one view of a given template.
class HeadlessTest : public testing::Test {
protected:
    CHeadlessView& Show(const panel::DialogTemplate& dialogTemplate) {
        m_view = m_toolkit.CreateView(dialogTemplate, nullptr, m_handler);
        m_handler.events.clear();
        return *m_desktop->windows.PanelView();
    }

    CPromptQueue& Prompts() { return m_desktop->prompts; }

    std::shared_ptr<HeadlessDesktop> m_desktop = std::make_shared<HeadlessDesktop>();
    CHeadlessToolkit m_toolkit{m_desktop};
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
};

}
