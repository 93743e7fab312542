#pragma once

#include "panel/control/FileDialog.h"

#include <cstdint>
#include <string>

namespace panel {

class CHelp;
class COutputArea;
class IToolkit;
class IView;

/// What the user chose for a phone file upload, as the device takes it; proposed again next time.
struct PhoneFileUploadChoice {
    std::int32_t destination = 0; ///< 0 default, 1 RAM, 2 flash, 3 external storage
    std::int32_t method = 3;      ///< 0 default, 1 force, 2 version, 3 flashing

    friend constexpr bool operator==(PhoneFileUploadChoice, PhoneFileUploadChoice) = default;
};

/// The open dialog for phone files, which also asks for the method and the destination of the
/// upload. Lives for one showing. User-interface thread only.
class CPhoneFileUploadDialog final : public IFileDialogHandler {
public:
    /// `choice` is proposed, and changed by what the user accepts.
    CPhoneFileUploadDialog(IToolkit& toolkit, COutputArea& output, CHelp& help,
                           PhoneFileUploadChoice& choice)
        : m_toolkit(toolkit), m_output(output), m_help(help), m_choice(choice) {}

    /// Shows the dialog and returns the full path chosen; empty when there is none. A dialog that
    /// fails is reported.
    std::string Show();

    void OnInit(IView& view) override;
    void OnCommand(ControlId) override {}
    /// Opens the dialog's own topic for a control that has none.
    void OnHelp(std::uint32_t context) override;
    /// Refuses while no method or no destination is chosen, which is shown and gets the focus. What
    /// was chosen before the refusal is kept.
    bool OnFileAccepted() override;

private:
    struct Option;
    static const Option kOptions[];

    void Fill(IView& view, const Option& option) const;
    bool Take(const Option& option);
    void Warn(const char* text) const;

    IToolkit& m_toolkit;
    COutputArea& m_output;
    CHelp& m_help;
    PhoneFileUploadChoice& m_choice;
    IView* m_view = nullptr;
};

}
