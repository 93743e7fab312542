#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

class LogTest : public ConformanceTest {};

TEST_F(LogTest, AppendAddsLinesAtTheEnd) {
    Show();
    EXPECT_EQ(View().GetText(kLog), "");
    View().AppendLog(kLog, "first\r\n");
    View().AppendLog(kLog, "second\r\n");
    EXPECT_EQ(View().GetText(kLog), "first\r\nsecond\r\n");
    EXPECT_EQ(User().ShownText(kLog), "first\r\nsecond\r\n");
}

TEST_F(LogTest, AppendOfMarkupAndAmpersandIsShownAsItIs) {
    Show();
    View().AppendLog(kLog, "<b>R&D</b> &amp;\r\n");
    EXPECT_EQ(User().ShownText(kLog), "<b>R&D</b> &amp;\r\n");
}

TEST_F(LogTest, InvalidByteIsShownAsReplacementCharacter) {
    Show();
    View().AppendLog(kLog, "a\xFFz\r\n");
    const std::string expected = std::string("a") + kReplacement + "z\r\n";
    EXPECT_EQ(View().GetText(kLog), expected);
    EXPECT_EQ(User().ShownText(kLog), expected);
}

TEST_F(LogTest, ClearLeavesNothing) {
    Show();
    View().AppendLog(kLog, "first\r\n");
    View().ClearLog(kLog);
    EXPECT_EQ(View().GetText(kLog), "");
    EXPECT_EQ(User().ShownText(kLog), "");
    View().AppendLog(kLog, "again\r\n");
    EXPECT_EQ(View().GetText(kLog), "again\r\n");
}

TEST_F(LogTest, LogWithoutTextLimitTakesMoreThan64K) {
    Show();
    View().SetTextLimit(kLog, panel::kNoTextLimit);
    const std::string line = std::string(98, 'x') + "\r\n";
    std::string expected;
    for (int count = 0; count < 1500; ++count) {
        View().AppendLog(kLog, line);
        expected += line;
    }
    EXPECT_EQ(View().GetText(kLog), expected);
}

TEST_F(LogTest, AppendToDisabledOrHiddenLogIsKept) {
    Show();
    View().SetEnabled(kLog, false);
    View().AppendLog(kLog, "disabled\r\n");
    View().SetVisible(kLog, false);
    View().AppendLog(kLog, "hidden\r\n");
    EXPECT_EQ(View().GetText(kLog), "disabled\r\nhidden\r\n");
}

TEST_F(LogTest, WhatIsNoLogTakesNoLines) {
    Show();
    for (panel::ControlId id : {kMissing, panel::kNoControl, kField, kManyList}) {
        const std::string before = View().GetText(id);
        View().AppendLog(id, "line\r\n");
        EXPECT_EQ(View().GetText(id), before) << id;
        View().ClearLog(id);
        EXPECT_EQ(View().GetText(id), before) << id;
    }
}

TEST_F(LogTest, VerbsOnLogNeverCallTheHandler) {
    Show();
    View().SetTextLimit(kLog, panel::kNoTextLimit);
    View().AppendLog(kLog, "line\r\n");
    View().ClearLog(kLog);
    EXPECT_EQ(m_handler.events, Events{});
}

}

}
