#include "panel/files/FileRowKey.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

TEST(FileRowKeyTest, KeyPacksTypeLocationAndId) {
    const FileRowKey key = MakeFileRowKey(22, 2, 5);
    EXPECT_EQ(key, 0x16020005u);
    EXPECT_EQ(TypeOf(key), 22);
    EXPECT_EQ(LocationOf(key), 2);
    EXPECT_EQ(IdOf(key), 5);
}

TEST(FileRowKeyTest, LargeIdKeepsItsLowSixteenBits) {
    EXPECT_EQ(IdOf(MakeFileRowKey(19, 1, 70000)), 4464);
    EXPECT_EQ(IdOf(MakeFileRowKey(19, 1, -1)), 65535);
}

TEST(FileRowKeyTest, TypeAndLocationKeepTheirLowEightBits) {
    const FileRowKey key = MakeFileRowKey(0x1FF, 0x203, 0);
    EXPECT_EQ(TypeOf(key), 0xFF);
    EXPECT_EQ(LocationOf(key), 3);
    EXPECT_EQ(MakeFileRowKey(-1, -1, -1), 0xFFFFFFFFu);
}

}
}
