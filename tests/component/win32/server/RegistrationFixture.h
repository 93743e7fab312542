#pragma once

#include "tests/component/win32/server/BuiltComponent.h"
#include "tests/component/win32/server/RegistryTree.h"

#include <gtest/gtest.h>

namespace component {

inline constexpr wchar_t kVersionKey[] = L"QRZ.KRX8Maintenance.1";
inline constexpr wchar_t kProgramKey[] = L"QRZ.KRX8Maintenance";
/// That of the dual interface.
inline constexpr wchar_t kInterfaceKey[] = L"Interface\\{B513330E-DAEF-457D-9A6B-FDF523F15C5C}";

/// A system on which nothing is registered when a test starts, nor when it has ended.
class RegistrationFixture : public testing::Test {
protected:
    RegistrationFixture() { ForgetRegistration(); }
    ~RegistrationFixture() override {
        EXPECT_EQ(RunRegsvr32ToUnregister(), 0u);
        ForgetRegistration();
    }
};

/// The keys of the class that a component in that file writes, whole.
std::vector<std::string> KeysOfClass(const std::filesystem::path& file);
/// The keys of the class that are there.
std::vector<std::string> DumpClass();

/// The ten, by identifier: "{A17A3B60-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Component".
std::vector<std::string> TenCategories();
/// Those of them that the system's manager lists in US English.
std::vector<std::string> ListedCategories();

}
