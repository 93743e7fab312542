#include "frontend/win32/SystemRegistry.h"

#include "frontend/win32/WinApi.h"

#include <gtest/gtest.h>

namespace win32 {

namespace {

constexpr const char* kPath = "SOFTWARE\\krx8-test\\K\xC3\xA4se";
constexpr const wchar_t* kTree = L"SOFTWARE\\krx8-test";
constexpr const wchar_t* kWidePath = L"SOFTWARE\\krx8-test\\K\x00E4se";

class SystemRegistryTest : public testing::Test {
protected:
    SystemRegistryTest() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, kTree); }
    ~SystemRegistryTest() override { RegDeleteTreeW(HKEY_LOCAL_MACHINE, kTree); }

    panel::IRegistryKey& Create() {
        EXPECT_EQ(m_registry.CreateKey(kPath, m_key), panel::kRegistrySuccess);
        return *m_key;
    }

    /// Puts a value there as another program would.
    void Store(const wchar_t* name, DWORD type, const void* bytes, DWORD size) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kWidePath, name, type, bytes, size), 0);
    }

    CSystemRegistry m_registry;
    std::unique_ptr<panel::IRegistryKey> m_key;
    std::string m_bytes = "untouched";
};

TEST_F(SystemRegistryTest, OpenOfMissingKeySaysNotFound) {
    EXPECT_EQ(m_registry.OpenKey(kPath, m_key), 2);
    EXPECT_EQ(m_key, nullptr);
}

TEST_F(SystemRegistryTest, CreateMakesTheKeysAboveAndOpenFindsIt) {
    Create();
    EXPECT_EQ(m_registry.OpenKey(kPath, m_key), panel::kRegistrySuccess);
    EXPECT_EQ(m_registry.OpenKey("SOFTWARE\\krx8-test", m_key), panel::kRegistrySuccess);
}

TEST_F(SystemRegistryTest, CreatedKeyLastsBeyondTheSystemsEnd) {
    Create();
    // The system refuses a lasting key below one that does not last.
    HKEY below = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\krx8-test\\K\x00E4se\\Below", 0,
                              nullptr, REG_OPTION_NON_VOLATILE, KEY_READ, nullptr, &below, nullptr),
              0);
    RegCloseKey(below);
}

TEST_F(SystemRegistryTest, TextIsReadBackWithItsTerminator) {
    EXPECT_EQ(Create().WriteText("FlashDir", "C:\\\xC3\x84"), panel::kRegistrySuccess);
    EXPECT_EQ(m_key->ReadValue("FlashDir", 260, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, std::string("C:\\\xC3\x84\0", 6));
}

TEST_F(SystemRegistryTest, WrittenTextIsTheSystemsOwn) {
    Create().WriteText("FlashDir", "C:\\\xC3\x84");
    wchar_t text[16] = {};
    DWORD size = sizeof text;
    EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, kWidePath, L"FlashDir", RRF_RT_REG_SZ, nullptr, text,
                           &size),
              0);
    EXPECT_STREQ(text, L"C:\\\x00C4");
    EXPECT_EQ(size, 5 * sizeof(wchar_t));
}

TEST_F(SystemRegistryTest, NumberIsReadBackAsItsFourBytes) {
    EXPECT_EQ(Create().WriteNumber("Count", 0x04030201), panel::kRegistrySuccess);
    EXPECT_EQ(m_key->ReadValue("Count", 4, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, "\x01\x02\x03\x04");
}

TEST_F(SystemRegistryTest, WrittenNumberIsTheSystemsOwn) {
    Create().WriteNumber("Count", 0x04030201);
    DWORD number = 0;
    DWORD size = sizeof number;
    EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, kWidePath, L"Count", RRF_RT_REG_DWORD, nullptr,
                           &number, &size),
              0);
    EXPECT_EQ(number, 0x04030201u);
}

TEST_F(SystemRegistryTest, EmptyNameIsTheDefaultValue) {
    EXPECT_EQ(Create().WriteText("", "default"), panel::kRegistrySuccess);
    EXPECT_EQ(m_key->ReadValue("", 260, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, std::string("default\0", 8));
}

TEST_F(SystemRegistryTest, MissingValueSaysNotFoundAndLeavesTheBytes) {
    EXPECT_EQ(Create().ReadValue("FlashDir", 260, m_bytes), 2);
    EXPECT_EQ(m_bytes, "untouched");
}

TEST_F(SystemRegistryTest, ValueBeyondTheCapacitySaysMoreDataAndLeavesTheBytes) {
    Create().WriteText("FlashDir", std::string(260, 'x'));
    EXPECT_EQ(m_key->ReadValue("FlashDir", 260, m_bytes), 234);
    EXPECT_EQ(m_bytes, "untouched");
    EXPECT_EQ(m_key->ReadValue("FlashDir", 261, m_bytes), panel::kRegistrySuccess);
}

TEST_F(SystemRegistryTest, TextStoredWithoutTerminatorIsReadAsItIs) {
    Create();
    // The system adds a terminator when one follows in memory.
    Store(L"FlashDir", REG_SZ, L"C:\\", 2 * sizeof(wchar_t));
    EXPECT_EQ(m_key->ReadValue("FlashDir", 260, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, "C:");
}

TEST_F(SystemRegistryTest, BinaryAndEmptyValuesAreReadAsTheyAre) {
    Create();
    Store(L"Binary", REG_BINARY, "\xFF\x00\x7F", 3);
    Store(L"Empty", REG_BINARY, nullptr, 0);
    EXPECT_EQ(m_key->ReadValue("Binary", 3, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, std::string("\xFF\x00\x7F", 3));
    EXPECT_EQ(m_key->ReadValue("Empty", 3, m_bytes), panel::kRegistrySuccess);
    EXPECT_EQ(m_bytes, "");
}

TEST_F(SystemRegistryTest, KeyOpenedForReadingRefusesWriting) {
    Create();
    ASSERT_EQ(m_registry.OpenKey(kPath, m_key), panel::kRegistrySuccess);
    EXPECT_EQ(m_key->WriteNumber("Count", 1), ERROR_ACCESS_DENIED);
}

}

}
