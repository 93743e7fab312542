#include "contract/ErrorInfo.h"
#include "contract/EventSource.h"
#include "contract/Guid.h"
#include "contract/Status.h"
#include "contract/device/ExternalStorages.h"
#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/Krx20SwInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/device/SelfTestResults.h"
#include "contract/device/SoftwareInfo.h"
#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/HostViewControl.h"
#include "contract/host/MessageService.h"
#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "contract/panel/ConnectionClient.h"
#include "contract/panel/ContextMember.h"
#include "contract/panel/GoClient.h"
#include "contract/panel/Panel.h"
#include "contract/panel/SetSubsystemAccess.h"

#include <gtest/gtest.h>

namespace {

using contract::Status;

TEST(StatusTest, NegativeCodeIsFailure) {
    EXPECT_TRUE(Status(-1).IsFailure());
    EXPECT_FALSE(Status(0).IsFailure());
    EXPECT_TRUE(Status(1).IsSuccess());
}

TEST(StatusTest, NamedValuesCarryTheirBits) {
    EXPECT_EQ(contract::kInvalidPointer.Code(), -2147467261);
    EXPECT_EQ(contract::kNoSuchInterface.Code(), -2147467262);
    EXPECT_EQ(contract::kUnspecifiedFailure.Code(), -2147467259);
    EXPECT_EQ(contract::kPartialUpdate.Code(), 0x041B1010);
    EXPECT_TRUE(contract::kPartialUpdate.IsSuccess());
}

TEST(SelfTestTest, PositionsRunFromOneToTheCount) {
    EXPECT_EQ(static_cast<int>(contract::SelfTest::FpgaCode), 1);
    EXPECT_EQ(static_cast<int>(contract::SelfTest::Fpga), contract::kSelfTestCount);
}

}
