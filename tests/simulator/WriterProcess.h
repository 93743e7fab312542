#pragma once

#include "tests/simulator/WriterFixture.h"

#include <cstddef>
#include <cstdint>

namespace simulator {

/// A process of its own that writes the device folder of a fixture, step after step, until it is
/// killed. One that is not is ended at the next step after this object.
class CWriterProcess {
public:
    /// How many writers a round of kills can start in each step: 209 in all where a process is
    /// forked, and 76 where starting one takes a quarter of a second.
    static const std::size_t kKillsPerStep;

    CWriterProcess(WriterFixture& writer, std::size_t firstStep);
    ~CWriterProcess();
    CWriterProcess(const CWriterProcess&) = delete;
    CWriterProcess& operator=(const CWriterProcess&) = delete;

    /// Waits for `most` reports, of which the process makes one when it begins and one for each
    /// step that it has done, or for its end. Returns how many there were.
    std::size_t ReadReports(std::size_t most);

    /// Kills it and waits for its end. Fails the test when it has ended by itself.
    void Kill();

private:
    /// What the system knows the process, and the end of the pipe that is read, by.
    std::intptr_t m_process = -1;
    std::intptr_t m_reports = -1;
};

}
