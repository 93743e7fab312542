#include "tests/sweeps/Events.h"
#include "tests/sweeps/SweepTest.h"

namespace {

using namespace sweeps;

const Scenario& Connect() { return Scenarios().front(); }

/// The panel's end, in which it calls its host for the last time.
const Scenario kEnd{"End",
                    [](IStage& stage) {
                        Connect().setUp(stage);
                        Connect().action(stage);
                    },
                    [](IStage& stage) { stage.ReleasePanel(); },
                    [](IStage&) {},
                    {4},
                    {1}};

TEST(EndSweepTest, AnythingInsideEachCallFindsNobody) {
    CSweep sweep(kEnd, kEnd.models.front(), kEnd.modes.front());
    EXPECT_EQ(sweep.Calls().size(), 7u);
    for (const Event* event : EventsAndInterventions()) {
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            sweep.Run({.intrusion = Intrusion{Moment::BeforeCall, call, event}});
            sweep.Run({.intrusion = Intrusion{Moment::AfterCall, call, event}});
        }
    }
}

}
