#include "frontend/qt/QtView.h"

#include "frontend/qt/ControlBuilder.h"
#include "frontend/qt/ControlRelations.h"
#include "frontend/qt/ControlText.h"
#include "frontend/qt/EditField.h"
#include "frontend/qt/FocusMemory.h"
#include "frontend/qt/Font.h"
#include "frontend/qt/HandlerLink.h"
#include "frontend/qt/HelpRequests.h"
#include "frontend/qt/ListView.h"
#include "frontend/qt/LogView.h"
#include "frontend/qt/Text.h"
#include "frontend/qt/ViewWidget.h"
#include "panel/control/ControlKinds.h"

#include <QProgressBar>

#include <algorithm>
#include <utility>

namespace qt {

namespace {

using panel::ControlId;
using panel::ControlKind;

panel::Size SizeOf(const QWidget& widget) { return {widget.width(), widget.height()}; }

bool HasMnemonic(ControlKind kind) {
    return kind != ControlKind::TextField && kind != ControlKind::NumberField &&
           kind != ControlKind::EditField;
}

}

CQtView::CQtView(const panel::DialogTemplate& dialogTemplate, QWidget& parent,
                 panel::IDialogHandler& handler, std::function<void(int)> endDialog)
    : m_widget(new CViewWidget(parent)),
      m_link(std::make_shared<CHandlerLink>(handler)),
      m_endDialog(std::move(endDialog)) {
    m_widget->hide();
    m_widget->setObjectName(QStringLiteral("view-%1").arg(dialogTemplate.id));
    Build(dialogTemplate);
    m_focus = new CFocusMemory(*m_widget);
    m_help = new CHelpRequests(*m_widget, m_link);
    m_widget->SetResizeListener([this] { ReportSize(); });
}

void CQtView::Build(const panel::DialogTemplate& dialogTemplate) {
    const panel::Size size = ToPixels(dialogTemplate.size, MeasureFont(m_widget->font()));
    m_widget->resize(size.width, size.height);
    m_reportedSize = size;
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        QWidget* const widget = BuildControl(control, *m_widget, m_link);
        const QString text = ToQt(control.text);
        m_controls.emplace(
            control.id, Control{widget, control.kind,
                                HasMnemonic(control.kind) ? WithoutMnemonicMark(text) : text,
                                dynamic_cast<CListView*>(widget), dynamic_cast<CLogView*>(widget)});
    }
    RelateControls(dialogTemplate, *m_widget);
    for (const auto& [id, control] : m_controls) {
        FitText(*control.widget, control.kind, control.text);
    }
}

// The widgets go later: one of them may be in the middle of the event that brought us here.
CQtView::~CQtView() {
    m_link->Cut();
    if (m_widget) {
        m_widget->SetResizeListener({});
        m_widget->hide();
        m_widget->setObjectName({});
        m_widget->deleteLater();
    }
}

QWidget* CQtView::GetWidget() const { return m_widget; }

void CQtView::AnswerHelpForWindow() { m_help->AnswerForWindow(); }

void CQtView::SendCommand(ControlId id) {
    const std::shared_ptr<const CHandlerLink> link = m_link;
    link->Notify(&panel::IDialogHandler::OnCommand, id);
}

ControlId CQtView::Capture(ControlId id) { return Find(id) ? id : panel::kNoControl; }

void CQtView::SetText(ControlId id, std::string_view text) {
    Control* const control = Find(id);
    if (control && panel::ShowsText(control->kind)) {
        control->text = ToQt(text);
        ShowText(*control->widget, control->kind, control->text);
    }
}

std::string CQtView::GetText(ControlId id) const {
    if (const CLogView* const log = FindLog(id)) {
        return log->GetText();
    }
    if (const auto* const field = Find<CEditField>(id, ControlKind::EditField)) {
        return FromQt(field->text());
    }
    const Control* const control = Find(id);
    return control && panel::ShowsText(control->kind) ? FromQt(control->text) : std::string();
}

void CQtView::SetEnabled(ControlId id, bool enabled) {
    if (const Control* const control = Find(id)) {
        control->widget->setEnabled(enabled);
    }
}

