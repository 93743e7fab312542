// Usage: window_probe PROGRAM [ARGUMENT]...
//
// Starts the program on the display of the environment, ends it again, and prints a figure a line:
//   window_ms N    from the start of the process until its first window is mapped
//   window TITLE   what that window is called
//   own_mb N       proportional set size of that process once it has settled, in 2^20 bytes
//   helpers_mb N   the same of the processes that it has started and that still run
//   helpers NAMES  what these are called

#include <xcb/xcb.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kLongestStart{60000};
constexpr milliseconds kLongestSettling{30000};
constexpr milliseconds kLongestEnd{5000};
constexpr milliseconds kBetweenLooks{250};
// Settled: the memory has changed by less than a hundredth for so many looks.
constexpr int kQuietLooks = 12;
constexpr double kQuiet = 0.01;

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Watches the top-level windows of a display.
class CDisplay {
public:
    CDisplay() : m_server(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_server)) {
            throw std::runtime_error("no display");
        }
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_server, m_root, XCB_CW_EVENT_MASK, &events);
        // An answer, so that nothing is started before the server watches.
        Title(m_root);
    }
    ~CDisplay() { xcb_disconnect(m_server); }
    CDisplay(const CDisplay&) = delete;
    CDisplay& operator=(const CDisplay&) = delete;

    /// Tooltips and the like, which no window manager sees, are no windows here.
    xcb_window_t WaitForWindow() {
        const auto deadline = Clock::now() + kLongestStart;
        pollfd server{xcb_get_file_descriptor(m_server), POLLIN, 0};
        while (Clock::now() < deadline) {
            while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_server), &free}) {
                const auto* map = reinterpret_cast<const xcb_map_notify_event_t*>(event.get());
                if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY && !map->override_redirect) {
                    return map->window;
                }
            }
            poll(&server, 1, static_cast<int>(kBetweenLooks.count()));
        }
        throw std::runtime_error("no window");
    }

    std::string Title(xcb_window_t window) {
        constexpr std::uint32_t kLongestTitle = 64;
        const auto asked = xcb_get_property(m_server, 0, window, XCB_ATOM_WM_NAME,
                                            XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestTitle);
        const Owned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_server, asked, nullptr), &free);
        return reply ? std::string(
                           static_cast<const char*>(xcb_get_property_value(reply.get())),
                           static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))
                     : std::string();
    }

private:
    xcb_connection_t* m_server;
    xcb_window_t m_root = 0;
};

std::filesystem::path Proc(pid_t process) { return "/proc/" + std::to_string(process); }

double Megabytes(pid_t process) {
    std::ifstream rollup(Proc(process) / "smaps_rollup");
    for (std::string word; rollup >> word;) {
        if (double kilobytes = 0; word == "Pss:" && rollup >> kilobytes) {
            return kilobytes / 1024;
        }
    }
    return 0;
}

std::string NameOf(pid_t process) {
    std::ifstream file(Proc(process) / "comm");
    std::string name;
    std::getline(file, name);
    return name;
}

pid_t ParentOf(pid_t process) {
    std::ifstream status(Proc(process) / "status");
    for (std::string word; status >> word;) {
        if (pid_t parent = 0; word == "PPid:" && status >> parent) {
            return parent;
        }
    }
    return 0;
}

/// The processes that descend from this one, whose orphans become its own children.
std::vector<pid_t> Descendants() {
    std::multimap<pid_t, pid_t> children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        if (const pid_t process = std::atoi(entry.path().filename().c_str()); process > 0) {
            children.emplace(ParentOf(process), process);
        }
    }
    std::vector<pid_t> found{getpid()};
    for (std::size_t next = 0; next < found.size(); ++next) {
        const auto [first, last] = children.equal_range(found[next]);
        for (auto child = first; child != last; ++child) {
            found.push_back(child->second);
        }
    }
    found.erase(found.begin());
    return found;
}

/// The program under measurement. What it starts ends with it.
class CProgram {
public:
    explicit CProgram(char** arguments) {
        prctl(PR_SET_CHILD_SUBREAPER, 1);
        m_process = fork();
        if (m_process == 0) {
            const int nowhere = open("/dev/null", O_RDWR);
            for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                dup2(nowhere, stream);
            }
            execvp(arguments[0], arguments);
            _exit(127);
        }
    }
    ~CProgram() {
        for (const int signal : {SIGTERM, SIGKILL}) {
            for (const pid_t process : Descendants()) {
                kill(process, signal);
            }
            if (HaveAllEnded()) {
                return;
            }
        }
    }
    CProgram(const CProgram&) = delete;
    CProgram& operator=(const CProgram&) = delete;

    pid_t Process() const { return m_process; }

    double SettledMegabytes() const {
        const auto deadline = Clock::now() + kLongestSettling;
        double reference = 0;
        int quietLooks = 0;
        while (quietLooks < kQuietLooks && Clock::now() < deadline) {
            std::this_thread::sleep_for(kBetweenLooks);
            const double now = Megabytes(m_process);
            const bool isQuiet = std::abs(now - reference) <= kQuiet * reference;
            quietLooks = isQuiet ? quietLooks + 1 : 0;
            reference = isQuiet ? reference : now;
        }
        return Megabytes(m_process);
    }

private:
    static bool HaveAllEnded() {
        const auto deadline = Clock::now() + kLongestEnd;
        while (Clock::now() < deadline) {
            if (waitpid(-1, nullptr, WNOHANG) < 0) {
                return true;
            }
            std::this_thread::sleep_for(milliseconds(10));
        }
        return false;
    }

    pid_t m_process;
};

void Measure(char** arguments) {
    CDisplay display;
    const auto start = Clock::now();
    const CProgram program(arguments);
    const xcb_window_t window = display.WaitForWindow();
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    const double own = program.SettledMegabytes();
    if (own == 0) {
        throw std::runtime_error("ended by itself");
    }
    double helpers = 0;
    std::string names;
    for (const pid_t process : Descendants()) {
        if (process != program.Process()) {
            helpers += Megabytes(process);
            names += ' ' + NameOf(process);
        }
    }
    std::printf("window_ms %.1f\nwindow %s\nown_mb %.1f\nhelpers_mb %.1f\nhelpers%s\n",
                time.count(), display.Title(window).c_str(), own, helpers, names.c_str());
}

}

int main(int count, char** arguments) {
    try {
        if (count < 2) {
            throw std::runtime_error("no program given");
        }
        Measure(arguments + 1);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "window_probe: %s: %s\n", count < 2 ? "" : arguments[1],
                     problem.what());
        return EXIT_FAILURE;
    }
}
