#pragma once

#include "panel/control/Registry.h"

#include <map>
#include <memory>
#include <set>
#include <string>

namespace headless {

/// A registry that lives as long as its desktop, with errors to order.
class CMemoryRegistry final : public panel::IRegistry {
public:
    /// The bytes of each value by its name, by the path of its key.
    using Values = std::map<std::string, std::string>;
    using Keys = std::map<std::string, Values>;

    int OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;
    int CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;

    /// Puts a text with its terminator, as whoever installs settings does.
    void PutText(const std::string& path, const std::string& name, const std::string& text);

    Keys keys;
    /// How many of them are open.
    int openKeys = 0;
    /// The values that were asked for, there or not.
    std::set<std::string> namesRead;
    /// What the operations answer while not 0.
    int openError = 0;
    int createError = 0;
    int readError = 0;
    int writeError = 0;
};

}
