#pragma once

#include "tests/simulator/TemporaryFolder.h"

#include <cstdlib>
#include <string>

namespace component {

/// A registry file of its own, which the process uses while this lives.
class CRegistryFile {
public:
    CRegistryFile() { setenv("KRX8_REGISTRY", Path().c_str(), 1); }
    ~CRegistryFile() { unsetenv("KRX8_REGISTRY"); }
    CRegistryFile(const CRegistryFile&) = delete;
    CRegistryFile& operator=(const CRegistryFile&) = delete;

    std::string Path() const { return (m_folder.Path() / "registry.json").string(); }

    /// Writes a catalogue that names `library`, with a class of it.
    void Register(const std::string& library,
                  const std::string& classText = "{235783FE-1F74-487E-8561-9E890047927A}") const {
        m_folder.Write("registry.json",
                       R"({ "SOFTWARE/Classes/QRZ.KRX8Maintenance/CLSID": { "": ")" + classText +
                           R"(" }, "SOFTWARE/Classes/CLSID/)" + classText +
                           R"(/InprocServer32": { "": ")" + library + "\" } }");
    }

private:
    simulator::CTemporaryFolder m_folder;
};

}
