#include "tests/support/RoomFixture.h"
#include "tests/support/WritingDevice.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;

/// What an update from the package tells its caller.
class PackageUpdateResultTest : public RoomFixture,
                                public testing::WithParamInterface<std::pair<std::uint32_t, bool>> {
};

TEST_P(PackageUpdateResultTest, OnlyStatusZeroIsTheWholeUpdate) {
    host.InsertDevice(simulator::CDevice::Create(HealthyDevice(simulator::kKrx20)));
    const auto device = std::make_shared<CWritingDevice>(host.SubsystemAccess());
    device->answer = [](const std::string&) { return Status::FromBits(GetParam().first); };
    ConnectTo(device);
    EXPECT_EQ(rooms->iniUpdate.UpdateFromPackage(), GetParam().second);
    EXPECT_EQ(TakeMessages().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Statuses, PackageUpdateResultTest,
                         testing::Values(std::pair(0u, true), std::pair(1u, false),
                                         std::pair(0x041B1010u, false),
                                         std::pair(0x80004005u, false)));

}
