#include "tests/sweeps/SweepTest.h"

namespace {

using namespace sweeps;

class LossSweepTest : public SweepTest {};

/// The connection says so from inside the call, and everything that the device should still have
/// answered fails until it is back.
TEST_P(LossSweepTest, DeviceLostInsideEachCallIsReportedAsDescribed) {
    InEachMode([](CSweep& sweep) {
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            sweep.Run({.lossInCall = call});
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, LossSweepTest, testing::ValuesIn(Settings()), SettingName);

}
