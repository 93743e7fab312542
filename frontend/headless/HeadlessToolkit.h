#pragma once

#include "frontend/common/Files.h"
#include "frontend/headless/HeadlessDesktop.h"
#include "frontend/headless/HeadlessView.h"
#include "panel/control/FileDialog.h"
#include "panel/control/PopupMenu.h"
#include "panel/control/Toolkit.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace headless {

/// A toolkit without a screen: prompts take their answers from the desktop's queue, and all that is
/// shown is noted there. The font is 7 x 13 pixels, so that the panel is 788 x 478. A test may
/// derive from it to do one verb its own way.
class CHeadlessToolkit : public panel::IToolkit {
public:
    CHeadlessToolkit();
    explicit CHeadlessToolkit(std::shared_ptr<HeadlessDesktop> desktop);

    /// Never null.
    const std::shared_ptr<HeadlessDesktop>& Desktop() const { return m_desktop; }

    /// `nativeParent` is ignored.
    std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                             void* nativeParent,
                                             panel::IDialogHandler& handler) override;
    panel::DialogOutcome RunDialog(const panel::DialogTemplate& dialogTemplate,
                                   panel::IDialogHandler& handler, panel::Owner owner) override;
    std::int32_t ShowBox(const std::string& text, const std::string& caption,
                         std::uint32_t style) override;
    std::unique_ptr<panel::IPopupMenu> CreatePopupMenu(int& error) override;
    panel::FileOutcome OpenFile(const panel::FileDialog& dialog) override;
    panel::FileOutcome SaveFile(const panel::FileDialog& dialog) override;
    char GetPathSeparator() const override { return m_desktop->pathSeparator; }
    std::string GetCurrentFolder() const override { return common::GetCurrentFolder(); }
    bool WriteFile(const std::string& path, std::string_view content) override {
        return common::WriteFile(path, content);
    }
    panel::LocalTime GetLocalTime() const override { return m_desktop->now; }
    panel::IRegistry& Registry() override { return m_desktop->registry; }
    void PushWaitCursor() override;
    void PopCursor() override;
    void ShowHelp(const std::string& file, std::uint32_t context, panel::Owner owner) override;
    std::string GetComponentFolder() const override { return m_desktop->componentFolder; }
    panel::FontMetrics MeasureFont() const override;
    void Trace(const std::string& line) override;

private:
    panel::FileOutcome RunFileDialog(const panel::FileDialog& dialog, FileDialogKind kind);

    std::shared_ptr<HeadlessDesktop> m_desktop;
};

}
