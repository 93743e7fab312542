#pragma once

namespace sweeps {

/// Whether everything is swept (KRX8_SWEEPS=full in the environment), rather than a part that is
/// quick enough for every day.
bool IsFullTier();

}
