#pragma once

#include <QLineEdit>

#include <cstddef>

namespace qt {

/// A line of text that the user changes. Its limit binds the user alone: a longer text that the
/// program sets is shown whole, and can then only become shorter.
class CEditField final : public QLineEdit {
public:
    explicit CEditField(QWidget* parent);

    /// In units of UTF-16. What is there stays.
    void SetLimit(std::size_t units);
    /// Shows the beginning of a text that is longer than the field is wide.
    void ShowText(const QString& text);

private:
    void KeepToLimit();
    bool EndsInHalfCharacter() const;

    int m_limit;
};

}
