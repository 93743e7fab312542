// In the place of a fuzzer: tries each file of a folder once. Usage: PROGRAM FOLDER

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Whether the file could be read.
bool Try(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        return false;
    }
    const std::vector<char> bytes(std::istreambuf_iterator<char>(stream), {});
    // Before the run, which may end the process.
    std::printf("%s\n", path.filename().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
}

}

int main(int count, char** arguments) {
    const std::string folder = count == 2 ? arguments[1] : "";
    const auto files = FilesIn(folder);
    if (files.empty()) {
        std::fprintf(stderr, "there is nothing to try in the folder \"%s\"\n", folder.c_str());
        return 1;
    }
    if (!std::all_of(files.begin(), files.end(), Try)) {
        std::fprintf(stderr, "a file cannot be read\n");
        return 1;
    }
    std::printf("%zu files tried\n", files.size());
    return 0;
}
