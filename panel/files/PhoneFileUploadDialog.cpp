#include "panel/files/PhoneFileUploadDialog.h"

#include "panel/control/Format.h"
#include "panel/control/Help.h"
#include "panel/control/HelpTopics.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/control/Trace.h"
#include "panel/control/Utf8.h"
#include "panel/control/View.h"
#include "panel/files/PhoneFileUploadTemplate.h"

#include <algorithm>
#include <array>

namespace panel {

namespace {

constexpr std::size_t kLongestFailureText = 100;
constexpr std::int32_t kUnreadable = -1;

}

/// One of the two drop-down lists. The data of a choice is its position.
struct CPhoneFileUploadDialog::Option {
    ControlId list;
    std::array<const char*, 4> choices;
    std::int32_t PhoneFileUploadChoice::*chosen;
    const char* noneChosen;
    const char* notRead;
};

// The method is asked for first, and kept even when the destination is missing.
const CPhoneFileUploadDialog::Option CPhoneFileUploadDialog::kOptions[] = {
    {kUploadMethodList,
     {"default", "Force", "Version", "Flashing"},
     &PhoneFileUploadChoice::method,
     "Method not selected",
     "Upload method retrieving failed"},
    {kUploadDestinationList,
     {"default", "RAM", "Flash", "External storage"},
     &PhoneFileUploadChoice::destination,
     "Destination not selected",
     "Destination retrieving failed"},
};

std::string CPhoneFileUploadDialog::Show() {
    const FileOutcome outcome =
        m_toolkit.OpenFile({.title = "Phone file to be uploaded",
                            .filters = SplitFilter(LoadPanelString(StringId::PhoneFileFilter)),
                            .optionsTemplate = &kPhoneFileUploadTemplate,
                            .optionsHandler = this});
    if (outcome.kind == FileOutcome::Kind::Failed && outcome.code != 0) {
        const std::string text = Format("GetOpenFileName() failed, error code %lu",
                                        static_cast<unsigned long>(outcome.code));
        m_output.ShowMessage(CutToBytes(text, kLongestFailureText),
                             LoadPanelString(StringId::UploadPhoneFile), contract::kSuccess, "",
                             kErrorStyle);
    }
    return outcome.path;
}

void CPhoneFileUploadDialog::OnInit(IView& view) {
    m_view = &view;
    Trace(m_toolkit, "PhoneFileUploadHookProc: CDN_INITDONE, %sExplorer style\n", "");
    for (const Option& option : kOptions) {
        Fill(view, option);
    }
}

void CPhoneFileUploadDialog::Fill(IView& view, const Option& option) const {
    std::int32_t data = 0;
    for (const char* choice : option.choices) {
        const int index = view.AddChoice(option.list, choice, data);
        if (data == m_choice.*option.chosen) {
            view.SelectChoice(option.list, index);
        }
        ++data;
    }
}

void CPhoneFileUploadDialog::OnHelp(std::uint32_t context) {
    m_help.ShowHelp(context != 0 ? context : kPhoneFileUploadTopic);
}

bool CPhoneFileUploadDialog::OnFileAccepted() {
    return std::ranges::all_of(kOptions, [this](const Option& option) { return Take(option); });
}

bool CPhoneFileUploadDialog::Take(const Option& option) {
    const int index = m_view->GetSelectedChoice(option.list);
    if (index == kNoChoice) {
        Warn(option.noneChosen);
        m_view->SetFocus(option.list);
        return false;
    }
    const std::optional<std::int32_t> data = m_view->GetChoiceData(option.list, index);
    if (!data) {
        Warn(option.notRead);
    }
    m_choice.*option.chosen = data.value_or(kUnreadable);
    return true;
}

void CPhoneFileUploadDialog::Warn(const char* text) const {
    m_output.ShowMessage(text, LoadPanelString(StringId::UploadPhoneFile), contract::kSuccess, "",
                         kWarningStyle);
}

}
