#pragma once

#include "simulator/Device.h"
#include "tests/simulator/Answers.h"
#include "tests/simulator/DeviceFolderFixture.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace simulator {

/// A device that lives in its folder.
class FolderStoreFixture : public DeviceFolderFixture {
protected:
    using NameList = std::vector<std::string>;

    std::shared_ptr<CDevice> Open() {
        auto result = OpenDevice(m_folder.Path());
        if (const auto* error = std::get_if<DescriptionError>(&result)) {
            ADD_FAILURE() << error->Message();
            return nullptr;
        }
        return std::get<std::shared_ptr<CDevice>>(result);
    }
    static Outcome Rename(CDevice& device, const std::string& hardwareVersion) {
        auto next = device.State();
        next.hardwareVersion = hardwareVersion;
        return device.Change(next);
    }
    static Outcome Store(CDevice& device, StoredFile file, const std::string& bytes) {
        auto next = device.State();
        file.sizeBytes = static_cast<std::int32_t>(bytes.size());
        next.files.push_back(file);
        const NewContent content{next.files.size() - 1, bytes};
        return device.Change(next, &content);
    }
    std::string Content(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(m_folder.Path() / "files" / name).rdbuf();
        return text.str();
    }
    std::vector<std::string> StoredNames() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path() / "files")) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

}
