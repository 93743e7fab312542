#include "simulator/Device.h"
#include "simulator/DeviceFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace simulator {
namespace {

const std::filesystem::path kSamples = KRX8_SAMPLES;

class SamplesTest : public testing::Test {
protected:
    static DeviceDescription Read(const std::string& name) {
        auto result = ReadDeviceFolder(kSamples / name);
        if (const auto* error = std::get_if<DescriptionError>(&result)) {
            ADD_FAILURE() << error->Message();
            return {};
        }
        return std::get<DeviceDescription>(std::move(result));
    }
    static bool HasVersionFile(const DeviceDescription& device) {
        return std::any_of(device.files.begin(), device.files.end(),
                           [](const auto& file) { return file.name == "version.fia"; });
    }
    static bool HasFailedTest(const DeviceDescription& device) {
        return std::any_of(device.selfTests.begin(), device.selfTests.end(), [](const auto& test) {
            return test.second != 0 && test.second != 2 && test.second != 787;
        });
    }
    template <class Member>
    static auto ValuesOf(const DeviceDescription& device, Member member) {
        std::set<std::int64_t> values;
        for (const auto& file : device.files) {
            values.insert(file.*member);
        }
        return values;
    }
};

class EachSampleTest : public SamplesTest,
                       public testing::WithParamInterface<std::pair<const char*, std::int32_t>> {};

TEST_P(EachSampleTest, SampleHoldsFilesOfEveryKind) {
    const auto [name, type] = GetParam();
    const auto device = Read(name);
    EXPECT_EQ(device.type, type);
    EXPECT_GE(device.files.size(), 10u);
    EXPECT_EQ(ValuesOf(device, &StoredFile::type), (std::set<std::int64_t>{19, 21, 22}));
    EXPECT_EQ(ValuesOf(device, &StoredFile::generation), (std::set<std::int64_t>{0, 3, 4, 5}));
    EXPECT_EQ(ValuesOf(device, &StoredFile::location), (std::set<std::int64_t>{1, 2, 3}));
}

TEST_P(EachSampleTest, SampleHasACardForItsFilesOnOne) {
    const auto device = Read(GetParam().first);
    ASSERT_TRUE(device.pcCard);
    std::int64_t usedBytes = 0;
    for (const auto& file : device.files) {
        usedBytes += file.location == kOnPcCard ? file.sizeBytes : 0;
    }
    EXPECT_LT(usedBytes, device.pcCard->totalBytes);
}

TEST_P(EachSampleTest, SampleHasRoomLeft) {
    const CDevice device(Read(GetParam().first));
    EXPECT_GT(device.FreeRamBytes(), 0u);
    EXPECT_LT(device.FreeRamBytes(), device.Description().totalRamBytes);
    EXPECT_GT(device.FreeFlashBytes(), 0u);
    EXPECT_LT(device.FreeFlashBytes(), device.Description().totalFlashBytes);
}

INSTANTIATE_TEST_SUITE_P(, EachSampleTest,
                         testing::Values(std::pair{"krx-8", kKrx8}, std::pair{"krx-8c", kKrx8c},
                                         std::pair{"krx-10", kKrx10}, std::pair{"krx-20", kKrx20},
                                         std::pair{"krx-21", kKrx21}));

TEST_F(SamplesTest, OnlyKrx21LacksTheVersionFile) {
    for (const auto* name : {"krx-8", "krx-8c", "krx-10", "krx-20"}) {
        EXPECT_TRUE(HasVersionFile(Read(name))) << name;
    }
    EXPECT_FALSE(HasVersionFile(Read("krx-21")));
}

TEST_F(SamplesTest, OnlyKrx10HasFailedTests) {
    for (const auto* name : {"krx-8", "krx-8c", "krx-20", "krx-21"}) {
        EXPECT_FALSE(HasFailedTest(Read(name))) << name;
    }
    EXPECT_TRUE(HasFailedTest(Read("krx-10")));
}

TEST_F(SamplesTest, OnlyKrx8cIsInServiceMode) {
    for (const auto* name : {"krx-8", "krx-10", "krx-20", "krx-21"}) {
        EXPECT_EQ(Read(name).mode, 1) << name;
    }
    EXPECT_EQ(Read("krx-8c").mode, 2);
}

TEST_F(SamplesTest, Krx20IsWhatANewcomerSees) {
    const CDevice device(Read("krx-20"));
    EXPECT_EQ(device.Files()->size(), 14u);
    EXPECT_EQ(device.Description().serialNumber, 200013846);
    EXPECT_EQ(device.Description().network.ipAddress, "192.0.2.20");
    EXPECT_EQ(device.Description().network.macAddress, "00-00-5E-00-53-20");
    EXPECT_EQ(device.FreeRamBytes(), 33554432u - 97536u);
}

TEST_F(SamplesTest, ListDevicesFindsThemSortedByName) {
    EXPECT_EQ(ListDevices(kSamples),
              (std::vector{kSamples / "krx-10", kSamples / "krx-20", kSamples / "krx-21",
                           kSamples / "krx-8", kSamples / "krx-8c"}));
}

}
}
