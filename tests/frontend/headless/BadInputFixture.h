#pragma once

#include "simulator/DeviceFolder.h"
#include "tests/simulator/TemporaryFolder.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/WithoutRoot.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <variant>

namespace headless {

inline constexpr auto kPlainDevice = R"(
  "mode": "Normal", "serialNumber": 7,
  "memory": { "ramBytes": 1000, "flashBytes": 10000 },
  "files": [
    { "name": "old_alg.fia", "type": "algorithm", "id": 1, "version": "1.0", "location": "Flash" },
    { "name": "version.fia", "type": "mcuSoftware", "id": 2, "version": "2.0", "location": "Flash" }
  ]
})";

/// What a user gives the panel that is no good, from the choice in the dialog to the device's
/// folder.
class BadInputFixture : public support::PanelFixture {
protected:
    using Path = std::string;

    void SetUp() override {
        // For tests that give up the rights of root.
        std::filesystem::permissions(m_workstation.Path(), std::filesystem::perms(0755));
        m_device.Write("device.json", R"({ "model": ")" + m_model + "\"," + kPlainDevice);
        m_device.Write("files/old_alg.fia", "12345");
        m_device.Write("files/version.fia", "12345");
        m_before = Content(m_device.Path());
    }

    void Connect() {
        StartPanel();
        InsertDevice();
        ForgetWhatWasSeen();
    }
    void InsertDevice() {
        auto opened = simulator::OpenDevice(m_device.Path());
        ASSERT_TRUE(std::holds_alternative<std::shared_ptr<simulator::CDevice>>(opened));
        host.InsertDevice(std::get<std::shared_ptr<simulator::CDevice>>(opened));
        RaiseState(contract::kConnectionDeviceReady);
    }

    Path Write(const std::string& name, const std::string& content) {
        m_workstation.Write(name, content);
        return m_workstation.Path() / name;
    }

    /// Answers the next file dialog with that file; then, while the dialog closes, `happens`.
    void Choose(const Path& path, const std::function<void()>& happens = {}) {
        desktop->prompts.AnswerFileDialog([=](CHeadlessFileDialog& dialog) {
            EXPECT_TRUE(dialog.Accept(path));
            if (happens) {
                happens();
            }
        });
    }
    void Press(panel::ControlId button) {
        EXPECT_TRUE(PressButton(button));
        m_rights.reset();
    }
    std::function<void()> LosingRights() {
        return [this] { m_rights.emplace(); };
    }

    static std::map<Path, std::string> Content(const std::filesystem::path& folder) {
        std::map<Path, std::string> content;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                content[entry.path()] = Bytes(entry.path());
            }
        }
        return content;
    }
    static std::string Bytes(const Path& path) {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    /// That one box, and a device and a panel that are as before.
    void ExpectOnly(const support::Shown& box) {
        EXPECT_THAT(TakeMessages(), testing::ElementsAre(box));
        EXPECT_EQ(Content(m_device.Path()), m_before);
        EXPECT_EQ(host.Device()->Files()->size(), 2u);
        EXPECT_EQ(host.Device()->Mode(), 1);
        EXPECT_EQ(RowCount(), 2);
        EXPECT_TRUE(host.PollingEnabled());
        EXPECT_TRUE(IsEnabled(panel::kUpdateButton));
    }

    std::string m_model = "KRX-8";
    const simulator::CTemporaryFolder m_workstation;
    const simulator::CTemporaryFolder m_device;
    std::map<Path, std::string> m_before;
    std::optional<support::CWithoutRoot> m_rights;
};

}
