#include "tests/sweeps/Files.h"

#include <filesystem>
#include <random>

namespace sweeps {

const std::string& ReportPath() {
    static const std::string path = (std::filesystem::temp_directory_path() /
                                     ("sweep-" + std::to_string(std::random_device()()) + ".txt"))
                                        .string();
    return path;
}

std::string PathInNoFolder() {
    return (std::filesystem::path(ReportPath() + ".none") / "report.txt").string();
}

}
