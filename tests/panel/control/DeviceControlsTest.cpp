#include "panel/control/DeviceControls.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

struct Case {
    int type;
    const char* title;
    bool enablesNetwork;
};

class RulesForTest : public testing::TestWithParam<Case> {};

TEST_P(RulesForTest, EnablingGivesTheDeviceControlsOfTheType) {
    const DeviceControlRules rules = RulesFor(static_cast<DeviceType>(GetParam().type), true);
    EXPECT_EQ(rules.infoTitle, GetParam().title);
    EXPECT_EQ(rules.enableNetwork, GetParam().enablesNetwork);
    EXPECT_TRUE(rules.enableDevice);
    EXPECT_FALSE(rules.disableDetails);
}

TEST_P(RulesForTest, DisablingTakesEverythingAndKeepsTheTitle) {
    const DeviceControlRules rules = RulesFor(static_cast<DeviceType>(GetParam().type), false);
    EXPECT_EQ(rules.infoTitle, GetParam().title);
    EXPECT_FALSE(rules.enableNetwork);
    EXPECT_FALSE(rules.enableDevice);
    EXPECT_TRUE(rules.disableDetails);
}

INSTANTIATE_TEST_SUITE_P(Types, RulesForTest,
                         testing::Values(Case{1, "KRX-8 Info", false}, Case{2, "KRX-8 Info", false},
                                         Case{3, "KRX-10 Info", true}, Case{4, "KRX-20 Info", true},
                                         Case{5, "KRX-21 Info", true}, Case{0, "KRX-unknown", true},
                                         Case{6, "KRX-unknown", true}, Case{7, "KRX-unknown", true},
                                         Case{-1, "KRX-unknown", true}));

}
}
