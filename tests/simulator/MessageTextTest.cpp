#include "simulator/folder/MessageText.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

using namespace std::string_literals;

TEST(MessageTextTest, PlainTextStaysAsItIs) {
    EXPECT_EQ(EscapeForMessage(""), "");
    EXPECT_EQ(EscapeForMessage(" a\\\"~/"), " a\\\"~/");
}

TEST(MessageTextTest, QuotesAndBackslashesAreMarkedInQuotes) {
    EXPECT_EQ(QuoteForMessage(""), "\"\"");
    EXPECT_EQ(QuoteForMessage(" a\\\"~/"), "\" a\\\\\\\"~/\"");
    EXPECT_EQ(QuoteForMessage("a\nb"), "\"a\\nb\"");
}

TEST(MessageTextTest, ControlCharactersAreEscaped) {
    EXPECT_EQ(EscapeForMessage("a\b\t\n\f\rb"), "a\\b\\t\\n\\f\\rb");
    EXPECT_EQ(EscapeForMessage("\0\x01\x1B\x1F\x7F"s), "\\u0000\\u0001\\u001b\\u001f\\u007f");
}

TEST(MessageTextTest, ControlCharactersBeyondAsciiAreEscaped) {
    EXPECT_EQ(EscapeForMessage("\xC2\x80\xC2\x9F"), "\\u0080\\u009f");
    EXPECT_EQ(EscapeForMessage("\xE2\x80\xA8\xE2\x80\xA9"), "\\u2028\\u2029");
}

TEST(MessageTextTest, NeighboursOfControlCharactersStay) {
    const auto text = "\x20\x7E\xC2\xA0\xC3\x80\xE2\x80\xA7\xE2\x80\xAA\xE2\x81\xA8"s;
    EXPECT_EQ(EscapeForMessage(text), text);
}

TEST(MessageTextTest, BrokenUtf8Stays) {
    EXPECT_EQ(EscapeForMessage("\xC2"), "\xC2");
    EXPECT_EQ(EscapeForMessage("\xE2\x80"), "\xE2\x80");
    EXPECT_EQ(EscapeForMessage("\xFF\x80"), "\xFF\x80");
}

}
}
