#pragma once

namespace bench {

/// Memory of this process that is in RAM now, in megabytes of 2^20 bytes; 0 where /proc is missing.
double ResidentMegabytes();

}
