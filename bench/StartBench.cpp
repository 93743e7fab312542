#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string>

extern char** environ;

namespace {

const std::filesystem::path kDevice = std::filesystem::path(KRX8_SAMPLES) / "krx-20";

/// Runs the workstation once, off screen, until it has connected the sample device, painted its
/// window and written the picture: all that a start does, and a little more. Returns its largest
/// resident memory in megabytes.
double TakeSnapshot(const std::string& picture) {
    const std::string device = kDevice.string();
    const char* const arguments[] = {KRX8_WORKSTATION, "--device",      device.c_str(),
                                     "--snapshot",     picture.c_str(), nullptr};
    const pid_t child = fork();
    if (child == 0) {
        execve(KRX8_WORKSTATION, const_cast<char* const*>(arguments), environ);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    while (wait4(child, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error("the workstation failed");
    }
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void StartToPicture(benchmark::State& state) {
    const std::string picture = (std::filesystem::temp_directory_path() /
                                 ("krx8-start-" + std::to_string(getpid()) + ".png"))
                                    .string();
    double megabytes = 0;
    for (auto _ : state) {
        megabytes = TakeSnapshot(picture);
    }
    std::filesystem::remove(picture);
    state.counters["MB"] = megabytes;
}

}

BENCHMARK(StartToPicture)->Unit(benchmark::kMillisecond)->UseRealTime();
