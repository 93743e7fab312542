#include "contract/ErrorInfo.h"

#include <utility>

namespace contract {

namespace {
thread_local std::string g_description;
}

void SetErrorInfo(const std::string& description) noexcept {
    try {
        g_description = description;
    } catch (...) {
        g_description.clear();
    }
}

std::string TakeErrorInfo() noexcept { return std::exchange(g_description, {}); }

void ClearErrorInfo() noexcept { g_description.clear(); }

}
