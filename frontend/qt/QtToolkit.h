#pragma once

#include "frontend/common/Files.h"
#include "frontend/registry/FileRegistry.h"
#include "panel/control/FileDialog.h"
#include "panel/control/PopupMenu.h"
#include "panel/control/Toolkit.h"
#include "panel/control/View.h"

#include <QPointer>

class QWidget;

namespace qt {

class CHelpWindow;

/// The toolkit made of Qt widgets. Needs a QApplication that outlives it.
class CQtToolkit : public panel::IToolkit {
public:
    CQtToolkit() = default;
    ~CQtToolkit() override;
    CQtToolkit(const CQtToolkit&) = delete;
    CQtToolkit& operator=(const CQtToolkit&) = delete;

    /// `nativeParent` is a QWidget*. The view's widget is named "view-" and the template's id.
    std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                             void* nativeParent,
                                             panel::IDialogHandler& handler) override;
    panel::DialogOutcome RunDialog(const panel::DialogTemplate& dialogTemplate,
                                   panel::IDialogHandler& handler, panel::Owner owner) override;
    std::int32_t ShowBox(const std::string& text, const std::string& caption,
                         std::uint32_t style) override;
    /// Never fails.
    std::unique_ptr<panel::IPopupMenu> CreatePopupMenu(int& error) override;
    panel::FileOutcome OpenFile(const panel::FileDialog& dialog) override;
    panel::FileOutcome SaveFile(const panel::FileDialog& dialog) override;
    char GetPathSeparator() const override { return '/'; }
    std::string GetCurrentFolder() const override { return common::GetCurrentFolder(); }
    bool WriteFile(const std::string& path, std::string_view content) override {
        return common::WriteFile(path, content);
    }
    panel::LocalTime GetLocalTime() const override;
    /// Kept in a file; which one is settled when the toolkit is made.
    panel::IRegistry& Registry() override { return m_registry; }
    void PushWaitCursor() override;
    void PopCursor() override;
    /// One window, used again.
    void ShowHelp(const std::string& file, std::uint32_t context, panel::Owner owner) override;
    std::string GetComponentFolder() const override;
    /// The application's font; a parent with a font of its own gives its view that one.
    panel::FontMetrics MeasureFont() const override;
    /// To the standard error stream.
    void Trace(const std::string& line) override;

private:
    QWidget* FindOwner(panel::Owner owner) const;

    registry::CFileRegistry m_registry{registry::FindRegistryFile(),
                                       [this](const std::string& line) { Trace(line); }};
    QPointer<QWidget> m_panelWidget;
    QPointer<CHelpWindow> m_help;
    int m_waitCursors = 0;
};

}
