#include "panel/registration/RegistryScript.h"

#include <gtest/gtest.h>

namespace panel {

namespace {

TEST(RegistryScriptTest, KeysCarryTextValuesAndKeys) {
    const auto root = ParseRegistryScript("HKCR { Class = s 'A class' { val Model = s 'Both'\n"
                                          "Inner { Innermost = s Plain } } Other }");
    ASSERT_TRUE(root);
    EXPECT_EQ(root->name, "HKCR");
    ASSERT_EQ(root->keys.size(), 2u);
    const ScriptKey& key = root->keys[0];
    EXPECT_EQ(key.name, "Class");
    EXPECT_EQ(key.text, "A class");
    ASSERT_EQ(key.values.size(), 1u);
    EXPECT_EQ(key.values[0].name, "Model");
    EXPECT_EQ(key.values[0].text, "Both");
    ASSERT_EQ(key.keys.size(), 1u);
    EXPECT_EQ(key.keys[0].text, std::nullopt);
    ASSERT_EQ(key.keys[0].keys.size(), 1u);
    EXPECT_EQ(key.keys[0].keys[0].text, "Plain");
    EXPECT_EQ(root->keys[1].name, "Other");
}

TEST(RegistryScriptTest, MarksSayWhatStaysAndWhatIsRenewed) {
    const auto root = ParseRegistryScript("HKCR { NoRemove A { ForceRemove B } C }");
    ASSERT_TRUE(root);
    EXPECT_TRUE(root->keys[0].isKept);
    EXPECT_FALSE(root->keys[0].isRenewed);
    EXPECT_TRUE(root->keys[0].keys[0].isRenewed);
    EXPECT_FALSE(root->keys[0].keys[0].isKept);
    EXPECT_FALSE(root->keys[1].isKept);
    EXPECT_FALSE(root->keys[1].isRenewed);
}

TEST(RegistryScriptTest, BracesOfAnIdentifierBelongToTheName) {
    const auto root = ParseRegistryScript("HKCR { {0A-1B} = s '{2C}' { } }");
    ASSERT_TRUE(root);
    EXPECT_EQ(root->keys[0].name, "{0A-1B}");
    EXPECT_EQ(root->keys[0].text, "{2C}");
}

TEST(RegistryScriptTest, OnlyBlanksEndAPlainWord) {
    const auto root = ParseRegistryScript("HKCR { A~1\tB.2\r\nC-3 }");
    ASSERT_TRUE(root);
    ASSERT_EQ(root->keys.size(), 3u);
    EXPECT_EQ(root->keys[0].name, "A~1");
    EXPECT_EQ(root->keys[1].name, "B.2");
    EXPECT_EQ(root->keys[2].name, "C-3");
}

TEST(RegistryScriptTest, ApostrophesMakeANameOfAnything) {
    const auto root = ParseRegistryScript("HKCR { 'val' = s 'it''s'' { = }' 'two words' '' }");
    ASSERT_TRUE(root);
    ASSERT_EQ(root->keys.size(), 3u);
    EXPECT_EQ(root->keys[0].name, "val");
    EXPECT_EQ(root->keys[0].text, "it's' { = }");
    EXPECT_EQ(root->keys[1].name, "two words");
    EXPECT_EQ(root->keys[2].name, "");
}

TEST(RegistryScriptTest, WordMayFollowAnApostropheAtOnce) {
    const auto root = ParseRegistryScript("HKCR { A = s 'text'{ B } C = s 'more'}");
    ASSERT_TRUE(root);
    ASSERT_EQ(root->keys.size(), 2u);
    EXPECT_EQ(root->keys[0].text, "text");
    ASSERT_EQ(root->keys[0].keys.size(), 1u);
    EXPECT_EQ(root->keys[0].keys[0].name, "B");
    EXPECT_EQ(root->keys[1].text, "more");
}

TEST(RegistryScriptTest, WhatIsNoScriptIsRefused) {
    for (const char* script :
         {"", "HKCR", "HKCR {", "HKCR { } }", "HKCR { A = }", "HKCR { A = 'text' }",
          "HKCR { A = d 1 }", "HKCR { val A }", "HKCR { val A = s }", "HKCR { = s 'x' }",
          "HKCR { A { }", "HKCR { A = s 'open }", "{ A }", "HKCR { NoRemove }"}) {
        EXPECT_FALSE(ParseRegistryScript(script)) << script;
    }
}

}

}
