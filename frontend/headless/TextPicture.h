#pragma once

#include "panel/control/View.h"

#include <string>
#include <vector>

namespace headless {

/// A label with the field beside it.
struct PictureField {
    std::string label;
    std::string value;
};

struct PictureColumn {
    std::string heading;
    panel::Alignment alignment = panel::Alignment::Left;
};

/// What a view shows, ready to be printed. Texts are UTF-8.
struct TextPicture {
    std::string title;
    std::vector<PictureField> fields;
    std::string listTitle;
    std::vector<PictureColumn> columns; ///< none: the view has no list
    std::vector<std::vector<std::string>> rows;
    std::string logTitle;
    std::vector<std::string> logLines;
};

/// The picture as lines ended by LF: title, fields in two aligned columns, list with its headings,
/// log. An empty part is left out; parts are separated by an empty line. Widths count characters;
/// control characters in texts are printed as blanks, so that a text never breaks its line.
std::string FormatTextPicture(const TextPicture& picture);

}
