#include "frontend/win32/Dialog.h"

#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Barrier.h"
#include "frontend/win32/DialogResource.h"
#include "frontend/win32/Module.h"
#include "frontend/win32/Placement.h"
#include "panel/control/DialogHandler.h"

#include <utility>

namespace win32 {

CDialog::CDialog(const panel::DialogTemplate& dialogTemplate, panel::IDialogHandler& handler,
                 std::shared_ptr<CCursorStack> cursors)
    : m_template(dialogTemplate), m_handler(handler), m_cursors(std::move(cursors)) {}

panel::DialogOutcome CDialog::Run(HWND owner) {
    const CArrowCursor arrow(m_cursors);
    const CActivationContext context;
    RegisterControlClasses();
    const CDialogResource resource(m_template, WindowKind::Modal);
    m_owner = owner;
    const INT_PTR ended =
        DialogBoxIndirectParamW(OwnModule(), static_cast<LPCDLGTEMPLATEW>(resource.Data()), owner,
                                Procedure, reinterpret_cast<LPARAM>(this));
    if (!m_view && ended <= 0) {
        return panel::DialogOutcome::Failed(static_cast<int>(GetLastError()));
    }
    return panel::DialogOutcome::Closed(m_result.value_or(panel::kCancelButton));
}

INT_PTR CALLBACK CDialog::Procedure(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    auto& self = *reinterpret_cast<CDialog*>(lParam);
    const auto isSystemsChoice =
        Contained(std::optional<bool>(), [&] { return std::optional<bool>(self.Init(window)); });
    if (!isSystemsChoice) {
        EndDialog(window, 0);
    }
    return isSystemsChoice.value_or(false);
}

bool CDialog::Init(HWND window) {
    m_view = std::make_unique<CWin32View>(m_template, window, m_handler, m_cursors);
    m_view->BelongToDialog([this, window](int result) {
        m_result = result;
        EndDialog(window, result);
    });
    Centre(window, m_owner);
    m_handler.OnInit(*m_view);
    const HWND wished = m_view->TakeFocusWish();
    if (wished && !m_result) {
        SetFocus(wished);
    }
    return !wished;
}

}
