#include "tests/pictures/win32/Scenes.h"

#include <ole2.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

/// The user-interface thread of a host.
class CApartment {
public:
    CApartment() {
        if (FAILED(OleInitialize(nullptr))) {
            throw std::runtime_error("no user-interface thread");
        }
    }
    ~CApartment() { OleUninitialize(); }
    CApartment(const CApartment&) = delete;
    CApartment& operator=(const CApartment&) = delete;
};

void CopyFolder(const fs::path& from, const fs::path& to) {
    fs::remove_all(to);
    fs::create_directories(to.parent_path());
    fs::copy(from, to, fs::copy_options::recursive);
}

// A KRX-21 whose network interface has a fault, so that there is something to see in its details.
void BreakNetwork(const fs::path& description) {
    std::ifstream stream(description, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    stream.close();
    const std::string ok = "\"ethernet\": \"ok\"";
    text.replace(text.find(ok), ok.size(), "\"ethernet\": \"failed\"");
    std::ofstream(description, std::ios::binary) << text;
}

void WriteSetting(const wchar_t* name, const std::wstring& text) {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_LOCAL_MACHINE,
                        L"SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate", name,
                        REG_SZ, text.c_str(), size) != ERROR_SUCCESS) {
        throw std::runtime_error("the machine's settings cannot be written");
    }
}

void Prepare(const fs::path& simulator, const fs::path& folder) {
    fs::remove(folder / "krx20maintenance.txt");
    CopyFolder(simulator / "samples", folder / "devices");
    CopyFolder(simulator / "package", folder / "package");
    BreakNetwork(folder / "devices/krx-21/device.json");
    WriteSetting(L"FlashDir", (folder / "package").wstring());
    WriteSetting(L"FlashVersion", L"5.2.0");
    SetCaretBlinkTime(INFINITE); // the same picture every time
}

void TakeAll(wchar_t** arguments) {
    const CApartment apartment;
    const fs::path component = fs::absolute(arguments[1]);
    const fs::path simulator = fs::absolute(arguments[2]);
    const fs::path folder = fs::absolute(arguments[3]).make_preferred();
    const pictures::CCamera camera(fs::absolute(arguments[4]));
    Prepare(simulator, folder);
    fs::current_path(folder);
    const support::CLoadedComponent library(component);
    pictures::CScenes(library, folder, camera).TakeAll();
}

}

// krx8-windows-pictures COMPONENT SIMULATOR FOLDER PICTURES: shows the control of the library
// COMPONENT with copies of the samples in SIMULATOR, the folder of the sources. Works in FOLDER,
// whose path is seen in some pictures, and writes the pictures into the folder PICTURES. The
// machine's settings afterwards name the update package in FOLDER.
int wmain(int argc, wchar_t** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "Usage: krx8-windows-pictures COMPONENT SIMULATOR FOLDER PICTURES\n");
        return 2;
    }
    try {
        TakeAll(argv);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "krx8-windows-pictures: %s\n", exception.what());
        return 1;
    }
    return 0;
}
