#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>
#include <string>

namespace contract {

/// Type information of an interface. The panel asks for it and looks no further; a device answers
/// with any object.
class ITypeInformation {
public:
    virtual ~ITypeInformation() = default;
};

/// The locale argument that means the user's default.
inline constexpr std::uint32_t kUserDefaultLocale = 0x0400;

/// Software versions that only the KRX-20 and KRX-21 have. One call at a time, on the thread of the
/// call (see ProgrammingDeviceControl.h); results are untouched on failure.
class IKrx20SwInfo {
public:
    virtual ~IKrx20SwInfo() = default;

    /// Type information of the interface. The panel asks with index 1 and kUserDefaultLocale.
    virtual Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                               std::shared_ptr<ITypeInformation>& information) = 0;
    /// Boot loader version text, UTF-8; empty when absent.
    virtual Status GetBootLoaderVersion(std::string& version) = 0;
    /// Version of the FPGA code used in Service mode, UTF-8; empty when absent.
    virtual Status GetServiceFpgaVersion(std::string& version) = 0;
};

}