bool CQtView::IsEnabled(ControlId id) const {
    const Control* const control = Find(id);
    return control && control->widget->isEnabledTo(m_widget);
}

void CQtView::SetVisible(ControlId id, bool visible) {
    if (const Control* const control = Find(id)) {
        control->widget->setVisible(visible);
    }
}

bool CQtView::IsVisible(ControlId id) const {
    const Control* const control = Find(id);
    return control && !control->widget->isHidden();
}

void CQtView::SetFocus(ControlId id) {
    if (const Control* const control = Find(id)) {
        m_focus->Focus(*control->widget);
    }
}

ControlId CQtView::GetFocus() const {
    return m_widget ? GetControlId(m_focus->GetFocused()) : panel::kNoControl;
}

panel::Size CQtView::GetClientSize() const { return m_widget ? SizeOf(*m_widget) : panel::Size{}; }

void CQtView::SetSize(panel::Size size) {
    if (m_widget) {
        m_widget->resize(size.width, size.height);
        ReportSize();
    }
}

panel::Rectangle CQtView::GetRectangle(ControlId id) const {
    const Control* const control = Find(id);
    if (!control) {
        return {};
    }
    const QRect place = control->widget->geometry();
    return {place.x(), place.y(), place.width(), place.height()};
}

void CQtView::Move(ControlId id, const panel::Rectangle& rectangle) {
    if (const Control* const control = Find(id)) {
        control->widget->setGeometry(rectangle.x, rectangle.y, rectangle.width, rectangle.height);
        FitText(*control->widget, control->kind, control->text);
        control->widget->update();
    }
}

panel::Point CQtView::ToScreen(ControlId id, panel::Point inControl) const {
    const Control* const control = Find(id);
    if (!control) {
        return {};
    }
    const QPoint place = control->widget->mapToGlobal(QPoint(inControl.x, inControl.y));
    return {place.x(), place.y()};
}

void CQtView::SetTextLimit(ControlId id, std::size_t characters) {
    if (CLogView* const log = FindLog(id)) {
        log->SetLimit(characters);
    } else if (auto* const field = Find<CEditField>(id, ControlKind::EditField)) {
        field->SetLimit(characters);
    }
}

void CQtView::AppendLog(ControlId log, std::string_view text) {
    if (CLogView* const found = FindLog(log)) {
        found->Append(text);
    }
}

void CQtView::ClearLog(ControlId log) {
    if (CLogView* const found = FindLog(log)) {
        found->Clear();
    }
}

// A range of nothing would make the toolkit's bar run for ever.
void CQtView::SetProgressRange(ControlId bar, int maximum) {
    if (auto* const progress = Find<QProgressBar>(bar, ControlKind::ProgressBar)) {
        const int position = progress->value();
        progress->setRange(0, std::max(1, maximum));
        progress->setValue(std::clamp(position, 0, progress->maximum()));
    }
}

void CQtView::SetProgressPosition(ControlId bar, int position) {
    if (auto* const progress = Find<QProgressBar>(bar, ControlKind::ProgressBar)) {
        progress->setValue(std::clamp(position, 0, progress->maximum()));
    }
}

void CQtView::EndDialog(int result) {
    if (m_endDialog) {
        m_endDialog(result);
    }
}

const CQtView::Control* CQtView::Find(ControlId id) const {
    const auto found = m_controls.find(id);
    return m_widget && found != m_controls.end() ? &found->second : nullptr;
}

CQtView::Control* CQtView::Find(ControlId id) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): this one is not const
    return const_cast<Control*>(std::as_const(*this).Find(id));
}

CListView* CQtView::FindList(ControlId id) const {
    const Control* const control = Find(id);
    return control ? control->list : nullptr;
}

CLogView* CQtView::FindLog(ControlId id) const {
    const Control* const control = Find(id);
    return control ? control->log : nullptr;
}

// A size set while the widget is hidden reaches it as an event only when it is shown; told at once
// and once.
void CQtView::ReportSize() {
    const panel::Size size = SizeOf(*m_widget);
    if (size != m_reportedSize) {
        m_reportedSize = size;
        const std::shared_ptr<const CHandlerLink> link = m_link;
        link->Notify(&panel::IDialogHandler::OnResized, size);
    }
}

}
