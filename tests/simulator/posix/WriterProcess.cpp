#include "tests/simulator/WriterProcess.h"

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace simulator {

const std::size_t CWriterProcess::kKillsPerStep = 11;

CWriterProcess::CWriterProcess(WriterFixture& writer, std::size_t firstStep) {
    std::array<int, 2> pipeEnds{};
    EXPECT_EQ(pipe(pipeEnds.data()), 0);
    m_process = fork();
    if (m_process == 0) {
        writer.WriteForEver(firstStep, [&] { return write(pipeEnds[1], "+", 1) == 1; });
        _exit(1);
    }
    close(pipeEnds[1]);
    m_reports = pipeEnds[0];
}

CWriterProcess::~CWriterProcess() { close(static_cast<int>(m_reports)); }

std::size_t CWriterProcess::ReadReports(std::size_t most) {
    std::size_t count = 0;
    for (char byte = 0; count < most && read(static_cast<int>(m_reports), &byte, 1) == 1;) {
        ++count;
    }
    return count;
}

void CWriterProcess::Kill() {
    const auto process = static_cast<pid_t>(m_process);
    EXPECT_EQ(kill(process, SIGKILL), 0);
    int status = 0;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFSIGNALED(status)) << "The writer ended by itself";
}

}
