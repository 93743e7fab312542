#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace contract {

/// One file on the device. One call at a time, on the thread of the call (see
/// ProgrammingDeviceControl.h); results are untouched on failure.
///
/// The file named "version.fia", in any case, stands for the update package last installed: its
/// version text is the package's version, dotted numbers such as 2.10.4. Of names and versions the
/// panel shows the first 256 bytes.
class IFileInfo {
public:
    virtual ~IFileInfo() = default;

    /// Name without a path, UTF-8. A file without a name is passed over by the panel.
    virtual Status GetName(std::string& name) = 0;
    /// 19 secondary boot code, 21 algorithm code, 22 MCU software; other values are shown as
    /// unknown.
    virtual Status GetType(std::int32_t& type) = 0;
    /// Identifier within the type. The panel addresses a file by its low 16 bits.
    virtual Status GetId(std::int32_t& id) = 0;
    /// Version text, UTF-8; empty when absent.
    virtual Status GetVersion(std::string& version) = 0;
    /// Size in bytes.
    virtual Status GetSize(std::int32_t& sizeBytes) = 0;
    /// 1 RAM, 2 flash memory, 3 external storage (PC Card); other values are shown as numbers.
    virtual Status GetLocation(std::int32_t& location) = 0;
    /// Phone platform generation: 0 none, 3 QX1, 4 QX2, 5 QX3; other values are shown as numbers.
    virtual Status GetGeneration(std::uint32_t& generation) = 0;
};

}
