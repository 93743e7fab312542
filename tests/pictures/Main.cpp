#include "component/loader/ComponentLibrary.h"
#include "tests/frontend/qt/TestApplication.h"
#include "tests/pictures/Scenes.h"

#include <QDir>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

void CopyFolder(const fs::path& from, const fs::path& to) {
    fs::remove_all(to);
    fs::create_directories(to.parent_path());
    fs::copy(from, to, fs::copy_options::recursive);
}

// A KRX-21 whose network interface has a fault, so that there is something to see in its details.
void BreakNetwork(const fs::path& description) {
    std::ifstream stream(description);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    const std::string ok = "\"ethernet\": \"ok\"";
    text.replace(text.find(ok), ok.size(), "\"ethernet\": \"failed\"");
    std::ofstream(description) << text;
}

void Prepare(const fs::path& folder) {
    fs::remove(folder / "krx20maintenance.txt");
    CopyFolder(fs::path(KRX8_SIMULATOR) / "samples", folder / "devices");
    CopyFolder(fs::path(KRX8_SIMULATOR) / "package", folder / "package");
    BreakNetwork(folder / "devices/krx-21/device.json");
    std::ofstream(qEnvironmentVariable("KRX8_REGISTRY").toStdString())
        << R"({"SOFTWARE/Vantor Mobile Phones/WstShared/Common/FlashUpdate": {"FlashDir": ")"
        << (folder / "package").string() << R"(", "FlashVersion": "5.2.0"}})";
    if (component::CComponentLibrary(KRX8_COMPONENT).Register().IsFailure()) {
        throw std::runtime_error("the component cannot be registered");
    }
}

}

// krx8-pictures FOLDER PICTURES: works in FOLDER, whose path is seen in some pictures, and writes
// the pictures into the folder PICTURES.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "Usage: krx8-pictures FOLDER PICTURES\n");
        return 2;
    }
    const fs::path folder = fs::absolute(argv[1]);
    const QString pictures = QDir(argv[2]).absolutePath();
    qputenv("HOME", folder.c_str()); // the folder that file dialogs show at their side
    qttests::CTestApplication application(argc, argv);
    try {
        Prepare(folder);
        fs::current_path(folder);
        pictures::CScenes(folder, pictures::CCamera(pictures)).TakeAll();
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "krx8-pictures: %s\n", exception.what());
        return 1;
    }
    return 0;
}
