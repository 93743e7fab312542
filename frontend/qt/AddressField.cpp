#include "frontend/qt/AddressField.h"

#include "frontend/qt/AddressPart.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>
#include <optional>

namespace qt {

namespace {

constexpr int kPartBits = 8;
constexpr std::uint32_t kPartMask = 0xFF;
constexpr int kParts = 4;
constexpr int kMargin = 2;

bool IsNumber(const QString& text) {
    constexpr qsizetype kMostDigits = 3;
    const auto isDigit = [](QChar letter) { return letter >= u'0' && letter <= u'9'; };
    return !text.isEmpty() && text.size() <= kMostDigits && std::ranges::all_of(text, isDigit);
}

std::optional<std::uint32_t> ParseAddress(const QString& text) {
    const QStringList parts = text.split(u'.');
    if (parts.size() != kParts) {
        return std::nullopt;
    }
    std::uint32_t address = 0;
    for (const QString& part : parts) {
        if (!IsNumber(part) || part.toUInt() > kPartMask) {
            return std::nullopt;
        }
        address = address << kPartBits | part.toUInt();
    }
    return address;
}

}

CAddressField::CAddressField(QWidget* parent) : QWidget(parent) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(0);
    CAddressPart* previous = nullptr;
    for (CAddressPart*& part : m_parts) {
        AddPart(previous, part);
        previous = part;
    }
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_parts.front());
    m_parts.front()->setFocusPolicy(Qt::StrongFocus);
}

void CAddressField::AddPart(CAddressPart* previous, CAddressPart*& part) {
    if (previous) {
        layout()->addWidget(new QLabel(QStringLiteral("."), this));
    }
    part = new CAddressPart(previous, this);
    part->setFocusPolicy(Qt::ClickFocus);
    part->SetPasteListener([this](const QString& text) { Paste(text); });
    layout()->addWidget(part);
}

void CAddressField::SetAddress(std::uint32_t address) {
    for (auto part = m_parts.rbegin(); part != m_parts.rend(); ++part) {
        (*part)->SetNumber(static_cast<int>(address & kPartMask));
        address >>= kPartBits;
    }
}

std::uint32_t CAddressField::GetAddress() const {
    std::uint32_t address = 0;
    for (const CAddressPart* const part : m_parts) {
        address = address << kPartBits | static_cast<std::uint32_t>(part->GetNumber());
    }
    return address;
}

void CAddressField::NameParts(const QString& label) {
    int number = 0;
    for (CAddressPart* const part : m_parts) {
        part->setAccessibleName(QStringLiteral("%1 part %2").arg(label).arg(++number));
    }
}

void CAddressField::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Copy address"), this, [this] { Copy(); });
    QAction* const paste = menu->addAction(QStringLiteral("&Paste address"), this,
                                           [this] { Paste(QGuiApplication::clipboard()->text()); });
    paste->setEnabled(ParseAddress(QGuiApplication::clipboard()->text().trimmed()).has_value());
    menu->popup(event->globalPos());
}

// Looks like a field of one piece.
void CAddressField::paintEvent(QPaintEvent*) {
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    option.state |= QStyle::State_Sunken;
    option.state.setFlag(QStyle::State_HasFocus, HasFocus());
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
}

bool CAddressField::HasFocus() const {
    return std::ranges::any_of(m_parts, [](const CAddressPart* part) { return part->hasFocus(); });
}

// Digits go into the part that has the focus, as if they were typed there.
void CAddressField::Paste(const QString& text) {
    const QString pasted = text.trimmed();
    if (const std::optional<std::uint32_t> address = ParseAddress(pasted)) {
        SetAddress(*address);
        m_parts.back()->setFocus(Qt::OtherFocusReason);
        return;
    }
    for (CAddressPart* const part : m_parts) {
        if (part->hasFocus() && IsNumber(pasted)) {
            part->insert(pasted);
            // The next part may have the focus now.
            return;
        }
    }
}

void CAddressField::Copy() const {
    QStringList numbers;
    for (const CAddressPart* const part : m_parts) {
        numbers.append(QString::number(part->GetNumber()));
    }
    QGuiApplication::clipboard()->setText(numbers.join(u'.'));
}

}
