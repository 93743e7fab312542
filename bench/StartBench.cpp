#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace {

using Arguments = std::vector<std::string>;

const std::filesystem::path kDevice = std::filesystem::path(KRX8_SAMPLES) / "krx-20";

void Execute(const Arguments& arguments) {
    std::vector<char*> pointers;
    for (const std::string& argument : arguments) {
        pointers.push_back(const_cast<char*>(argument.c_str()));
    }
    pointers.push_back(nullptr);
    execve(pointers.front(), pointers.data(), environ);
    _exit(127);
}

/// Runs the workstation with the sample device until it ends. Returns its largest resident memory
/// in megabytes.
double RunWorkstation(const Arguments& options) {
    Arguments arguments = {KRX8_WORKSTATION, "--device", kDevice.string()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const pid_t child = fork();
    if (child == 0) {
        Execute(arguments);
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

/// Off screen, until it has connected the device, painted its window and written the picture: all
/// that a start does, and a little more.
void StartToPicture(benchmark::State& state) {
    const std::string picture = (std::filesystem::temp_directory_path() /
                                 ("krx8-start-" + std::to_string(getpid()) + ".png"))
                                    .string();
    double megabytes = 0;
    for (auto _ : state) {
        megabytes = RunWorkstation({"--snapshot", picture});
    }
    std::filesystem::remove(picture);
    state.counters["MB"] = megabytes;
}

/// On the display of the environment, as a user starts it, until the window is painted for the
/// first time, when a plugin of the toolkit ends the program.
void StartToFirstPaint(benchmark::State& state) {
    if (std::getenv("DISPLAY") == nullptr) {
        state.SkipWithError("no DISPLAY to show a window on");
        return;
    }
    setenv("QT_PLUGIN_PATH", KRX8_PLUGINS, 1);
    setenv("QT_QPA_GENERIC_PLUGINS", "firstpaint", 1);
    double megabytes = 0;
    for (auto _ : state) {
        megabytes = RunWorkstation({});
    }
    unsetenv("QT_QPA_GENERIC_PLUGINS");
    unsetenv("QT_PLUGIN_PATH");
    state.counters["MB"] = megabytes;
}

}

BENCHMARK(StartToPicture)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(StartToFirstPaint)->Unit(benchmark::kMillisecond)->UseRealTime();
