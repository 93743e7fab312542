// Does what a test program must not be taken for a success with: see WineScriptTest.sh.

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <thread>

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "crash") {
        std::abort();
    }
    if (what == "fault") {
        *static_cast<volatile int*>(nullptr) = 1;
    }
    if (what == "hang") {
        for (;;) {
            std::this_thread::sleep_for(std::chrono::hours(1));
        }
    }
    if (what == "write") {
        std::ofstream(argv[2]) << "done\n";
    }
    return what == "fail" ? 1 : 0;
}
