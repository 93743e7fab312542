// A host's window that does something as the focus comes back to it.

#include "tests/component/win32/control/ControlFixture.h"

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace controltests {

namespace {

/// Runs `act` once, inside the next message with which a window gets the focus.
class CActOnFocus {
public:
    CActOnFocus(HWND window, std::function<void()> act) : m_window(window), m_act(std::move(act)) {
        SetWindowSubclass(m_window, Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~CActOnFocus() { RemoveWindowSubclass(m_window, Procedure, 1); }
    CActOnFocus(const CActOnFocus&) = delete;
    CActOnFocus& operator=(const CActOnFocus&) = delete;

    bool HasActed() const { return !m_act; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR, DWORD_PTR self) {
        auto& act = reinterpret_cast<CActOnFocus*>(self)->m_act;
        if (message == WM_SETFOCUS && act) {
            std::exchange(act, {})();
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    const HWND m_window;
    std::function<void()> m_act;
};

/// What the host does.
struct Reaction {
    const char* name;
    void (*act)(CContainer& container, std::optional<win32tests::CHostWindow>& window);
};

void PrintTo(const Reaction& reaction, std::ostream* out) { *out << reaction.name; }

class FocusChangeTest : public ControlFixture, public testing::WithParamInterface<Reaction> {};

TEST_P(FocusChangeTest, InsideDeactivationLeavesTheControlInactive) {
    StartConnected();
    ASSERT_EQ(container.ActivateForUser(), S_OK);
    CActOnFocus reaction(window->Get(), [&] { GetParam().act(container, window); });
    const auto object = container.As<IOleInPlaceObject>();
    EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
    EXPECT_TRUE(reaction.HasActed());
    EXPECT_EQ(container.Window(), nullptr);
    const Calls calls = container.Record().TakeCalls();
    EXPECT_EQ(std::ranges::count(calls, "OnInPlaceActivate"),
              std::ranges::count(calls, "OnInPlaceDeactivate"));
    EXPECT_EQ(std::ranges::count(calls, "OnUIActivate"),
              std::ranges::count(calls, "OnUIDeactivate"));
}

constexpr Reaction kReactions[] = {
    {"Close",
     [](CContainer& container, auto&) { container.As<IOleObject>()->Close(OLECLOSE_NOSAVE); }},
    {"Release", [](CContainer& container, auto&) { container.Release(); }},
    {"InPlaceDeactivate",
     [](CContainer& container, auto&) { container.As<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"Activate",
     [](CContainer& container, auto&) { static_cast<void>(container.ActivateForUser()); }},
    {"SetClientSite",
     [](CContainer& container, auto&) { container.As<IOleObject>()->SetClientSite(nullptr); }},
    {"DestroyWindow", [](CContainer&, auto& window) { window.reset(); }},
};

INSTANTIATE_TEST_SUITE_P(All, FocusChangeTest, testing::ValuesIn(kReactions));

}

}
