#pragma once

#include "panel/control/Geometry.h"

#include <cstdint>
#include <span>

namespace panel {

/// Names a control within its view.
using ControlId = std::uint16_t;

/// Names no control: every view verb given it does nothing and answers empty.
inline constexpr ControlId kNoControl = 0;

/// What a front end must be able to build.
enum class ControlKind {
    GroupBox,
    Label,
    CentredLabel,
    TextField,    ///< read-only, one line
    NumberField,  ///< read-only, one line, accepts digits only
    EditField,    ///< the user's to change, one line
    AddressField, ///< an IPv4 address in four parts; can hold nothing else
    CheckBox,
    DropDownList, ///< one choice out of several, none at first
    Icon,
    MultiSelectList,
    SingleSelectList,
    Log, ///< read-only, many lines, vertical scroll bar, follows its end
    ProgressBar,
    Button,
    DefaultButton, ///< the button that Return presses
};

enum class InitialState { Enabled, Disabled, Hidden };

/// One control of a dialog template.
///
/// Lists are in report view: column headers that cannot be clicked, a selection that stays visible
/// without focus.
struct ControlTemplate {
    ControlId id;
    ControlKind kind;
    const char* text;    ///< UTF-8; "&" marks the mnemonic of labels and buttons
    Rectangle rectangle; ///< dialog units, relative to the dialog
    InitialState state = InitialState::Enabled;
    std::uint32_t helpContext = 0; ///< topic of a help request on the control; 0: none of its own
};

/// A dialog or view as data. The order of the controls is the tab order; a group box stands before
/// what it frames and is drawn below it.
struct DialogTemplate {
    int id;
    const char* title; ///< UTF-8; empty for a child view without caption
    Size size;         ///< dialog units
    std::span<const ControlTemplate> controls;
};

/// Measures of the font that dialog units are derived from, pixels.
struct FontMetrics {
    /// Width of the 52 letters A to Z and a to z set in one line.
    int alphabetWidth = 0;
    /// Character height plus external leading.
    int height = 0;
};

/// Pixels of a size in dialog units: the average width is alphabetWidth / 52 rounded, a horizontal
/// unit a quarter of it and a vertical unit an eighth of the height, each product rounded to the
/// nearest integer.
Size ToPixels(Size dialogUnits, FontMetrics font);

/// The same for each edge of a rectangle.
Rectangle ToPixels(const Rectangle& dialogUnits, FontMetrics font);

}
