#pragma once

#include "panel/control/Toolkit.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace panel {

class IRegistryKey;

/// The settings that describe the update package installed on this machine, and the dialog that
/// chooses an update description from it. The panel only reads them; whoever installs a package
/// writes them.
///
/// Each operation opens and closes the settings' key itself. Failures are traced and otherwise
/// silent. User-interface thread only.
class CRegUpdate {
public:
    /// `owner` is the window that the dialog belongs to.
    explicit CRegUpdate(IToolkit& toolkit, Owner owner = Owner::None)
        : m_toolkit(toolkit), m_owner(owner) {}
    virtual ~CRegUpdate() = default;
    CRegUpdate(const CRegUpdate&) = delete;
    CRegUpdate& operator=(const CRegUpdate&) = delete;

    /// The text of that name, whatever its stored type; empty when there is none or it takes more
    /// than 260 bytes, terminator included. Valid until the next reading.
    const std::string& GetRegSzValue(const std::string& name);
    /// The number of that name; 0 when there is none or it takes more than four bytes.
    std::uint32_t GetRegDwValue(const std::string& name);

    /// Writes a text. An empty name writes the default value of the settings' key.
    void SetRegValue(const std::string& name, const std::string& text);
    /// Writes a number; nothing for an empty name, other than for a text: a number has no business
    /// in a default value.
    void SetRegValue(const std::string& name, std::uint32_t number);

    /// Lets the user choose a file that exists and returns its full path; nothing when the user
    /// cancels, when the dialog fails, and, without a dialog, for an empty filter and for a start
    /// in a package folder whose path has 233 to 259 bytes. A longer one reads as empty, and the
    /// dialog opens as for none. `filter` is as for SplitFilter.
    std::optional<std::string> BrowseForOpenFile(std::string_view filter,
                                                 const std::string& defaultExtension,
                                                 bool startInPackageFolder);

private:
    void Read(const char* function, const std::string& name, std::size_t capacity,
              std::string& bytes);
    template <class Write>
    void WriteToKey(Write write);

    IToolkit& m_toolkit;
    const Owner m_owner;
    std::string m_value;
};

/// Names of the settings.
inline constexpr const char* kFlashDir = "FlashDir";         ///< folder of the update package
inline constexpr const char* kFlashVersion = "FlashVersion"; ///< its version, dotted integers

/// The key of the settings, of the local machine.
inline constexpr const char* kUpdateSettingsKey =
    R"(SOFTWARE\Vantor Mobile Phones\WstShared\Common\FlashUpdate)";

}
