#include "panel/update/UpdateDecisions.h"

#include "panel/control/VersionNumber.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

bool IsOffered(const char* package, const char* installed) {
    return IsUpdateOffered(NormalizePackageVersion(package), NormalizePackageVersion(installed));
}

TEST(UpdateDecisionsTest, VersionIsNormalisedToThreeDigits) {
    EXPECT_EQ(NormalizePackageVersion("2.10.4"), "002.010.004");
    EXPECT_EQ(NormalizePackageVersion(""), "");
    EXPECT_EQ(NormalizePackageVersion("abc"), "000");
    EXPECT_EQ(NormalizePackageVersion("1..2"), "001.000.002");
    EXPECT_EQ(NormalizePackageVersion("1."), "001.000");
    EXPECT_EQ(NormalizePackageVersion("1.2a"), "001.002");
}

TEST(UpdateDecisionsTest, LongVersionIsCutTo79Characters) {
    std::string text = "1";
    for (int i = 0; i < 30; ++i) {
        text += ".1";
    }
    EXPECT_EQ(NormalizePackageVersion(text).size(), 79u);
}

TEST(UpdateDecisionsTest, OnlyANewerPackageIsOffered) {
    EXPECT_TRUE(IsOffered("2.10.4", "002.010.003"));
    EXPECT_FALSE(IsOffered("2.10.4", "002.010.004"));
    EXPECT_FALSE(IsOffered("2.10.4", "002.011"));
    EXPECT_TRUE(IsOffered("1.2.0", "1.2"));
    EXPECT_FALSE(IsOffered("1.2", "1.2.0"));
    EXPECT_FALSE(IsOffered("", "001.000"));
}

TEST(UpdateDecisionsTest, DeviceWithoutVersionIsOfferedAny) {
    EXPECT_TRUE(IsOffered("2.10.4", ""));
    EXPECT_TRUE(IsOffered("", ""));
}

TEST(UpdateDecisionsTest, PackageFolderIsJoinedAsItStands) {
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType::Krx8), "C:\\Pkg\\Flash\\krx8upd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType::Krx8C), "C:\\Pkg\\Flash\\krx8upd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType::Krx10), "C:\\Pkg\\Flash\\krxxupd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType::Krx20), "C:\\Pkg\\Flash\\krxxupd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType::Krx21), "C:\\Pkg\\Flash\\krxxupd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg", DeviceType{9}), "C:\\Pkg\\Flash\\krxxupd.ini");
    EXPECT_EQ(PackageIniPath("", DeviceType::Krx8), "\\Flash\\krx8upd.ini");
    EXPECT_EQ(PackageIniPath("C:\\Pkg\\", DeviceType::Krx8), "C:\\Pkg\\\\Flash\\krx8upd.ini");
}

TEST(UpdateDecisionsTest, LongPathIsCutTo260Characters) {
    EXPECT_EQ(PackageIniPath(std::string(250, 'p'), DeviceType::Krx8),
              std::string(250, 'p') + "\\Flash\\krx");
}

TEST(UpdateDecisionsTest, EverySuccessButThePartialOneIsToldAlike) {
    EXPECT_EQ(MessageFor(contract::kSuccess), (UpdateMessage{StringId::SoftwareUpdated, 0x40}));
    EXPECT_EQ(MessageFor(contract::Status(1)), (UpdateMessage{StringId::SoftwareUpdated, 0x40}));
    EXPECT_EQ(MessageFor(contract::Status::FromBits(0x041B1010)),
              (UpdateMessage{StringId::UpdatePartiallyFailed, 0x30}));
}

}
}
