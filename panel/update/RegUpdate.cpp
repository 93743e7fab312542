#include "panel/update/RegUpdate.h"

#include "panel/control/FileDialog.h"
#include "panel/control/Registry.h"
#include "panel/control/Trace.h"
#include "panel/control/Utf8.h"

#include <cstring>
#include <memory>

namespace panel {

namespace {

constexpr std::size_t kLongestValue = 260;
constexpr std::size_t kLongestFilter = 260;
constexpr std::size_t kLongestFolder = 260;
constexpr std::size_t kChosenPathRoom = 261;
/// No dialog for a package folder as long as this: the limit that this dialog has always had.
constexpr std::size_t kPackageFolderLimit = 233;
constexpr const char* kDescriptionsFolder = "\\Flash";

}

const std::string& CRegUpdate::GetRegSzValue(const std::string& name) {
    m_value.clear();
    Read("CRegUpdate::GetRegSzValue", name, kLongestValue, m_value);
    m_value.resize(std::strlen(m_value.c_str()));
    return m_value;
}

std::uint32_t CRegUpdate::GetRegDwValue(const std::string& name) {
    std::uint32_t number = 0;
    std::string bytes;
    Read("CRegUpdate::GetRegDwValue", name, sizeof number, bytes);
    std::memcpy(&number, bytes.data(), bytes.size());
    return number;
}

void CRegUpdate::Read(const char* function, const std::string& name, std::size_t capacity,
                      std::string& bytes) {
    std::unique_ptr<IRegistryKey> key;
    if (const int error = m_toolkit.Registry().OpenKey(kUpdateSettingsKey, key)) {
        Trace(m_toolkit, "%s: Reg.Key open failed, error %ld\n", function, long{error});
        return;
    }
    if (const int error = key->ReadValue(name, capacity, bytes)) {
        Trace(m_toolkit, "%s: Reg. value reading failed, error %ld\n", function, long{error});
    }
}

void CRegUpdate::SetRegValue(const std::string& name, const std::string& text) {
    WriteToKey([&](IRegistryKey& key) { return key.WriteText(name, text); });
}

void CRegUpdate::SetRegValue(const std::string& name, std::uint32_t number) {
    if (name.empty()) {
        Trace(m_toolkit, "%s: The value name for DWORD value cannot be empty or NULL\n",
              "CRegUpdate::SetRegValue");
        return;
    }
    WriteToKey([&](IRegistryKey& key) { return key.WriteNumber(name, number); });
}

template <class Write>
void CRegUpdate::WriteToKey(Write write) {
    constexpr const char* kFunction = "CRegUpdate::SetRegValue";
    std::unique_ptr<IRegistryKey> key;
    if (const int error = m_toolkit.Registry().CreateKey(kUpdateSettingsKey, key)) {
        Trace(m_toolkit, "%s: Reg. Key opening or creating failed, error %ld\n", kFunction,
              long{error});
        return;
    }
    if (const int error = write(*key)) {
        Trace(m_toolkit, "%s: Reg. value setting failed, error %ld\n", kFunction, long{error});
    }
}

std::optional<std::string> CRegUpdate::BrowseForOpenFile(std::string_view filter,
                                                         const std::string& defaultExtension,
                                                         bool startInPackageFolder) {
    if (filter.empty()) {
        return std::nullopt;
    }
    FileDialog dialog{.owner = m_owner,
                      .filters = SplitFilter(CutToUtf16Units(filter, kLongestFilter)),
                      .defaultExtension = defaultExtension,
                      .pathCapacity = kChosenPathRoom};
    if (startInPackageFolder) {
        const std::string& folder = GetRegSzValue(kFlashDir);
        if (folder.size() >= kPackageFolderLimit) {
            return std::nullopt;
        }
        dialog.startFolder = CutToUtf16Units(folder + kDescriptionsFolder, kLongestFolder);
    }
    const FileOutcome outcome = m_toolkit.OpenFile(dialog);
    return outcome.kind == FileOutcome::Kind::Accepted ? std::optional(outcome.path) : std::nullopt;
}

}
