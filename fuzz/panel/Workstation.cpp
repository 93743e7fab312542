#include "fuzz/panel/Workstation.h"

#include "tests/simulator/TemporaryFolder.h"

namespace fuzz {

namespace {

class CWorkstation {
public:
    CWorkstation() {
        m_folder.Write("Flash/krx8upd.ini", "[package]\nname = KRX-8\nversion = 3.0.1\n[common]\n"
                                            "file = a_2nd.fia\nfile = b_alg.fg, RAM\n");
        m_folder.Write("Flash/krxxupd.ini", "[package]\nname = KRX-X\nversion = 3.0.1\n[common]\n"
                                            "file = a_2nd.fia\nfile = none.fia, PCCard\n");
        m_folder.Write("Flash/a_2nd.fia", "a_2nd.fia 2.0 id=5\n");
        m_folder.Write("Flash/b_alg.fg", "b_alg.fg 3.0\n");
        m_folder.Write("wrong.ini", "[package]\nversion = x\n");
        m_folder.Write("new_mcu.fia", "new_mcu.fia 4.0\n");
        m_folder.Write("any.bin", "version: 1.5\n");
        m_folder.Write("image.krx10", "model: KRX-10\nversion: 4.2\n");
        m_folder.Write("image.krx20", "version: 4.3\nfpga: 1.1\nboot: 2.2\n");
        m_folder.Write("empty.fia", "");
        for (const char* name :
             {"Flash/krx8upd.ini", "Flash/krxxupd.ini", "Flash/a_2nd.fia", "wrong.ini",
              "new_mcu.fia", "any.bin", "image.krx10", "image.krx20", "empty.fia", "none.bin"}) {
            paths.push_back(m_folder.PathOf(name));
        }
        paths.emplace_back();
        paths.push_back("/" + std::string(300, 'n'));
        package = m_folder.Path().string();
    }

    std::string package;
    std::vector<std::string> paths;

private:
    const simulator::CTemporaryFolder m_folder;
};

const CWorkstation& TheWorkstation() {
    static const CWorkstation workstation;
    return workstation;
}

}

const std::string& PackageFolder() { return TheWorkstation().package; }

const std::vector<std::string>& PathsToChoose() { return TheWorkstation().paths; }

}
