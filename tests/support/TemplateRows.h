#pragma once

#include "panel/control/DialogTemplate.h"

#include <ostream>
#include <string>
#include <vector>

namespace support {

/// A control of a dialog template, as far as it can be seen.
struct TemplateRow {
    panel::ControlId id;
    panel::ControlKind kind;
    std::string text;
    panel::Rectangle rectangle; ///< dialog units
    panel::InitialState state = panel::InitialState::Enabled;

    friend bool operator==(const TemplateRow&, const TemplateRow&) = default;
    friend std::ostream& operator<<(std::ostream& out, const TemplateRow& row) {
        return out << row.id << " of kind " << static_cast<int>(row.kind) << " \"" << row.text
                   << "\" at " << row.rectangle.x << ", " << row.rectangle.y << ", "
                   << row.rectangle.width << " x " << row.rectangle.height << ", state "
                   << static_cast<int>(row.state);
    }
};

/// In tab order.
inline std::vector<TemplateRow> RowsOf(const panel::DialogTemplate& dialog) {
    std::vector<TemplateRow> rows;
    for (const panel::ControlTemplate& control : dialog.controls) {
        rows.push_back({control.id, control.kind, control.text, control.rectangle, control.state});
    }
    return rows;
}

}
