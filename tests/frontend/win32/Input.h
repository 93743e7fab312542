#pragma once

#include "frontend/win32/WinApi.h"
#include "panel/control/Geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The mouse and the keyboard of the system, and the message loop of a host.
namespace win32tests {

/// Handles all messages that have come, keys as a host with a view in its window does.
void Pump();

/// Clicks a place on the screen, holding `heldKey` (a virtual-key code; 0: none). The messages are
/// on their way when it returns.
void ClickScreen(panel::Point place, bool isRight = false, std::uint16_t heldKey = 0);
/// How far to the right of its aim the next click falls (-5 to 5), another distance than that of
/// the click before, so that no two make a double click.
int NextAside();
/// Clicks into the middle of a window.
void ClickCentre(HWND window);

/// Presses a key of that virtual-key code, holding another one. The messages are on their way when
/// it returns.
void SendKey(std::uint16_t virtualKey, std::uint16_t heldKey = 0);
/// The same, and handles what comes of it.
void PressKey(std::uint16_t virtualKey, std::uint16_t heldKey = 0);
/// The same with the characters of a text.
void Type(std::wstring_view text);

/// Whether a user could use the window.
bool IsUsable(HWND window);

std::wstring ClassOf(HWND window);
std::wstring TextOf(HWND window);
std::vector<HWND> ChildrenOf(HWND window, std::wstring_view className);
/// The visible top-level windows of this thread.
std::vector<HWND> OwnWindows();

}
