#include "simulator/device/PhoneFile.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

TEST(PhoneFileTest, TypeFollowsTheEndOfTheName) {
    EXPECT_EQ(RecognisePhoneFile("a_2nd.fia", "").type, 19);
    EXPECT_EQ(RecognisePhoneFile("A_2ND.FG", "").type, 19);
    EXPECT_EQ(RecognisePhoneFile("a_alg.fg", "").type, 21);
    EXPECT_EQ(RecognisePhoneFile("a_mcu.fia", "").type, 22);
    EXPECT_EQ(RecognisePhoneFile("Version.fia", "").type, 22);
    for (const auto* name :
         {"a.fia", "a_mcu", "a_mcu.bin", "_alg", "alg.fia", "", "a_mcu.fia.txt"}) {
        EXPECT_EQ(RecognisePhoneFile(name, "").type, 255) << name;
    }
}

TEST(PhoneFileTest, GenerationFollowsTheExtension) {
    EXPECT_EQ(RecognisePhoneFile("a_alg.fg", "").generation, 5u);
    EXPECT_FALSE(RecognisePhoneFile("a_alg.fia", "").generation);
}

TEST(PhoneFileTest, FirstLineTellsTheRest) {
    const auto file = RecognisePhoneFile(
        "a.fia", "a.fia 1.2.3 id=-70000 generation=QX2 type=secondaryBoot\r\nid=9");
    EXPECT_EQ(file.version, "1.2.3");
    EXPECT_EQ(file.id, -70000);
    EXPECT_EQ(file.generation, 4u);
    EXPECT_EQ(file.type, 19);
}

TEST(PhoneFileTest, LineThatIsNoHeaderTellsNothing) {
    for (const auto* head : {"", "\n", "a.fia", "a.fia x id=5", "\x01\x02\x03", "1.0\nid=5"}) {
        const auto file = RecognisePhoneFile("a_alg.fia", head);
        EXPECT_EQ(file.version, "") << head;
        EXPECT_FALSE(file.id) << head;
    }
}

TEST(PhoneFileTest, WordsThatAreNoEntriesAreOverlooked) {
    const auto file = RecognisePhoneFile(
        "a_alg.fia", "a 1 id= id=5x id=99999999999 generation=QX9 type=other colour=red");
    EXPECT_EQ(file.version, "1");
    EXPECT_FALSE(file.id);
    EXPECT_FALSE(file.generation);
    EXPECT_EQ(file.type, 21);
}

}
}
