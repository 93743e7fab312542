#include "frontend/win32/Text.h"

#include "frontend/win32/WinApi.h"

namespace win32 {

namespace {

constexpr wchar_t kMark = L'&';

}

std::wstring ToWide(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string FromWide(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length,
                                                                    nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, narrow.data(),
                        static_cast<int>(narrow.size()), nullptr, nullptr);
    return narrow;
}

std::wstring EscapeMnemonics(std::wstring text) {
    for (std::size_t mark = text.find(kMark); mark != std::wstring::npos;
         mark = text.find(kMark, mark + 2)) {
        text.insert(mark, 1, kMark);
    }
    return text;
}

std::wstring WithoutMnemonicMark(std::wstring text) {
    for (std::size_t mark = text.find(kMark); mark != std::wstring::npos;
         mark = text.find(kMark, mark + 1)) {
        text.erase(mark, 1);
    }
    return text;
}

}
