#pragma once

#include "panel/control/DialogTemplate.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace win32 {

enum class WindowKind {
    Child,   ///< inside a window of the host
    Modal,   ///< a window of its own, with caption and close box
    Options, ///< inside a file dialog of the system
};

/// A dialog in the form that the system makes dialogs of (DLGTEMPLATEEX).
class CDialogResource {
public:
    CDialogResource(const panel::DialogTemplate& dialogTemplate, WindowKind kind);

    /// Aligned as the system wants it. Lives as long as the object.
    const void* Data() const { return m_words.data(); }
    std::size_t SizeBytes() const { return m_words.size() * sizeof(std::uint16_t); }

private:
    void AddControl(const panel::ControlTemplate& control);
    void AddRectangle(const panel::Rectangle& rectangle);
    void AddWord(unsigned value);
    void AddDouble(std::uint32_t value);
    void AddText(const char* text);
    void AddText(const wchar_t* text);
    void Align();

    std::vector<std::uint16_t> m_words;
};

}
