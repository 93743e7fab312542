#include "frontend/win32/HelpWindow.h"

#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Barrier.h"
#include "frontend/win32/HelpText.h"
#include "frontend/win32/Module.h"
#include "frontend/win32/SystemFile.h"
#include "frontend/win32/Text.h"

#include <optional>

namespace win32 {

namespace {

constexpr int kTree = 101;
constexpr int kPage = 102;
constexpr int kTreeWidth = 265;
constexpr int kPageMargin = 8;
constexpr SIZE kWindowSize{800, 540};
constexpr UINT_PTR kSubclass = 1;
constexpr UINT kShowTopicMessage = WM_APP + 1;

/// A dialog without controls: a window of a class that need not be registered.
struct EmptyDialog {
    DLGTEMPLATE dialog;
    WORD menu;
    WORD windowClass;
    WORD title;
};

constexpr EmptyDialog kWindow{
    {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, 0, 0, 0, 0, 0}, 0, 0, 0};

// No loop of the host's hands keys to this window as to a dialog.
LRESULT CALLBACK DialogKeys(HWND control, UINT message, WPARAM wParam, LPARAM lParam,
                            UINT_PTR identifier, DWORD_PTR) {
    const HWND window = GetParent(control);
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE) {
        SendMessageW(window, WM_CLOSE, 0, 0);
        return 0;
    }
    if (message == WM_KEYDOWN && wParam == VK_TAB) {
        SetFocus(GetNextDlgTabItem(window, control, GetKeyState(VK_SHIFT) < 0));
        return 0;
    }
    if (message == WM_CHAR && (wParam == VK_TAB || wParam == VK_ESCAPE)) {
        return 0;
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(control, DialogKeys, identifier);
    }
    return DefSubclassProc(control, message, wParam, lParam);
}

HWND MakeControl(HWND window, const wchar_t* name, DWORD style, int id) {
    const HWND control = CreateWindowExW(
        WS_EX_CLIENTEDGE, name, L"", style | WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0, window,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), OwnModule(), nullptr);
    SetWindowSubclass(control, DialogKeys, kSubclass, 0);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    return control;
}

}

CHelpWindow::~CHelpWindow() {
    if (m_window) {
        DestroyWindow(m_window);
    }
}

void CHelpWindow::ShowTopic(const std::string& file, std::uint32_t context, HWND owner) {
    if (m_window && m_owner != owner) {
        DestroyWindow(m_window);
    }
    if (!m_window) {
        Make(owner);
    }
    Read(file);
    FillTree();
    ShowWindow(m_window, SW_SHOWNORMAL);
    SetForegroundWindow(m_window);
    SetFocus(m_page);
    // At last: a tree that gets the focus first chooses a topic of its own accord.
    Choose(context);
}

void CHelpWindow::Make(HWND owner) {
    const CActivationContext context;
    RegisterControlClasses();
    m_owner = owner;
    m_window = CreateDialogIndirectParamW(OwnModule(), &kWindow.dialog, owner, Procedure,
                                          reinterpret_cast<LPARAM>(this));
}

void CHelpWindow::MakeControls() {
    // Brings the class of the page; stays loaded for as long as pages may be shown.
    static const HMODULE library = LoadLibraryW(L"msftedit.dll");
    m_tree = MakeControl(m_window, WC_TREEVIEWW, TVS_SHOWSELALWAYS, kTree);
    m_page = MakeControl(m_window, library ? L"RICHEDIT50W" : WC_EDITW,
                         ES_MULTILINE | ES_READONLY | WS_VSCROLL, kPage);
    SendMessageW(m_page, EM_SETEVENTMASK, 0, ENM_LINK);
}

INT_PTR CALLBACK CHelpWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        auto* const self = reinterpret_cast<CHelpWindow*>(lParam);
        self->m_window = window;
        self->MakeControls();
        SetWindowTextW(window, L"Help");
        SetWindowPos(window, nullptr, 0, 0, kWindowSize.cx, kWindowSize.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return FALSE;
    }
    auto* const self = reinterpret_cast<CHelpWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self ? Contained(INT_PTR{FALSE}, [&] { return self->Handle(message, wParam, lParam); })
                : FALSE;
}

