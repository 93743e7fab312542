#include "frontend/win32/HelpText.h"

#include "frontend/help/HelpPage.h"
#include "frontend/win32/Text.h"

#include <algorithm>
#include <iterator>

namespace win32 {

namespace {

using Kind = help::HelpParagraph::Kind;

constexpr LONG kTwipsPerPoint = 20;
constexpr LONG kIndent = 18 * kTwipsPerPoint;

struct Style {
    Kind kind;
    LONG points;
    DWORD effects;
    LONG indent;
    LONG spaceBefore;
};

constexpr Style kStyles[] = {
    {Kind::Title, 14, CFE_BOLD, 0, 0},
    {Kind::Heading, 11, CFE_BOLD, 0, 10 * kTwipsPerPoint},
    {Kind::Text, 9, 0, 0, 6 * kTwipsPerPoint},
    {Kind::Item, 9, 0, kIndent, 3 * kTwipsPerPoint},
    {Kind::Term, 9, CFE_BOLD, 0, 6 * kTwipsPerPoint},
    {Kind::Definition, 9, 0, kIndent, 2 * kTwipsPerPoint},
};

const Style& StyleOf(Kind kind) { return *std::ranges::find(kStyles, kind, &Style::kind); }

LONG EndOf(HWND page) {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS, 1200}; // UTF-16
    return static_cast<LONG>(
        SendMessageW(page, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0));
}

void SelectEnd(HWND page) {
    CHARRANGE end{EndOf(page), EndOf(page)};
    SendMessageW(page, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&end));
}

void SetCharacters(HWND page, const Style& style, bool isLink) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = CFM_SIZE | CFM_BOLD | CFM_LINK;
    format.yHeight = style.points * kTwipsPerPoint;
    format.dwEffects = style.effects | (isLink ? CFE_LINK : 0);
    SendMessageW(page, EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

void SetParagraph(HWND page, const Style& style) {
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    format.dwMask = PFM_STARTINDENT | PFM_SPACEBEFORE;
    format.dxStartIndent = style.indent;
    format.dySpaceBefore = style.spaceBefore;
    SendMessageW(page, EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

// Appended text takes over the format of the empty selection at the end.
void Append(HWND page, const std::string& text, const Style& style, bool isLink) {
    SelectEnd(page);
    SetCharacters(page, style, isLink);
    SendMessageW(page, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

void ScrollToBegin(HWND page) {
    SendMessageW(page, EM_SETSEL, 0, 0);
    SendMessageW(page, EM_SCROLLCARET, 0, 0);
}

}

HelpLinks ShowHelpTopic(HWND page, const help::HelpTopic& topic) {
    HelpLinks links;
    SendMessageW(page, WM_SETREDRAW, FALSE, 0);
    SetWindowTextW(page, L"");
    for (const help::HelpParagraph& paragraph : help::LayOut(topic)) {
        const Style& style = StyleOf(paragraph.kind);
        SelectEnd(page);
        SetParagraph(page, style);
        for (const help::HelpRun& run : paragraph.runs) {
            if (run.topic != 0) {
                links.emplace(EndOf(page), run.topic);
            }
            Append(page, run.text, style, run.topic != 0);
        }
        Append(page, "\r\n", style, false);
    }
    ScrollToBegin(page);
    SendMessageW(page, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(page, nullptr, TRUE);
    return links;
}

HelpLinks ShowHelpText(HWND page, const std::string& text) {
    const Style& style = StyleOf(Kind::Text);
    SetWindowTextW(page, L"");
    SetParagraph(page, style);
    Append(page, text, style, false);
    ScrollToBegin(page);
    return {};
}

}
