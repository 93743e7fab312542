#include "workstation/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(TextTest, DeviceIsNamedAfterItsFolder) {
    EXPECT_EQ(workstation::NameOf("/devices/krx-20").toStdString(), "krx-20");
    EXPECT_EQ(workstation::NameOf("devices/krx-20/").toStdString(), "krx-20");
    EXPECT_EQ(workstation::NameOf("/devices/b\xC3\xBCro").toStdString(), "b\xC3\xBCro");
}

TEST(TextTest, OperationReadsAsWords) {
    EXPECT_EQ(workstation::DescribeOperation("ProgrammingDeviceControl.GetFileListing"),
              "Get file listing");
    EXPECT_EQ(
        workstation::DescribeOperation("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"),
        "Get programming device control");
    EXPECT_EQ(workstation::DescribeOperation("Reset"), "Reset");
}

TEST(TextTest, MnemonicIsLeftOut) {
    EXPECT_EQ(workstation::WithoutMnemonic("Re&set"), "Reset");
    EXPECT_EQ(workstation::WithoutMnemonic("Save && close"), "Save & close");
    EXPECT_EQ(workstation::WithoutMnemonic("end&"), "end");
}

}