INT_PTR CHelpWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        Arrange();
        return TRUE;
    case WM_CLOSE:
        ShowWindow(m_window, SW_HIDE);
        return TRUE;
    case WM_NOTIFY:
        OnNotification(*reinterpret_cast<const NMHDR*>(lParam));
        return FALSE;
    case kShowTopicMessage:
        Choose(static_cast<std::uint32_t>(wParam));
        return TRUE;
    case WM_NCDESTROY:
        m_window = nullptr;
        return FALSE;
    default:
        return FALSE;
    }
}

void CHelpWindow::Arrange() {
    RECT area{};
    GetClientRect(m_window, &area);
    MoveWindow(m_tree, 0, 0, kTreeWidth, area.bottom, TRUE);
    MoveWindow(m_page, kTreeWidth, 0, area.right - kTreeWidth, area.bottom, TRUE);
    // Each size makes the page forget its margins.
    RECT text{};
    GetClientRect(m_page, &text);
    InflateRect(&text, -kPageMargin, 0);
    text.top += kPageMargin;
    SendMessageW(m_page, EM_SETRECT, 0, reinterpret_cast<LPARAM>(&text));
}

void CHelpWindow::Read(const std::string& file) {
    m_topics.clear();
    m_fault.clear();
    if (const std::optional<std::string> text = ReadWholeFile(file)) {
        m_topics = help::ParseHelp(*text);
    } else {
        m_fault = "The help file was not found. It was looked for here:\n\n" + file;
    }
}

void CHelpWindow::FillTree() {
    m_items.clear();
    m_isFilling = true;
    TreeView_DeleteAllItems(m_tree);
    for (const help::HelpTopic& topic : m_topics) {
        std::wstring title = ToWide(topic.title);
        TVINSERTSTRUCTW item{};
        item.hParent = TVI_ROOT;
        item.hInsertAfter = TVI_LAST;
        item.item.mask = TVIF_TEXT | TVIF_PARAM;
        item.item.pszText = title.data();
        item.item.lParam = static_cast<LPARAM>(topic.number);
        m_items.emplace(topic.number,
                        reinterpret_cast<HTREEITEM>(SendMessageW(m_tree, TVM_INSERTITEMW, 0,
                                                                 reinterpret_cast<LPARAM>(&item))));
    }
    m_isFilling = false;
}

// Choosing in the tree shows the page.
void CHelpWindow::Choose(std::uint32_t number) {
    const auto found = m_items.find(number);
    if (found != m_items.end() && TreeView_GetSelection(m_tree) != found->second) {
        TreeView_SelectItem(m_tree, found->second);
    } else {
        ShowPage(number);
    }
}

void CHelpWindow::ShowPage(std::uint32_t number) {
    if (!m_fault.empty()) {
        m_links = ShowHelpText(m_page, m_fault);
    } else if (const help::HelpTopic* const topic = help::FindTopic(m_topics, number)) {
        m_links = ShowHelpTopic(m_page, *topic);
    } else {
        m_links =
            ShowHelpText(m_page, "There is no page " + std::to_string(number) + " in this help.");
    }
}

// A link is followed later: the page is still handling the click.
void CHelpWindow::OnNotification(const NMHDR& notification) {
    if (notification.code == static_cast<UINT>(TVN_SELCHANGEDW) && !m_isFilling) {
        const auto& change = reinterpret_cast<const NMTREEVIEWW&>(notification);
        ShowPage(static_cast<std::uint32_t>(change.itemNew.lParam));
    } else if (notification.code == EN_LINK) {
        const auto& link = reinterpret_cast<const ENLINK&>(notification);
        const auto found = m_links.find(link.chrg.cpMin);
        if (link.msg == WM_LBUTTONUP && found != m_links.end()) {
            PostMessageW(m_window, kShowTopicMessage, found->second, 0);
        }
    }
}

}
