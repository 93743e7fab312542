#pragma once

#include "frontend/registry/SettingsFile.h"
#include "panel/control/Registry.h"

#include <memory>
#include <string>
#include <utility>

namespace registry {

/// The file that the machine's settings are in: what the environment variable KRX8_REGISTRY names,
/// else /var/lib/krx8/registry.json.
std::string FindRegistryFile();

/// The registry of a system that has none of its own, in one readable file (docs/registry.md).
///
/// Each operation opens and reads the file itself, so that what another process writes is seen at
/// once and nothing is held between calls. A damaged file has no keys and no values for a reader,
/// with a trace line, and refuses writers. A key path that is empty, has an empty part or a slash
/// in one is refused with kInvalidName. Errors beside those of panel/control/Registry.h are in
/// SystemError.h.
class CFileRegistry final : public panel::IRegistry {
public:
    /// `path` is UTF-8. The file need not exist.
    CFileRegistry(const std::string& path, TraceSink trace) : m_file(path, std::move(trace)) {}

    /// The key must not outlive the registry.
    int OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;
    int CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) override;

private:
    const CSettingsFile m_file;
};

}
