#pragma once

#include <functional>
#include <vector>

namespace headless {

class CHeadlessView;

/// The windows that are open, the oldest first. Only the last one takes the user's input.
class CWindowStack {
public:
    void OpenPanel(CHeadlessView& view);
    void OpenDialog(CHeadlessView& view) { m_windows.push_back(&view); }
    void Close(CHeadlessView& view);
    /// What a front end has to tell while a view ends.
    std::function<void()> whileClosing;

    bool IsActive(const CHeadlessView& view) const;
    /// The panel's view; null when there is none (any more).
    CHeadlessView* PanelView() const { return m_panelView; }

    /// A plain box, open as long as the scope.
    class BoxScope {
    public:
        explicit BoxScope(CWindowStack& stack) : m_stack(stack) { stack.OpenBox(); }
        ~BoxScope() { m_stack.CloseBox(); }
        BoxScope(const BoxScope&) = delete;
        BoxScope& operator=(const BoxScope&) = delete;

    private:
        CWindowStack& m_stack;
    };

private:
    void OpenBox() { m_windows.push_back(nullptr); }
    void CloseBox();

    std::vector<CHeadlessView*> m_windows; // null: a box
    CHeadlessView* m_panelView = nullptr;
};

}
