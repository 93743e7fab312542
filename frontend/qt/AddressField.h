#pragma once

#include <QWidget>

#include <array>
#include <cstdint>

namespace qt {

class CAddressPart;

/// An IPv4 address in four parts, which can hold nothing else: one frame, one stop of the Tab key.
///
/// Dot, blank, the right arrow at a part's end and a third digit move on to the next part. A whole
/// address can be copied and pasted; what is no address is not pasted.
class CAddressField final : public QWidget {
public:
    explicit CAddressField(QWidget* parent);

    /// The first part in the highest bits.
    void SetAddress(std::uint32_t address);
    std::uint32_t GetAddress() const;
    /// Names the parts for accessibility tools after the label of the field.
    void NameParts(const QString& label);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void AddPart(CAddressPart* previous, CAddressPart*& part);
    bool HasFocus() const;
    void Paste(const QString& text);
    void Copy() const;

    std::array<CAddressPart*, 4> m_parts{};
};

}
