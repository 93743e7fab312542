#include "panel/control/BusyCursor.h"

#include "frontend/headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace panel {
namespace {

class BusyCursorTest : public testing::Test {
protected:
    int Depth() { return toolkit.Desktop()->cursorDepth; }

    headless::CHeadlessToolkit toolkit;
};

TEST_F(BusyCursorTest, ScopeShowsTheWaitCursorAndRestores) {
    {
        const BusyCursor busy(toolkit);
        EXPECT_EQ(Depth(), 1);
    }
    EXPECT_EQ(Depth(), 0);
}

TEST_F(BusyCursorTest, InnerScopeGivesBackTheOutersCursor) {
    const BusyCursor outer(toolkit);
    {
        const BusyCursor inner(toolkit);
        EXPECT_EQ(Depth(), 2);
    }
    EXPECT_EQ(Depth(), 1);
}

TEST_F(BusyCursorTest, ScopeLeftByAnErrorRestores) {
    EXPECT_THROW(
        {
            const BusyCursor busy(toolkit);
            throw std::runtime_error("left early");
        },
        std::runtime_error);
    EXPECT_EQ(Depth(), 0);
    EXPECT_EQ(toolkit.Desktop()->highestCursorDepth, 1);
}

}
}
