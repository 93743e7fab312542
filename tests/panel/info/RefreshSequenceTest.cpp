#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class RefreshSequenceTest : public PanelFixture {
protected:
    void SetUp() override { StartPanel(); }
};

TEST_F(RefreshSequenceTest, ConnectingAHealthyDeviceFillsEveryField) {
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(kInfoGroup), "KRX-20 Info");
    EXPECT_EQ(Field(kSerialNumberField), "00-00-5E-00-53-14");
    EXPECT_EQ(Field(kHardwareField), "HW 2.1");
    EXPECT_EQ(Field(kFlashSizeField), "8388608");
    EXPECT_EQ(Field(kRamSizeField), "2097152");
    EXPECT_EQ(Field(kFreeRamField), "2097152");
    EXPECT_EQ(Field(kFreeFlashField), "8385602");
    EXPECT_EQ(Field(kBootSwField), "boot 1.02");
    EXPECT_EQ(Field(kFpgaField), "fpga 5.06");
    EXPECT_EQ(Field(kApplicationSwField), "app 3.04");
    EXPECT_EQ(Field(kSelfTestField), "TEST OK");
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}
