#include "frontend/qt/EditField.h"

#include <algorithm>
#include <limits>

namespace qt {

CEditField::CEditField(QWidget* parent) : QLineEdit(parent), m_limit(maxLength()) {
    connect(this, &QLineEdit::textEdited, this, [this] { KeepToLimit(); });
}

void CEditField::SetLimit(std::size_t units) {
    constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<int>::max());
    m_limit = static_cast<int>(std::min(units, kMost));
    setMaxLength(std::max(m_limit, static_cast<int>(text().size())));
}

void CEditField::ShowText(const QString& text) {
    setMaxLength(std::max(m_limit, static_cast<int>(text.size())));
    setText(text);
    setCursorPosition(0);
}

// The toolkit cuts what is typed or pasted at the limit, be it in the middle of a character. The
// room that a longer text was given goes away as the user shortens it.
void CEditField::KeepToLimit() {
    if (EndsInHalfCharacter()) {
        backspace();
    }
    if (maxLength() > m_limit) {
        const int cursor = cursorPosition();
        setMaxLength(std::max(m_limit, static_cast<int>(text().size())));
        setCursorPosition(cursor);
    }
}

bool CEditField::EndsInHalfCharacter() const {
    const QString all = text();
    const int cursor = cursorPosition();
    const bool isHalf = cursor > 0 && all[cursor - 1].isHighSurrogate();
    return isHalf && (cursor == all.size() || !all[cursor].isLowSurrogate());
}

}
