#pragma once

#include "frontend/help/HelpFile.h"
#include "frontend/win32/HelpText.h"

#include <cstdint>
#include <map>
#include <string>

namespace win32 {

/// Shows a help file (frontend/help/HelpFile.h): its topics in a tree, the chosen one beside it.
/// Not modal; Escape and the close box hide it. Ends with the object.
class CHelpWindow {
public:
    CHelpWindow() = default;
    ~CHelpWindow();
    CHelpWindow(const CHelpWindow&) = delete;
    CHelpWindow& operator=(const CHelpWindow&) = delete;

    /// Shows a topic of `file`, in front of `owner`, which may be null. Says so in the window when
    /// there is no such file or topic.
    void ShowTopic(const std::string& file, std::uint32_t context, HWND owner);

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

    void Make(HWND owner);
    void MakeControls();
    void Arrange();
    void Read(const std::string& file);
    void FillTree();
    void Choose(std::uint32_t number);
    void ShowPage(std::uint32_t number);
    void OnNotification(const NMHDR& notification);

    HWND m_window = nullptr;
    HWND m_owner = nullptr;
    HWND m_tree = nullptr;
    HWND m_page = nullptr;
    std::vector<help::HelpTopic> m_topics;
    std::map<std::uint32_t, HTREEITEM> m_items;
    HelpLinks m_links;
    std::string m_fault; // why there is no help to show
    bool m_isFilling = false;
};

}
