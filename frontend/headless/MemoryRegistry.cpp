#include "frontend/headless/MemoryRegistry.h"

#include <cstring>

namespace headless {

namespace {

class CMemoryRegistryKey final : public panel::IRegistryKey {
public:
    CMemoryRegistryKey(CMemoryRegistry& registry, std::string path)
        : m_registry(registry), m_path(std::move(path)) {
        ++m_registry.openKeys;
    }
    CMemoryRegistryKey(const CMemoryRegistryKey&) = delete;
    CMemoryRegistryKey& operator=(const CMemoryRegistryKey&) = delete;
    ~CMemoryRegistryKey() override { --m_registry.openKeys; }

    int ReadValue(const std::string& name, std::size_t capacity, std::string& bytes) override {
        m_registry.namesRead.insert(name);
        if (m_registry.readError != 0) {
            return m_registry.readError;
        }
        const CMemoryRegistry::Values& values = m_registry.keys[m_path];
        const auto value = values.find(name);
        if (value == values.end()) {
            return panel::kRegistryNotFound;
        }
        if (value->second.size() > capacity) {
            return panel::kRegistryMoreData;
        }
        bytes = value->second;
        return panel::kRegistrySuccess;
    }

    int WriteText(const std::string& name, const std::string& text) override {
        return Write(name, text + '\0');
    }

    int WriteNumber(const std::string& name, std::uint32_t number) override {
        std::string bytes(sizeof number, '\0');
        std::memcpy(bytes.data(), &number, sizeof number);
        return Write(name, bytes);
    }

private:
    int Write(const std::string& name, const std::string& bytes) {
        if (m_registry.writeError == 0) {
            m_registry.keys[m_path][name] = bytes;
        }
        return m_registry.writeError;
    }

    CMemoryRegistry& m_registry;
    std::string m_path;
};

}

int CMemoryRegistry::OpenKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    if (openError != 0) {
        return openError;
    }
    if (!keys.contains(path)) {
        return panel::kRegistryNotFound;
    }
    key = std::make_unique<CMemoryRegistryKey>(*this, path);
    return panel::kRegistrySuccess;
}

int CMemoryRegistry::CreateKey(const std::string& path, std::unique_ptr<panel::IRegistryKey>& key) {
    if (createError != 0) {
        return createError;
    }
    keys[path];
    key = std::make_unique<CMemoryRegistryKey>(*this, path);
    return panel::kRegistrySuccess;
}

void CMemoryRegistry::PutText(const std::string& path, const std::string& name,
                              const std::string& text) {
    keys[path][name] = text + '\0';
}

}
