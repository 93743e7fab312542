#include "tests/frontend/win32/PromptHands.h"

#include "frontend/win32/Text.h"
#include "tests/frontend/win32/Input.h"

#include <dlgs.h>

#include <optional>
#include <utility>

namespace win32tests {

namespace {

constexpr UINT kIntervalMs = 10;
constexpr int kBoxText = 0xFFFF;
constexpr int kForced = 2;

CPromptHands* g_hands = nullptr;

std::optional<PromptKind> KindOf(HWND window) {
    const std::wstring name = ClassOf(window);
    if (name == L"#32768") {
        return PromptKind::Menu;
    }
    if (name != L"#32770" || IsHelpViewer(window)) {
        return std::nullopt;
    }
    if (GetDlgItem(window, cmb1) && GetDlgItem(window, IDOK)) {
        return PromptKind::FileDialog;
    }
    return GetDlgItem(window, kBoxText) ? PromptKind::Box : PromptKind::Dialog;
}

void Dismiss(HWND prompt, PromptKind kind) {
    if (kind == PromptKind::Menu) {
        EndMenu();
        return;
    }
    EndDialog(prompt, kForced);
}

std::string Describe(HWND prompt) {
    std::wstring text = TextOf(prompt);
    for (const HWND label : ChildrenOf(prompt, L"Static")) {
        text += L" | " + TextOf(label);
    }
    return win32::FromWide(text);
}

}

CPromptHands::CPromptHands() : m_timer(SetTimer(nullptr, 0, kIntervalMs, OnTimer)) {
    g_hands = this;
}

CPromptHands::~CPromptHands() {
    KillTimer(nullptr, m_timer);
    g_hands = nullptr;
}

void CPromptHands::Expect(PromptKind kind, std::function<void(HWND)> act) {
    m_expected.push_back({kind, std::move(act)});
}

void CALLBACK CPromptHands::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (g_hands) {
        g_hands->Look();
    }
}

void CPromptHands::Look() {
    std::erase_if(m_seen, [](HWND window) { return !IsWindow(window); });
    if (const HWND prompt = FindNew()) {
        m_seen.insert(prompt);
        Act(prompt);
    }
}

HWND CPromptHands::FindNew() {
    for (const HWND window : OwnWindows()) {
        if (KindOf(window) && !m_seen.contains(window)) {
            return window;
        }
    }
    return nullptr;
}

void CPromptHands::Act(HWND prompt) {
    const PromptKind kind = *KindOf(prompt);
    if (m_expected.empty() || m_expected.front().kind != kind) {
        m_unexpected.push_back(Describe(prompt));
        Dismiss(prompt, kind);
        return;
    }
    const Expected expected = std::move(m_expected.front());
    m_expected.pop_front();
    expected.act(prompt);
}

bool IsHelpViewer(HWND window) {
    return !ChildrenOf(window, L"SysTreeView32").empty() && TextOf(window) == L"Help";
}

}
