// krx8-register: writes a component into the machine's catalogue, or takes it out.

#include "component/loader/ComponentLibrary.h"
#include "contract/ErrorInfo.h"
#include "frontend/registry/FileRegistry.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace {

constexpr const char* kUsage = R"(Usage: krx8-register [--unregister] LIBRARY
       krx8-register --help

Writes where the component LIBRARY is into the machine's catalogue, so that hosts find it, or
with --unregister takes that back. The catalogue is the file that the environment variable
KRX8_REGISTRY names, else /var/lib/krx8/registry.json. A missing folder is made.

Exit status: 0 done; 1 the library cannot be loaded or the catalogue not changed, which one line
on stderr says; 2 a wrong command line.
)";

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kRefused = 2;

struct Options {
    bool isUnregister = false;
    std::string library;
};

bool ReadOptions(int argc, char** argv, Options& options) {
    int index = 1;
    if (index < argc && std::string_view(argv[index]) == "--unregister") {
        options.isUnregister = true;
        ++index;
    }
    if (index + 1 != argc || std::string_view(argv[index]).starts_with("-")) {
        return false;
    }
    options.library = argv[index];
    return true;
}

int Run(const Options& options) {
    std::error_code error;
    // A name without a folder would be looked for where the system keeps its libraries.
    const auto file = std::filesystem::absolute(options.library, error).string();
    const component::CComponentLibrary library(file);
    const contract::Status status =
        options.isUnregister ? library.Unregister() : library.Register();
    const std::string catalogue = registry::FindRegistryFile();
    if (status.IsFailure()) {
        const std::string reason = contract::TakeErrorInfo();
        std::fprintf(stderr, "krx8-register: %s cannot be changed (0x%08x)%s%s\n",
                     catalogue.c_str(), static_cast<unsigned>(status.Code()),
                     reason.empty() ? "" : ": ", reason.c_str());
        return kFailed;
    }
    std::printf("%s is %s %s\n", file.c_str(),
                options.isUnregister ? "no longer registered in" : "registered in",
                catalogue.c_str());
    return kDone;
}

}

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--help") {
        std::fputs(kUsage, stdout);
        return kDone;
    }
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        std::fputs(kUsage, stderr);
        return kRefused;
    }
    try {
        return Run(options);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "krx8-register: %s\n", exception.what());
        return kFailed;
    }
}
