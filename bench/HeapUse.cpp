#include "bench/HeapUse.h"

#include <malloc.h>

namespace bench {

std::size_t HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

}
