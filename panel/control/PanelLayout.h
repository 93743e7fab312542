#pragma once

#include "panel/control/DialogTemplate.h"

#include <functional>
#include <vector>

namespace panel {

struct Placement {
    ControlId id;
    Rectangle rectangle;

    friend bool operator==(const Placement&, const Placement&) = default;
};

/// Where the controls go, in pixels, when the panel is given a new client size.
///
/// `size` is the size announced, `client` the client size read at that moment (the status log
/// follows it), `rectangleOf` answers a control's present rectangle. Below 687 x 440 there is
/// nothing to place: the panel stays as it is rather than being squeezed.
std::vector<Placement> LayOutControls(Size size, Size client,
                                      const std::function<Rectangle(ControlId)>& rectangleOf);

}
