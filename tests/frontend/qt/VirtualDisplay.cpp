#include "tests/frontend/qt/VirtualDisplay.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace qttests {

namespace {

// The server ends with the test program, however that ends.
[[noreturn]] void RunServer(int displayPipe) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const std::string descriptor = std::to_string(displayPipe);
    execlp("Xvfb", "Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "1280x1024x24",
           "-nolisten", "tcp", "-noreset", static_cast<char*>(nullptr));
    std::perror("Xvfb");
    _exit(EXIT_FAILURE);
}

// The server writes the number that it has found free, and a newline, once it takes clients.
std::string ReadDisplayNumber(int displayPipe) {
    std::string number;
    for (char digit = 0; read(displayPipe, &digit, 1) == 1 && digit != '\n';) {
        number += digit;
    }
    return number;
}

}

CVirtualDisplay::CVirtualDisplay() {
    int ends[2];
    if (pipe(ends) != 0 || (m_server = fork()) < 0) {
        std::perror("cannot start an X server");
        std::exit(EXIT_FAILURE);
    }
    if (m_server == 0) {
        close(ends[0]);
        RunServer(ends[1]);
    }
    close(ends[1]);
    const std::string number = ReadDisplayNumber(ends[0]);
    close(ends[0]);
    if (number.empty()) {
        std::fprintf(stderr, "The X server (Xvfb) did not start.\n");
        std::exit(EXIT_FAILURE);
    }
    m_name = ":" + number;
}

CVirtualDisplay::~CVirtualDisplay() {
    kill(m_server, SIGTERM);
    waitpid(m_server, nullptr, 0);
}

}
