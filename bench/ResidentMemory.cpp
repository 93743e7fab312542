#include "bench/ResidentMemory.h"

#include <unistd.h>

#include <fstream>

namespace bench {

double ResidentMegabytes() {
    std::ifstream file("/proc/self/statm");
    long pages = 0;
    long residentPages = 0;
    file >> pages >> residentPages;
    return static_cast<double>(residentPages) * static_cast<double>(sysconf(_SC_PAGESIZE)) /
           (1024.0 * 1024.0);
}

}
