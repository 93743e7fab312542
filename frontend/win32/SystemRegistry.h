#pragma once

#include "panel/control/Registry.h"

namespace win32 {

/// The system's registry, local machine.
class CSystemRegistry final : public panel::IRegistry {
public:
    int OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;
    int CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;
};

}
