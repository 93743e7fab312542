#include "tests/component/win32/server/RegistryTree.h"

#include "frontend/win32/Text.h"
#include "frontend/win32/WinApi.h"

#include <gtest/gtest.h>
#include <winternl.h>

#include <algorithm>

extern "C" NTSTATUS NTAPI NtDeleteKey(HANDLE key);

namespace component {

namespace {

constexpr DWORD kRoom = 1024;

HKEY Open(const std::wstring& key) {
    HKEY opened = nullptr;
    RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &opened);
    return opened;
}

HKEY Create(const std::wstring& key, DWORD options) {
    HKEY created = nullptr;
    DWORD disposition = 0;
    EXPECT_EQ(RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, options, KEY_ALL_ACCESS,
                              nullptr, &created, &disposition),
              0)
        << win32::FromWide(key);
    EXPECT_EQ(disposition, DWORD(REG_CREATED_NEW_KEY)) << win32::FromWide(key);
    return created;
}

std::wstring ContentOf(DWORD type, const wchar_t* data, DWORD size) {
    if (type != REG_SZ) {
        return L"(type " + std::to_wstring(type) + L")";
    }
    std::wstring text(data, size / sizeof(wchar_t));
    // A text that is stored without its terminator shows here.
    if (text.empty() || text.back() != L'\0') {
        return text + L"(unterminated)";
    }
    text.pop_back();
    return text;
}

void DumpValues(HKEY opened, const std::wstring& path, std::vector<std::string>& lines) {
    bool hasDefault = false;
    for (DWORD i = 0;; ++i) {
        wchar_t name[kRoom];
        wchar_t data[kRoom];
        DWORD nameLength = kRoom;
        DWORD size = sizeof data;
        DWORD type = 0;
        if (RegEnumValueW(opened, i, name, &nameLength, nullptr, &type,
                          reinterpret_cast<BYTE*>(data), &size) != ERROR_SUCCESS) {
            break;
        }
        hasDefault |= nameLength == 0;
        const std::wstring place = nameLength == 0 ? path : path + L":" + name;
        lines.push_back(win32::FromWide(place + L" = " + ContentOf(type, data, size)));
    }
    if (!hasDefault) {
        lines.push_back(win32::FromWide(path));
    }
}

void Dump(HKEY opened, const std::wstring& path, std::vector<std::string>& lines) {
    DumpValues(opened, path, lines);
    wchar_t name[kRoom];
    for (DWORD i = 0; RegEnumKeyW(opened, i, name, kRoom) == ERROR_SUCCESS; ++i) {
        HKEY child = nullptr;
        if (RegOpenKeyExW(opened, name, 0, KEY_READ, &child) == ERROR_SUCCESS) {
            Dump(child, path + L"\\" + name, lines);
            RegCloseKey(child);
        }
    }
}

}

std::vector<std::string> DumpTree(const std::wstring& key) {
    std::vector<std::string> lines;
    if (const HKEY opened = Open(key)) {
        Dump(opened, key, lines);
        RegCloseKey(opened);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

bool HasKey(const std::wstring& key) {
    const HKEY opened = Open(key);
    if (opened) {
        RegCloseKey(opened);
    }
    return opened != nullptr;
}

void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), name.c_str(), REG_SZ, text.c_str(),
                              static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              0);
}

void RemoveTree(const std::wstring& key) {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
    ASSERT_FALSE(HasKey(key)) << win32::FromWide(key);
}

void MakeRefusingKey(const std::wstring& key) { RegCloseKey(Create(key, REG_OPTION_VOLATILE)); }

CDeadKey::CDeadKey(const std::wstring& key)
    : m_key(Create(key, REG_OPTION_CREATE_LINK | REG_OPTION_VOLATILE)) {
    constexpr std::wstring_view kNowhere = L"\\Registry\\Machine\\krx8-test-nowhere\\at-all";
    EXPECT_EQ(RegSetValueExW(static_cast<HKEY>(m_key), L"SymbolicLinkValue", 0, REG_LINK,
                             reinterpret_cast<const BYTE*>(kNowhere.data()),
                             static_cast<DWORD>(kNowhere.size() * sizeof(wchar_t))),
              0);
}

// By its handle, since its name leads elsewhere.
CDeadKey::~CDeadKey() {
    EXPECT_EQ(NtDeleteKey(m_key), 0);
    RegCloseKey(static_cast<HKEY>(m_key));
}

}
