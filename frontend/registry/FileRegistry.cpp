#include "frontend/registry/FileRegistry.h"

#include "frontend/registry/SystemError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace registry {

namespace {

constexpr const char* kDefaultFile = "/var/lib/krx8/registry.json";
constexpr char kSeparator = '\\';
// Within JSON a backslash would have to be doubled, which nobody who edits the file by hand
// remembers.
constexpr char kSeparatorInFile = '/';

bool IsKeyPath(const std::string& path) {
    return !path.empty() && path.find(kSeparatorInFile) == std::string::npos &&
           path.front() != kSeparator && path.back() != kSeparator &&
           path.find("\\\\") == std::string::npos;
}

std::string NameInFile(std::string path) {
    std::replace(path.begin(), path.end(), kSeparator, kSeparatorInFile);
    return path;
}

// The bytes that the system's own registry would keep.
std::string ToBytes(const Settings& value) {
    if (value.is_string()) {
        return value.get<std::string>() + '\0';
    }
    const auto number = value.get<std::uint32_t>();
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

// A damaged file has nothing in it, as far as readers are concerned.
int LoadForReading(const CSettingsFile& file, Settings& settings) {
    const int error = file.Load(settings);
    return error == kInvalidData ? panel::kRegistryNotFound : error;
}

class CFileRegistryKey final : public panel::IRegistryKey {
public:
    CFileRegistryKey(const CSettingsFile& file, std::string key)
        : m_file(file), m_key(std::move(key)) {}

    int ReadValue(const std::string& name, std::size_t capacity, std::string& bytes) override {
        Settings settings;
        if (const int error = LoadForReading(m_file, settings)) {
            return error;
        }
        if (!settings.contains(m_key) || !settings[m_key].contains(name)) {
            return panel::kRegistryNotFound;
        }
        std::string stored = ToBytes(settings[m_key][name]);
        if (stored.size() > capacity) {
            return panel::kRegistryMoreData;
        }
        bytes = std::move(stored);
        return panel::kRegistrySuccess;
    }

    int WriteText(const std::string& name, const std::string& text) override {
        return Write(name, text);
    }

    int WriteNumber(const std::string& name, std::uint32_t number) override {
        return Write(name, number);
    }

private:
    int Write(const std::string& name, const Settings& value) {
        return m_file.Change([&](Settings& settings) { settings[m_key][name] = value; });
    }

    const CSettingsFile& m_file;
    const std::string m_key;
};

}

std::string FindRegistryFile() {
    const char* const named = std::getenv("KRX8_REGISTRY");
    return named && *named ? named : kDefaultFile;
}

int CFileRegistry::OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    if (!IsKeyPath(path)) {
        return kInvalidName;
    }
    Settings settings;
    if (const int error = LoadForReading(m_file, settings)) {
        return error;
    }
    std::string name = NameInFile(path);
    if (!settings.contains(name)) {
        return panel::kRegistryNotFound;
    }
    key = std::make_unique<CFileRegistryKey>(m_file, std::move(name));
    return panel::kRegistrySuccess;
}

int CFileRegistry::CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    if (!IsKeyPath(path)) {
        return kInvalidName;
    }
    std::string name = NameInFile(path);
    const int error = m_file.Change([&](Settings& settings) {
        if (!settings.contains(name)) {
            settings[name] = Settings::object();
        }
    });
    if (error == panel::kRegistrySuccess) {
        key = std::make_unique<CFileRegistryKey>(m_file, std::move(name));
    }
    return error;
}

}
