#include "frontend/win32/SystemRegistry.h"

#include "frontend/win32/Text.h"
#include "frontend/win32/WinApi.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace win32 {

namespace {

struct KeyEnd {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using OwnedKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyEnd>;

bool IsText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ; }

// The system keeps texts in UTF-16, with a terminator where they were written with one.
std::string ToBytes(DWORD type, const std::vector<std::byte>& stored) {
    if (IsText(type)) {
        return FromWide(
            {reinterpret_cast<const wchar_t*>(stored.data()), stored.size() / sizeof(wchar_t)});
    }
    return {reinterpret_cast<const char*>(stored.data()), stored.size()};
}

class CSystemRegistryKey final : public panel::IRegistryKey {
public:
    explicit CSystemRegistryKey(OwnedKey key) : m_key(std::move(key)) {}

    int ReadValue(const std::string& name, std::size_t capacity, std::string& bytes) override;
    int WriteText(const std::string& name, const std::string& text) override;
    int WriteNumber(const std::string& name, std::uint32_t number) override;

private:
    int Write(const std::string& name, DWORD type, const void* value, std::size_t size);

    OwnedKey m_key;
};

// Another program may change the value between the two looks at it.
int CSystemRegistryKey::ReadValue(const std::string& name, std::size_t capacity,
                                  std::string& bytes) {
    const std::wstring wideName = ToWide(name);
    std::vector<std::byte> stored;
    DWORD type = 0;
    DWORD size = 0;
    LSTATUS error = ERROR_MORE_DATA;
    while (error == ERROR_MORE_DATA || (error == ERROR_SUCCESS && stored.size() < size)) {
        stored.resize(size);
        error = RegQueryValueExW(m_key.get(), wideName.c_str(), nullptr, &type,
                                 reinterpret_cast<BYTE*>(stored.empty() ? nullptr : stored.data()),
                                 &size);
    }
    if (error != ERROR_SUCCESS) {
        return error;
    }
    stored.resize(size);
    std::string read = ToBytes(type, stored);
    if (read.size() > capacity) {
        return panel::kRegistryMoreData;
    }
    bytes = std::move(read);
    return panel::kRegistrySuccess;
}

int CSystemRegistryKey::WriteText(const std::string& name, const std::string& text) {
    const std::wstring wide = ToWide(text);
    return Write(name, REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

int CSystemRegistryKey::WriteNumber(const std::string& name, std::uint32_t number) {
    return Write(name, REG_DWORD, &number, sizeof number);
}

int CSystemRegistryKey::Write(const std::string& name, DWORD type, const void* value,
                              std::size_t size) {
    return RegSetValueExW(m_key.get(), ToWide(name).c_str(), 0, type,
                          static_cast<const BYTE*>(value), static_cast<DWORD>(size));
}

}

int CSystemRegistry::OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    HKEY opened = nullptr;
    const LSTATUS error =
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, ToWide(path).c_str(), 0, KEY_QUERY_VALUE, &opened);
    if (error == ERROR_SUCCESS) {
        key = std::make_unique<CSystemRegistryKey>(OwnedKey(opened));
    }
    return error;
}

int CSystemRegistry::CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    HKEY created = nullptr;
    const LSTATUS error =
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, ToWide(path).c_str(), 0, nullptr,
                        REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &created, nullptr);
    if (error == ERROR_SUCCESS) {
        key = std::make_unique<CSystemRegistryKey>(OwnedKey(created));
    }
    return error;
}

}
