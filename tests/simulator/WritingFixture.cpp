#include "tests/simulator/WritingFixture.h"

#include <algorithm>

namespace simulator {

DeviceDescription WritingFixture::SmallDevice(std::int32_t type) {
    auto description = DeviceOfType(type);
    description.totalRamBytes = 1000;
    description.totalFlashBytes = 10000;
    description.pcCard = PcCard{500};
    return description;
}

void WritingFixture::Connect(DeviceDescription description) {
    m_device = InsertDevice(std::move(description));
    HearDevice(m_log);
}

void WritingFixture::ConnectSample(const std::string& name) {
    m_deviceFolder = m_devices.Path() / name;
    std::filesystem::copy(std::filesystem::path(KRX8_SAMPLES) / name, m_deviceFolder,
                          std::filesystem::copy_options::recursive);
    Reconnect();
    HearDevice(m_log);
}

void WritingFixture::Reconnect() {
    auto result = OpenDevice(m_deviceFolder);
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        FAIL() << error->Message();
    }
    m_device = std::get<std::shared_ptr<CDevice>>(result);
    m_host.InsertDevice(m_device);
}

std::string WritingFixture::WorkstationFile(const std::string& name, const std::string& content) {
    m_workstation.Write(name, content);
    return m_workstation.PathOf(name);
}

contract::Status WritingFixture::Upload(const std::string& path, std::int32_t destination,
                                        std::int32_t method) {
    return Control()->UploadPhoneFile(path, destination, method, m_result);
}

StoredFile WritingFixture::FileNamed(const std::string& name) const {
    const auto files = m_device->Files();
    const auto found = std::find_if(files->begin(), files->end(),
                                    [&](const StoredFile& file) { return file.name == name; });
    if (found == files->end()) {
        ADD_FAILURE() << "There is no file " << name << " on the device";
        return {};
    }
    return *found;
}

std::vector<std::string> WritingFixture::Names() const {
    std::vector<std::string> names;
    for (const auto& file : *m_device->Files()) {
        names.push_back(file.name);
    }
    return names;
}

}
