#include "contract/ErrorInfo.h"

#include <utility>

namespace contract {

namespace {
thread_local std::string g_description;
// Asked before the string is: the panel clears before every call, nearly always with nothing there,
// and a plain flag is found without the look whether the string has been made in this thread.
constinit thread_local bool g_hasDescription = false;
}

void SetErrorInfo(const std::string& description) noexcept {
    try {
        g_description = description;
        g_hasDescription = true;
    } catch (...) {
        ClearErrorInfo();
    }
}

std::string TakeErrorInfo() noexcept {
    if (!std::exchange(g_hasDescription, false)) {
        return {};
    }
    return std::exchange(g_description, {});
}

void ClearErrorInfo() noexcept { g_hasDescription = false; }

CErrorInfoClearer::CErrorInfoClearer() noexcept : m_hasDescription(g_hasDescription) {}

}
