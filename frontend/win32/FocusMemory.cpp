#include "frontend/win32/FocusMemory.h"

#include <utility>

namespace win32 {

namespace {

HWND RootOf(HWND window) { return GetAncestor(window, GA_ROOT); }

}

void CFocusMemory::Focus(HWND control) {
    if (CanHaveFocus(control)) {
        m_next = nullptr;
        SetFocus(control);
        return;
    }
    m_next = control;
    m_before = ::GetFocus();
}

HWND CFocusMemory::GetFocused() const {
    if (m_next && IsWanted()) {
        return m_next;
    }
    const HWND focused = ::GetFocus();
    return IsChild(m_view, focused) ? focused : nullptr;
}

void CFocusMemory::Enable(HWND control, bool enabled) {
    const HWND focused = ::GetFocus();
    const bool hadFocus = focused && (focused == control || IsChild(control, focused));
    EnableWindow(control, enabled);
    if (hadFocus && !enabled) {
        m_next = control;
        m_before = m_view;
        SetFocus(m_view);
    } else if (enabled && control == m_next) {
        HandOn();
    }
}

bool CFocusMemory::HandOn() {
    if (!m_next || !IsWanted()) {
        m_next = nullptr;
        return false;
    }
    if (CanHaveFocus(m_next)) {
        const HWND next = m_next;
        m_next = nullptr;
        SetFocus(next);
    }
    return true;
}

bool CFocusMemory::HandOn(HWND loser) {
    if (HandOn()) {
        return true;
    }
    if (!IsChild(m_view, loser) || !CanHaveFocus(loser)) {
        return false;
    }
    SetFocus(loser);
    return true;
}

HWND CFocusMemory::TakeWish() {
    return m_next && IsWindowEnabled(m_next) ? std::exchange(m_next, nullptr) : nullptr;
}

bool CFocusMemory::CanHaveFocus(HWND control) const {
    return IsWindowEnabled(control) && IsWindowVisible(control) && !IsInactive() && IsAllowed();
}

// A focus that nobody gave to a control, as the window's own on activation, does not count.
bool CFocusMemory::IsWanted() const {
    const HWND focused = ::GetFocus();
    if (m_mayTakeFocus && !IsInView(focused)) {
        return true;
    }
    return !focused || focused == m_before || focused == m_view || focused == RootOf(m_view) ||
           RootOf(focused) != RootOf(m_view);
}

bool CFocusMemory::IsInactive() const { return GetActiveWindow() != RootOf(m_view); }

bool CFocusMemory::IsInView(HWND window) const {
    return window == m_view || IsChild(m_view, window);
}

bool CFocusMemory::IsAllowed() const {
    const HWND focused = ::GetFocus();
    if (!m_mayTakeFocus || IsInView(focused)) {
        return true;
    }
    return (!focused || IsChild(focused, m_view)) && m_mayTakeFocus();
}

}
