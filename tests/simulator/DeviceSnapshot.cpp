#include "tests/simulator/DeviceSnapshot.h"

#include "simulator/DeviceFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

namespace simulator {

namespace fs = std::filesystem;

namespace {

const StoredFile* FindFile(const DeviceSnapshot& snapshot, const std::string& name) {
    const auto& files = snapshot.files;
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&](const StoredFile& file) { return file.name == name; });
    return found == files.end() ? nullptr : &*found;
}

}

bool DeviceSnapshot::HasSameFile(const DeviceSnapshot& other, const std::string& name) const {
    const auto* ours = FindFile(*this, name);
    const auto* theirs = FindFile(other, name);
    if (!ours || !theirs) {
        return !ours && !theirs;
    }
    return *ours == *theirs && bytesByName.at(name) == other.bytesByName.at(name);
}

DeviceSnapshot TakeSnapshot(const fs::path& folder) {
    auto result = ReadDeviceFolder(folder);
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        ADD_FAILURE() << error->Message();
        return {};
    }
    DeviceSnapshot snapshot;
    snapshot.device = std::get<DeviceDescription>(std::move(result));
    snapshot.files = std::exchange(snapshot.device.files, {});
    for (auto& file : snapshot.files) {
        std::ostringstream bytes;
        bytes << std::ifstream(folder / "files" / file.content, std::ios::binary).rdbuf();
        const bool isNew = snapshot.bytesByName.emplace(file.name, bytes.str()).second;
        EXPECT_TRUE(isNew) << file.name << " is there twice";
        file.content.clear();
    }
    return snapshot;
}

bool HoldsLeftovers(const fs::path& folder) {
    const auto isFile = [](const fs::directory_entry& entry) { return entry.is_regular_file(); };
    const auto files = std::count_if(fs::recursive_directory_iterator(folder), {}, isFile);
    constexpr std::ptrdiff_t kDescriptions = 1;
    return files > kDescriptions + std::ssize(TakeSnapshot(folder).files);
}

}
