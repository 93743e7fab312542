#pragma once

#include <cstddef>

namespace bench {

/// Bytes that this process has taken from the heap and not given back.
std::size_t HeapBytes();

}
