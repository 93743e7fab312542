#pragma once

#include "frontend/headless/HeadlessToolkit.h"
#include "fuzz/support/Person.h"

#include <memory>
#include <string>
#include <string_view>

namespace fuzz {

/// The headless toolkit with somebody before it who answers prompts as they open, where the queue
/// of the tests has to know them beforehand. Files are written nowhere.
class CPersonalToolkit final : public headless::CHeadlessToolkit {
public:
    /// `person` outlives the toolkit.
    CPersonalToolkit(std::shared_ptr<headless::HeadlessDesktop> desktop, IPerson& person)
        : CHeadlessToolkit(std::move(desktop)), m_person(person) {}

    panel::DialogOutcome RunDialog(const panel::DialogTemplate& dialogTemplate,
                                   panel::IDialogHandler& handler, panel::Owner owner) override;
    std::int32_t ShowBox(const std::string& text, const std::string& caption,
                         std::uint32_t style) override;
    std::unique_ptr<panel::IPopupMenu> CreatePopupMenu(int& error) override;
    panel::FileOutcome OpenFile(const panel::FileDialog& dialog) override;
    panel::FileOutcome SaveFile(const panel::FileDialog& dialog) override;
    std::string GetCurrentFolder() const override { return "/current"; }
    bool WriteFile(const std::string& path, std::string_view content) override {
        return m_person.TakeFile(path, content);
    }

private:
    panel::FileOutcome RunFileDialog(const panel::FileDialog& dialog,
                                     headless::FileDialogKind kind);

    IPerson& m_person;
};

}
