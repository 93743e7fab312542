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

    /// Writes a catalogue that names `library`.
    void Register(const std::string& library) const {
        m_folder.Write("registry.json",
                       R"({ "SOFTWARE/Classes/QRZ.KRX8Maintenance/CLSID":
                            { "": "{235783FE-1F74-487E-8561-9E890047927A}" },
                            "SOFTWARE/Classes/CLSID/{235783FE-1F74-487E-8561-9E890047927A}/)"
                       R"(InprocServer32": { "": ")" +
                           library + "\" } }");
    }

private:
    simulator::CTemporaryFolder m_folder;
};

}
