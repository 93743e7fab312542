#include "tests/frontend/win32/Input.h"

namespace win32tests {

namespace {

constexpr std::wstring_view kDialogClass = L"#32770";

int g_aside = 0;

HWND OutermostDialog(HWND window) {
    HWND dialog = nullptr;
    for (; window; window = GetAncestor(window, GA_PARENT)) {
        if (ClassOf(window) == kDialogClass) {
            dialog = window;
        }
    }
    return dialog;
}

INPUT KeyInput(std::uint16_t virtualKey, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT CharacterInput(wchar_t character, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    return input;
}

INPUT MouseInput(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

void Send(std::vector<INPUT> inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

std::vector<INPUT> Holding(std::uint16_t heldKey, std::vector<INPUT> inputs) {
    if (heldKey != 0) {
        inputs.insert(inputs.begin(), KeyInput(heldKey, 0));
        inputs.push_back(KeyInput(heldKey, KEYEVENTF_KEYUP));
    }
    return inputs;
}

BOOL CALLBACK AddVisible(HWND window, LPARAM windows) {
    if (IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    }
    return TRUE;
}

BOOL CALLBACK AddAny(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

}

void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        const HWND dialog = OutermostDialog(message.hwnd);
        if (!dialog || !IsDialogMessageW(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void ClickScreen(panel::Point place, bool isRight, std::uint16_t heldKey) {
    SetCursorPos(place.x, place.y);
    Send(Holding(heldKey, {MouseInput(isRight ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
                           MouseInput(isRight ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)}));
}

int NextAside() {
    constexpr int kStep = 5;
    g_aside = (g_aside + kStep) % (3 * kStep);
    return g_aside - kStep;
}

void ClickCentre(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    ClickScreen({static_cast<int>(place.left + place.right) / 2 + NextAside(),
                 static_cast<int>(place.top + place.bottom) / 2});
}

void SendKey(std::uint16_t virtualKey, std::uint16_t heldKey) {
    Send(Holding(heldKey, {KeyInput(virtualKey, 0), KeyInput(virtualKey, KEYEVENTF_KEYUP)}));
}

void PressKey(std::uint16_t virtualKey, std::uint16_t heldKey) {
    SendKey(virtualKey, heldKey);
    Pump();
}

void Type(std::wstring_view text) {
    for (const wchar_t character : text) {
        Send({CharacterInput(character, 0), CharacterInput(character, KEYEVENTF_KEYUP)});
    }
    Pump();
}

bool IsUsable(HWND window) {
    for (HWND part = window; part; part = GetAncestor(part, GA_PARENT)) {
        if (!IsWindowEnabled(part)) {
            return false;
        }
    }
    return IsWindowVisible(window) != FALSE;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1,
                      L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::vector<HWND> ChildrenOf(HWND window, std::wstring_view className) {
    std::vector<HWND> children;
    EnumChildWindows(window, AddAny, reinterpret_cast<LPARAM>(&children));
    std::erase_if(children, [&](HWND child) { return ClassOf(child) != className; });
    return children;
}

std::vector<HWND> OwnWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddVisible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

}
