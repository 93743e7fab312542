#include "tests/frontend/registry/RegistryFixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace registry {

pid_t StartChild(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("No process can be made");
    }
    if (child == 0) {
        _exit(work());
    }
    return child;
}

int RunInChild(const std::function<int()>& work) {
    const pid_t child = StartChild(work);
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

std::vector<std::string> RegistryFixture::FilesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string RegistryFixture::ReadFile() const {
    std::ifstream stream(Path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::unique_ptr<panel::IRegistryKey> RegistryFixture::Open() {
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 0);
    return key;
}

std::unique_ptr<panel::IRegistryKey> RegistryFixture::Create() {
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.CreateKey(kKey, key), 0);
    return key;
}

std::string RegistryFixture::Read(const std::string& name) const {
    CFileRegistry reader(Path(), [](const std::string&) {});
    std::unique_ptr<panel::IRegistryKey> key;
    std::string bytes;
    int error = reader.OpenKey(kKey, key);
    if (error == 0) {
        error = key->ReadValue(name, 4096, bytes);
    }
    return error == 0 ? bytes : "(error " + std::to_string(error) + ")";
}

}
