#pragma once

#include "frontend/win32/WinApi.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace win32tests {

enum class PromptKind { Box, Dialog, Menu, FileDialog };

/// Acts on the modal windows that the tests expect, in their order, while the system runs its own
/// message loop for them: a timer of the thread looks for windows that have come since. One that
/// nobody expects is dismissed.
class CPromptHands {
public:
    CPromptHands();
    ~CPromptHands();
    CPromptHands(const CPromptHands&) = delete;
    CPromptHands& operator=(const CPromptHands&) = delete;

    void Expect(PromptKind kind, std::function<void(HWND)> act);

    const std::vector<std::string>& GetUnexpected() const { return m_unexpected; }
    std::size_t GetOutstanding() const { return m_expected.size(); }

private:
    struct Expected {
        PromptKind kind;
        std::function<void(HWND)> act;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Look();
    HWND FindNew();
    void Act(HWND prompt);

    std::deque<Expected> m_expected;
    std::vector<std::string> m_unexpected;
    std::set<HWND> m_seen;
    UINT_PTR m_timer;
};

/// Whether a window is the help viewer, which is no prompt.
bool IsHelpViewer(HWND window);

}
