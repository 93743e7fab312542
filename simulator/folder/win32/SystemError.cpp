#include "simulator/folder/SystemError.h"

#include "simulator/folder/win32/WideText.h"

#include <windows.h>

namespace simulator {

std::string MessageOf(const std::error_code& error) {
    const auto condition = error.default_error_condition();
    if (condition.category() == std::generic_category()) {
        return condition.message();
    }
    std::wstring text(1024, L'\0');
    constexpr DWORD kOnOneLine = FORMAT_MESSAGE_MAX_WIDTH_MASK;
    text.resize(
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | kOnOneLine,
                       nullptr, static_cast<DWORD>(error.value()), 0, text.data(),
                       static_cast<DWORD>(text.size()), nullptr));
    text.erase(text.find_last_not_of(L" .") + 1);
    return text.empty() ? "error " + std::to_string(error.value()) : FromWide(text);
}

}
