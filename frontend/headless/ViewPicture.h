#pragma once

#include "frontend/headless/TextPicture.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/View.h"

#include <vector>

namespace headless {

class CHeadlessView;

/// Reads the picture of any front end's view. Controls that are not visible are left out. A label
/// belongs to the field that follows it in the template; list and log take their titles from the
/// group box before them. A view without a title of its own has that of its first group box, which
/// then is no title of a list or log. `columns` are those of its (first) list, which a view does
/// not tell.
TextPicture PictureOf(const panel::IView& view, const panel::DialogTemplate& dialogTemplate,
                      const std::vector<PictureColumn>& columns);

TextPicture PictureOf(const CHeadlessView& view);

}
