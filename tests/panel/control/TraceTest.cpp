#include "panel/control/Trace.h"

#include "frontend/headless/HeadlessToolkit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace panel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TraceTest, LinesExistInDebugBuildsOnly) {
    headless::CHeadlessToolkit toolkit;
    Trace(toolkit, "CPanel::Handler: key 0x%hX of %u\n", 46, 7u);
    if (kTraceLines) {
        EXPECT_THAT(toolkit.Desktop()->traceLines, ElementsAre("CPanel::Handler: key 0x2E of 7"));
    } else {
        EXPECT_THAT(toolkit.Desktop()->traceLines, IsEmpty());
    }
}

TEST(TraceTest, LineWithoutArgumentsIsWrittenAsItIs) {
    headless::CHeadlessToolkit toolkit;
    Trace(toolkit, "100% of it\n");
    if (kTraceLines) {
        EXPECT_THAT(toolkit.Desktop()->traceLines, ElementsAre("100% of it"));
    }
}

}
}
