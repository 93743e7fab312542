#include "panel/control/RefreshInhibition.h"

#include <gtest/gtest.h>

#include <optional>

namespace panel {
namespace {

TEST(RefreshInhibitionTest, RefreshIsAllowedFromTheStart) {
    EXPECT_TRUE(PanelState().refreshAllowed);
}

TEST(RefreshInhibitionTest, ScopeHoldsRefreshesBack) {
    PanelState state;
    {
        const CRefreshInhibition inhibition(state);
        EXPECT_FALSE(state.refreshAllowed);
    }
    EXPECT_TRUE(state.refreshAllowed);
}

TEST(RefreshInhibitionTest, EndOfAnInnerScopeAllowsRefreshes) {
    PanelState state;
    const CRefreshInhibition outer(state);
    { const CRefreshInhibition inner(state); }
    EXPECT_TRUE(state.refreshAllowed);
}

TEST(RefreshInhibitionTest, ScopeCanBeEndedEarly) {
    PanelState state;
    std::optional<CRefreshInhibition> inhibition(std::in_place, state);
    inhibition.reset();
    EXPECT_TRUE(state.refreshAllowed);
}

}
}
