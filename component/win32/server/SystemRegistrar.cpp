#include "component/win32/server/SystemRegistrar.h"

#include "component/win32/com/Identifiers.h"
#include "component/win32/com/TypeLibrary.h"
#include "contract/GuidText.h"
#include "frontend/win32/Text.h"
#include "panel/registration/ComponentIdentity.h"

#include <comcat.h>

#include <string>

namespace component {

using contract::Status;
using panel::RegistryStep;

namespace {

#ifdef _WIN64
constexpr SYSKIND kSystem = SYS_WIN64;
constexpr wchar_t kSystemKey[] = L"win64";
#else
constexpr SYSKIND kSystem = SYS_WIN32;
constexpr wchar_t kSystemKey[] = L"win32";
#endif

Status FromErrorNumber(LSTATUS error) { return Status(HRESULT_FROM_WIN32(error)); }

/// A key that is open for writing, made where it is missing.
class CKey {
public:
    explicit CKey(const std::wstring& path)
        : m_error(RegCreateKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, nullptr, 0, KEY_WRITE,
                                  nullptr, &m_key, nullptr)) {}
    ~CKey() {
        if (m_key) {
            RegCloseKey(m_key);
        }
    }
    CKey(const CKey&) = delete;
    CKey& operator=(const CKey&) = delete;

    LSTATUS Error() const { return m_error; }

    LSTATUS Write(const std::wstring& name, const std::wstring& text) const {
        return m_error ? m_error
                       : RegSetValueExW(m_key, name.c_str(), 0, REG_SZ,
                                        reinterpret_cast<const BYTE*>(text.c_str()),
                                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }

private:
    HKEY m_key = nullptr;
    LSTATUS m_error;
};

LSTATUS RemoveKey(const std::wstring& path) {
    LSTATUS error = RegDeleteTreeW(HKEY_CLASSES_ROOT, path.c_str());
    if (error == ERROR_SUCCESS) {
        // Some systems take the key along, others what is below it only.
        error = RegDeleteKeyW(HKEY_CLASSES_ROOT, path.c_str());
    }
    return error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
}

// Those of the other kind of programs may stand beside it, under another key.
bool IsTypeLibraryRegistered() {
    const std::wstring path =
        L"TypeLib\\" + win32::ToWide(contract::FormatGuid(panel::kTypeLibrary)) + L"\\" +
        std::to_wstring(panel::kTypeLibraryMajorVersion) + L"." +
        std::to_wstring(panel::kTypeLibraryMinorVersion) + L"\\0\\" + kSystemKey;
    HKEY key = nullptr;
    const LSTATUS error = RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ, &key);
    if (error == ERROR_SUCCESS) {
        RegCloseKey(key);
    }
    return error != ERROR_FILE_NOT_FOUND;
}

LSTATUS Carry(const RegistryStep& step) {
    const std::wstring key = win32::ToWide(step.key);
    switch (step.kind) {
    case RegistryStep::Kind::RemoveKey:
        return RemoveKey(key);
    case RegistryStep::Kind::CreateKey:
        return CKey(key).Error();
    case RegistryStep::Kind::WriteText:
        return CKey(key).Write(win32::ToWide(step.name), win32::ToWide(step.text));
    }
    return ERROR_INVALID_FUNCTION;
}

}

Status CSystemRegistrar::Apply(std::span<const RegistryStep> steps) {
    for (const RegistryStep& step : steps) {
        if (const LSTATUS error = Carry(step)) {
            return FromErrorNumber(error);
        }
    }
    return contract::kSuccess;
}

Status CSystemRegistrar::RegisterTypeLibrary() {
    ComPtr<ITypeLib> library;
    const HRESULT result = LoadTypeLibrary(library.GetAddressOf());
    std::wstring module = m_module;
    return Status(FAILED(result) ? result : RegisterTypeLib(library.Get(), module.data(), nullptr));
}

// That it was not there is no failure. It is looked for, since systems disagree on what they answer
// then, and some answer as they do when the registry refuses.
Status CSystemRegistrar::UnregisterTypeLibrary() {
    if (!IsTypeLibraryRegistered()) {
        return contract::kSuccess;
    }
    return Status(UnRegisterTypeLib(ToGuid(panel::kTypeLibrary), panel::kTypeLibraryMajorVersion,
                                    panel::kTypeLibraryMinorVersion, LOCALE_NEUTRAL, kSystem));
}

Status CSystemRegistrar::RegisterCategory(const contract::Guid& identifier, std::uint32_t locale,
                                          std::string_view description) {
    ComPtr<ICatRegister> manager;
    const HRESULT result =
        CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                         IID_PPV_ARGS(manager.GetAddressOf()));
    if (FAILED(result)) {
        return Status(result);
    }
    CATEGORYINFO category{};
    category.catid = ToGuid(identifier);
    category.lcid = locale;
    win32::ToWide(description).copy(category.szDescription, std::size(category.szDescription) - 1);
    return Status(manager->RegisterCategories(1, &category));
}

}
