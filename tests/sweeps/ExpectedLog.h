#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sweeps {

/// The status log as it has to look: a line that says what the last one said is not written again,
/// and what was said last is remembered also while there is nothing to write on.
class CExpectedLog {
public:
    void WritePlain(const std::string& text, bool isReachable);
    void WriteProgress(const std::string& text, std::uint32_t done, std::uint32_t total,
                       bool isReachable);
    void Clear() { m_lines.clear(); }

    const std::vector<std::string>& Lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
    std::string m_lastText;
    std::uint32_t m_lastPercent = 0;
};

}
