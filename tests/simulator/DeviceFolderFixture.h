#pragma once

#include "simulator/DeviceFolder.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace simulator {

inline constexpr auto kGoodDescription = R"({
  "model": "KRX-20",
  "mode": "Normal",
  "serialNumber": 7,
  "memory": {
    "ramBytes": 1024,
    "flashBytes": 4096
  },
  "files": [
    { "name": "a.fia", "type": "algorithm", "id": 1, "location": "RAM" },
    { "name": "b.fia", "type": 22, "id": 2, "location": 7, "content": "second" }
  ]
}
)";

inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto position = text.find(from);
    EXPECT_NE(position, std::string::npos) << from;
    return position == std::string::npos ? text : text.replace(position, from.size(), to);
}

/// A device folder with two stored files, of 3 and 5 bytes.
class DeviceFolderFixture : public testing::Test {
protected:
    DeviceFolderFixture() {
        m_folder.Write("device.json", kGoodDescription);
        m_folder.Write("files/a.fia", "aaa");
        m_folder.Write("files/second", "bbbbb");
    }

    void Describe(const std::string& text) { m_folder.Write("device.json", text); }
    /// Adds members, on line 3, to a description that is good.
    void DescribeWith(const std::string& members) {
        Describe(Replaced(kGoodDescription, "\"mode\"", members + ", \"mode\""));
    }

    DeviceDescription Read() {
        auto result = ReadDeviceFolder(m_folder.Path());
        if (const auto* error = std::get_if<DescriptionError>(&result)) {
            ADD_FAILURE() << error->Message();
            return {};
        }
        return std::get<DeviceDescription>(std::move(result));
    }

    static void ExpectRefusal(const std::filesystem::path& folder, const std::string& message) {
        const auto result = ReadDeviceFolder(folder);
        const auto* error = std::get_if<DescriptionError>(&result);
        ASSERT_NE(error, nullptr) << "expected: " << message;
        EXPECT_EQ(error->Message(), message);
    }
    /// `message` begins after the path of the folder: "/device.json:3: ...".
    void ExpectRefusal(const std::string& message) {
        const auto colon = message.find(':');
        ExpectRefusal(m_folder.Path(),
                      m_folder.PathOf(message.substr(1, colon - 1)) + message.substr(colon));
    }

    /// Every file below the folder, with its content and time.
    std::map<std::filesystem::path, std::pair<std::string, std::filesystem::file_time_type>>
    Snapshot() {
        std::map<std::filesystem::path, std::pair<std::string, std::filesystem::file_time_type>>
            snapshot;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder.Path())) {
            std::ostringstream content;
            if (entry.is_regular_file()) {
                content << std::ifstream(entry.path()).rdbuf();
            }
            snapshot[entry.path()] = {content.str(), entry.last_write_time()};
        }
        return snapshot;
    }

    const CTemporaryFolder m_folder;
};

}
