#include "tests/sweeps/ExpectedLog.h"

namespace sweeps {

void CExpectedLog::WritePlain(const std::string& text, bool isReachable) {
    if (text == m_lastText) {
        return;
    }
    m_lastText = text;
    if (isReachable) {
        m_lines.push_back(text);
    }
}

void CExpectedLog::WriteProgress(const std::string& text, std::uint32_t done, std::uint32_t total,
                                 bool isReachable) {
    const auto percent = static_cast<std::uint32_t>(std::uint64_t{done} * 100 / total);
    if (text == m_lastText && percent == m_lastPercent) {
        return;
    }
    m_lastText = text;
    m_lastPercent = percent;
    if (isReachable) {
        m_lines.push_back(text + " " + std::to_string(percent) + "%");
    }
}

}
