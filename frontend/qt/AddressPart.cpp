#include "frontend/qt/AddressPart.h"

#include "frontend/qt/DigitsValidator.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace qt {

namespace {

constexpr int kMostDigits = 3;
constexpr int kGreatest = 255;

}

CAddressPart::CAddressPart(CAddressPart* previous, QWidget* parent)
    : QLineEdit(parent), m_previous(previous) {
    if (previous) {
        previous->m_next = this;
    }
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setMaxLength(kMostDigits);
    setAcceptDrops(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setValidator(new CDigitsValidator(this));
    connect(this, &QLineEdit::textEdited, this, [this] { TakeEdit(); });
}

void CAddressPart::SetPasteListener(std::function<void(const QString&)> listener) {
    m_pasteListener = std::move(listener);
}

// At once, and not only when the part is left: Return takes the dialog's default button without
// leaving it, and what is applied must be what was shown.
void CAddressPart::TakeEdit() {
    if (text().toInt() > kGreatest) {
        SetNumber(kGreatest);
    }
    if (text().size() == kMostDigits && cursorPosition() == kMostDigits) {
        MoveOn();
    }
}

int CAddressPart::GetNumber() const { return text().toInt(); }

void CAddressPart::SetNumber(int number) { setText(QString::number(number)); }

void CAddressPart::keyPressEvent(QKeyEvent* event) {
    if (!HandleKey(*event)) {
        QLineEdit::keyPressEvent(event);
    }
}

// A dot typed out of habit after a third digit meets the next part with all of it selected, and
// must not skip it.
bool CAddressPart::HandleKey(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
        m_pasteListener(QGuiApplication::clipboard()->text());
        return true;
    }
    if (event.text() == QStringLiteral(".") || event.text() == QStringLiteral(" ")) {
        if (!text().isEmpty() && !hasSelectedText()) {
            MoveOn();
        }
        return true;
    }
    if (event.modifiers() & ~Qt::KeypadModifier || hasSelectedText()) {
        return false;
    }
    if (event.key() == Qt::Key_Right && cursorPosition() == text().size()) {
        return MoveToStartOf(m_next);
    }
    const bool goesBack = event.key() == Qt::Key_Left || event.key() == Qt::Key_Backspace;
    return goesBack && cursorPosition() == 0 && MoveToEndOf(m_previous);
}

bool CAddressPart::MoveOn() {
    const bool moves = MoveToStartOf(m_next);
    if (moves) {
        m_next->selectAll();
    }
    return moves;
}

bool CAddressPart::MoveToStartOf(CAddressPart* part) {
    if (part) {
        part->setFocus(Qt::OtherFocusReason);
        part->setCursorPosition(0);
    }
    return part != nullptr;
}

bool CAddressPart::MoveToEndOf(CAddressPart* part) {
    if (part) {
        part->setFocus(Qt::OtherFocusReason);
        part->setCursorPosition(static_cast<int>(part->text().size()));
    }
    return part != nullptr;
}

void CAddressPart::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    parentWidget()->update();
}

void CAddressPart::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    parentWidget()->update();
    if (!text().isEmpty()) {
        SetNumber(GetNumber());
    }
}

void CAddressPart::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton) {
        QLineEdit::mouseReleaseEvent(event);
    } else if (QGuiApplication::clipboard()->supportsSelection()) {
        m_pasteListener(QGuiApplication::clipboard()->text(QClipboard::Selection));
    }
}

// The four are one stop of the Tab key: the first takes the focus for all of them, and on the way
// back the search for what stands before the field has to begin there.
bool CAddressPart::focusNextPrevChild(bool next) {
    if (next || !m_previous) {
        return QLineEdit::focusNextPrevChild(next);
    }
    m_previous->setFocus(Qt::OtherFocusReason);
    return m_previous->focusNextPrevChild(next);
}

}
