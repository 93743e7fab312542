#include "frontend/qt/Dialog.h"

#include "frontend/qt/CommandEvent.h"
#include "frontend/qt/Text.h"
#include "panel/control/DialogHandler.h"

#include <QPointer>

namespace qt {

CDialog::CDialog(const panel::DialogTemplate& dialogTemplate, panel::IDialogHandler& handler,
                 QWidget* owner)
    : QDialog(owner),
      m_handler(handler),
      m_view(dialogTemplate, *this, handler, [this](int result) { End(result); }) {
    setObjectName(QStringLiteral("dialog-%1").arg(dialogTemplate.id));
    setWindowTitle(ToTitle(dialogTemplate.title));
    setFixedSize(m_view.GetWidget()->size());
}

int CDialog::Run() {
    const QPointer<CDialog> self(this);
    m_handler.OnInit(m_view);
    if (self && !m_result) {
        m_view.GetWidget()->show();
        exec();
    }
    return self && m_result ? *m_result : static_cast<int>(panel::kCancelButton);
}

void CDialog::reject() {
    if (MayCommand(*this)) {
        m_view.SendCommand(panel::kCancelButton);
    }
}

void CDialog::End(int result) {
    m_result = result;
    done(result);
}

}
