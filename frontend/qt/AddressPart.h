#pragma once

#include <QLineEdit>

#include <functional>

namespace qt {

/// One of the four numbers of an address field, 0 to 255; without text it counts as 0.
///
/// A greater number becomes 255 as soon as its third digit is typed.
class CAddressPart final : public QLineEdit {
public:
    /// `previous` is null for the first part; it leads on to this one.
    CAddressPart(CAddressPart* previous, QWidget* parent);

    /// Called with what the user pastes.
    void SetPasteListener(std::function<void(const QString&)> listener);

    int GetNumber() const;
    void SetNumber(int number);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void TakeEdit();
    bool HandleKey(const QKeyEvent& event);
    bool MoveOn();
    static bool MoveToStartOf(CAddressPart* part);
    static bool MoveToEndOf(CAddressPart* part);

    CAddressPart* const m_previous;
    CAddressPart* m_next = nullptr;
    std::function<void(const QString&)> m_pasteListener;
};

}
