#include "panel/info/ReportLines.h"

#include <gtest/gtest.h>

#include <string>

namespace panel {
namespace {

const LocalTime kNow{"20.11.2026", "14:05"};

MaintenanceReportRecord FullRecord() {
    return {.serialNumber = "4711",
            .bootSwVersion = "b",
            .applicationSwVersion = "a",
            .fpgaCodeVersion = "f",
            .hardwareVersion = "h",
            .flashSizeBytes = 16777215,
            .ramSizeBytes = 2097152,
            .securitySwVersion = "s",
            .fpgaDriverVersion = "fd",
            .mmcrDriverVersion = "md",
            .usbDeviceFunctionDriverVersion = "ud",
            .usbHostControllerDriverVersion = "uh",
            .ztwcdcDriverVersion = "z",
            .serviceFpgaVersion = "sf",
            .bootLoaderVersion = "bl"};
}

TEST(ReportLinesTest, FullReportHasEveryLineInOrder) {
    EXPECT_EQ(ReportText(FullRecord(), "HEADER", kNow), "HEADER\r\n"
                                                        "DATE: 20.11.2026\tTIME: 14:05\r\n"
                                                        "SERIAL NUMBER : 4711\r\n"
                                                        "BOOT SW VER : b\r\n"
                                                        "APPLICATION SW VER : a\r\n"
                                                        "FPGA CODE VER : f\r\n"
                                                        "FPGA DRIVER VER : fd\r\n"
                                                        "MMCR DRIVER VER : md\r\n"
                                                        "USB DF DRIVER VER : ud\r\n"
                                                        "USB HOST DRIVER VER : uh\r\n"
                                                        "ZTWCDC DRIVER VER : z\r\n"
                                                        "SERVICE FPGA VER : sf\r\n"
                                                        "BOOT LOADER VER : bl\r\n"
                                                        "SECURITY SW VER : s\r\n"
                                                        "HW VERSION : h\r\n"
                                                        "FLASH SIZE (MB) : 15\r\n"
                                                        "SRAM SIZE (MB) : 2\r\n");
}

TEST(ReportLinesTest, EmptyReportKeepsTheLinesThatEveryDeviceHas) {
    EXPECT_EQ(ReportText({}, "HEADER", kNow), "HEADER\r\n"
                                              "DATE: 20.11.2026\tTIME: 14:05\r\n"
                                              "SERIAL NUMBER : \r\n"
                                              "BOOT SW VER : \r\n"
                                              "APPLICATION SW VER : \r\n"
                                              "FPGA CODE VER : \r\n"
                                              "HW VERSION : \r\n"
                                              "FLASH SIZE (MB) : 0\r\n"
                                              "SRAM SIZE (MB) : 0\r\n");
}

TEST(ReportLinesTest, HeaderIsCutTo79Bytes) {
    const auto header = [](std::size_t bytes) {
        const std::string text = ReportText({}, std::string(bytes, 'H'), kNow);
        return text.substr(0, text.find('\r'));
    };
    EXPECT_EQ(header(79), std::string(79, 'H'));
    EXPECT_EQ(header(80), std::string(79, 'H'));
}

TEST(ReportLinesTest, DateOrTimeOfMoreThan19CharactersIsLeftOut) {
    const std::string nineteen(19, '1');
    const std::string twenty(20, '2');
    EXPECT_NE(ReportText({}, "", {nineteen, twenty}).find("DATE: " + nineteen + "\tTIME: \r\n"),
              std::string::npos);
    EXPECT_NE(ReportText({}, "", {twenty, nineteen}).find("DATE: \tTIME: " + nineteen + "\r\n"),
              std::string::npos);
}

TEST(ReportLinesTest, CharactersOfADateCountNotItsBytes) {
    const std::string native = "২০/১১/২০২৬";
    ASSERT_GT(native.size(), 19u);
    EXPECT_NE(ReportText({}, "", {native, "14:05"}).find("DATE: " + native + "\t"),
              std::string::npos);
}

TEST(ReportLinesTest, SizesDropTheirRemainder) {
    const auto sizes = [](std::uint32_t flashBytes, std::uint32_t ramBytes) {
        MaintenanceReportRecord record;
        record.flashSizeBytes = flashBytes;
        record.ramSizeBytes = ramBytes;
        const std::string text = ReportText(record, "", kNow);
        return text.substr(text.find("FLASH SIZE"));
    };
    EXPECT_EQ(sizes(1048575, 2097151), "FLASH SIZE (MB) : 0\r\nSRAM SIZE (MB) : 1\r\n");
    EXPECT_EQ(sizes(1048576, 1048575), "FLASH SIZE (MB) : 1\r\nSRAM SIZE (MB) : 0\r\n");
    EXPECT_EQ(sizes(4294967295, 4294967295), "FLASH SIZE (MB) : 4095\r\nSRAM SIZE (MB) : 4095\r\n");
}

TEST(ReportLinesTest, EachModelHasItsHeaderAndFileName) {
    const auto expect = [](int type, int header, const char* fileName) {
        const ReportKind kind = ReportKindOf(static_cast<DeviceType>(type));
        EXPECT_EQ(static_cast<int>(kind.header), header) << type;
        EXPECT_STREQ(kind.fileName, fileName) << type;
    };
    expect(1, 190, "krx8maintenance.txt");
    expect(2, 190, "krx8maintenance.txt");
    expect(3, 191, "krx10maintenance.txt");
    expect(4, 197, "krx20maintenance.txt");
    expect(5, 197, "krx20maintenance.txt");
    expect(0, 190, "krx8maintenance.txt");
    expect(6, 190, "krx8maintenance.txt");
}

}
}
