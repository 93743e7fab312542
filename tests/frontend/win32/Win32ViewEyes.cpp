// What a user sees of a view: the eyes of CWin32ViewUser.

#include "tests/frontend/win32/Win32ViewUser.h"

#include "frontend/win32/Text.h"
#include "tests/frontend/win32/Input.h"

#include <algorithm>

namespace win32tests {

namespace {

using panel::ControlId;

LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, message, wParam, lParam);
}

// As the system draws it: one mark is none, two are one ampersand.
std::wstring WithoutMarks(const std::wstring& text) {
    std::wstring shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'&' || (++i < text.size() && text[i] == L'&')) {
            shown += i < text.size() ? text[i] : L'&';
        } else if (i < text.size()) {
            shown += text[i];
        }
    }
    return shown;
}

std::wstring ChoiceOf(HWND list, int index) {
    std::wstring text(
        static_cast<std::size_t>(Send(list, CB_GETLBTEXTLEN, static_cast<WPARAM>(index))) + 1,
        L'\0');
    text.resize(static_cast<std::size_t>(Send(list, CB_GETLBTEXT, static_cast<WPARAM>(index),
                                              reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

}

std::string CWin32ViewUser::ShownTitle() { return win32::FromWide(TextOf(m_view)); }

std::string CWin32ViewUser::ShownText(ControlId id) {
    const HWND control = Find(id);
    const std::wstring text = TextOf(control);
    return win32::FromWide(ClassOf(control) == L"Edit" ? text : WithoutMarks(text));
}

std::vector<conformance::ShownColumn> CWin32ViewUser::ShownColumns(ControlId id) {
    const HWND list = Find(id);
    const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
    const auto count = static_cast<int>(Send(header, HDM_GETITEMCOUNT));
    std::vector<conformance::ShownColumn> columns;
    for (int index = 0; index < count; ++index) {
        wchar_t heading[64] = {};
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.pszText = heading;
        column.cchTextMax = 64;
        Send(list, LVM_GETCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
        const bool isRight = (column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT;
        columns.push_back({win32::FromWide(heading), column.cx,
                           isRight ? panel::Alignment::Right : panel::Alignment::Left});
    }
    return columns;
}

std::string CWin32ViewUser::ShownCell(ControlId list, int row, int column) {
    wchar_t text[512] = {};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 512;
    Send(Find(list), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return win32::FromWide(text);
}

bool CWin32ViewUser::IsRowInSight(ControlId id, int row) {
    const HWND list = Find(id);
    const auto top = static_cast<int>(Send(list, LVM_GETTOPINDEX));
    return row >= top && row < top + static_cast<int>(Send(list, LVM_GETCOUNTPERPAGE));
}

conformance::ShownProgress CWin32ViewUser::Progress(ControlId id) {
    const HWND bar = Find(id);
    return {static_cast<int>(Send(bar, PBM_GETRANGE)), static_cast<int>(Send(bar, PBM_GETPOS))};
}

bool CWin32ViewUser::IsShownChecked(ControlId box) {
    return Send(Find(box), BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::string> CWin32ViewUser::ShownChoices(ControlId id) {
    const HWND list = Find(id);
    std::vector<std::string> choices;
    for (int index = 0; index < Send(list, CB_GETCOUNT); ++index) {
        choices.push_back(win32::FromWide(ChoiceOf(list, index)));
    }
    return choices;
}

std::optional<panel::StandardIcon> CWin32ViewUser::ShownIcon(ControlId id) {
    const auto shown = reinterpret_cast<HICON>(Send(Find(id), STM_GETICON));
    if (shown == LoadIconW(nullptr, IDI_INFORMATION)) {
        return panel::StandardIcon::Information;
    }
    return shown == LoadIconW(nullptr, IDI_WARNING) ? std::optional(panel::StandardIcon::Warning)
                                                    : std::nullopt;
}

// The system lists its windows from the topmost.
std::vector<ControlId> CWin32ViewUser::StackingOrder() {
    std::vector<ControlId> order;
    for (HWND child = ::GetWindow(m_view, GW_CHILD); child;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        order.push_back(static_cast<ControlId>(GetDlgCtrlID(child)));
    }
    std::ranges::reverse(order);
    return order;
}

panel::Rectangle CWin32ViewUser::ScreenRectangle(ControlId id) {
    RECT area{};
    GetClientRect(Find(id), &area);
    POINT corner{};
    ClientToScreen(Find(id), &corner);
    return {static_cast<int>(corner.x), static_cast<int>(corner.y), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

}
