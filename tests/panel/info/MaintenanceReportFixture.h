#pragma once

#include "contract/ErrorInfo.h"
#include "tests/support/CommandFixture.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace support {

inline constexpr const char* kReportCaption = "Generate info report.";

/// The Report command, with a folder for reports.
class MaintenanceReportFixture : public CommandFixture {
protected:
    void SetUp() override {
        m_folder = std::filesystem::temp_directory_path() /
                   ("report-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)));
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directory(m_folder);
    }
    void TearDown() override {
        std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all);
        std::filesystem::remove_all(m_folder);
        CommandFixture::TearDown();
    }

    /// A device of that type with every version set.
    static simulator::DeviceDescription Device(std::int32_t type) {
        simulator::DeviceDescription description = HealthyDevice(type);
        description.software.security = "sec 1";
        description.software.fpgaDriver = "fdrv 2";
        description.software.mmcrDriver = "mmcr 3";
        description.software.usbDeviceFunctionDriver = "udf 4";
        description.software.usbHostControllerDriver = "uhc 5";
        description.software.bootLoader = "loader 6";
        description.software.serviceFpga = "sfpga 7";
        return description;
    }

    std::string Path(const std::string& name = "report.txt") const {
        return (m_folder / name).string();
    }
    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return (std::ostringstream() << file.rdbuf()).str();
    }
    void Report(const std::string& path) {
        desktop->prompts.ChooseFile(path);
        ASSERT_TRUE(PressButton(panel::kReportButton));
    }
    /// The same; something leaves that description while the user looks for a place.
    void ReportWithErrorInfo(const std::string& path, const std::string& description) {
        desktop->prompts.AnswerFileDialog([=](headless::CHeadlessFileDialog& dialog) {
            contract::SetErrorInfo(description);
            dialog.Accept(path);
        });
        ASSERT_TRUE(PressButton(panel::kReportButton));
    }
    static Shown Saved(const std::string& path, const std::string& description = "") {
        return {"Information about the Programming Device is saved.\n\nThe full path to the report "
                "file is:\n" +
                    path,
                kReportCaption, 0x40, 0, description};
    }

    std::filesystem::path m_folder;
};

}
