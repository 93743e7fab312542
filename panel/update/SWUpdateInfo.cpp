#include "panel/update/SWUpdateInfo.h"

#include "panel/control/Help.h"
#include "panel/control/StringTable.h"
#include "panel/control/Trace.h"
#include "panel/control/Utf8.h"
#include "panel/control/View.h"
#include "panel/update/SWUpdateInfoTemplate.h"

namespace panel {

namespace {

constexpr std::size_t kLongestVersion = 80;

}

CSWUpdateInfo::CSWUpdateInfo(IToolkit& toolkit, CHelp& help, std::string_view packageVersion,
                             std::string_view deviceVersion)
    : m_toolkit(toolkit),
      m_help(help),
      m_packageVersion(CutToBytes(packageVersion, kLongestVersion)),
      m_deviceVersion(CutToBytes(deviceVersion, kLongestVersion)) {}

ControlId CSWUpdateInfo::Show() {
    const DialogOutcome outcome = m_toolkit.RunDialog(kSWUpdateInfoTemplate, *this, Owner::Panel);
    return outcome.kind == DialogOutcome::Kind::Closed ? static_cast<ControlId>(outcome.code)
                                                       : kCancelButton;
}

void CSWUpdateInfo::OnInit(IView& view) {
    m_view = &view;
    const bool isNamed = !m_deviceVersion.empty();
    view.SetText(kPackageVersionText, m_packageVersion);
    view.SetText(kUpdateInfoMessage,
                 LoadPanelString(isNamed ? StringId::NewerSoftware : StringId::NoPackageVersion));
    view.SetText(kDeviceVersionText, isNamed ? m_deviceVersion : "unknown");
    const int error =
        view.SetIcon(kUpdateInfoIcon, isNamed ? StandardIcon::Information : StandardIcon::Warning);
    if (error) {
        Trace(m_toolkit, "CSWUpdateInfo::OnInitDialog: Icon loading failed, error %lu\n",
              static_cast<unsigned long>(error));
    }
    view.SetFocus(kYesButton);
}

void CSWUpdateInfo::OnCommand(ControlId id) {
    if (id == kYesButton || id == kNoButton || id == kCancelButton) {
        m_view->EndDialog(id);
    }
}

void CSWUpdateInfo::OnHelp(std::uint32_t context) { m_help.ShowHelp(context); }

}
