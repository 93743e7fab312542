#include "frontend/registry/SystemError.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace registry {
namespace {

TEST(SystemErrorTest, EachErrorHasItsNumber) {
    EXPECT_EQ(ToErrorNumber(ENOENT), 2);
    EXPECT_EQ(ToErrorNumber(ENOTDIR), 3);
    EXPECT_EQ(ToErrorNumber(ELOOP), 3);
    EXPECT_EQ(ToErrorNumber(EMFILE), 4);
    EXPECT_EQ(ToErrorNumber(ENFILE), 4);
    EXPECT_EQ(ToErrorNumber(EACCES), 5);
    EXPECT_EQ(ToErrorNumber(EPERM), 5);
    EXPECT_EQ(ToErrorNumber(EROFS), 5);
    EXPECT_EQ(ToErrorNumber(EISDIR), 5);
    EXPECT_EQ(ToErrorNumber(ENOSPC), 112);
    EXPECT_EQ(ToErrorNumber(EDQUOT), 112);
    EXPECT_EQ(ToErrorNumber(ENAMETOOLONG), 206);
    EXPECT_EQ(ToErrorNumber(EFBIG), 223);
}

TEST(SystemErrorTest, ErrorWithoutNumberIsAGeneralFailure) {
    EXPECT_EQ(ToErrorNumber(EIO), 31);
    EXPECT_EQ(ToErrorNumber(12345), 31);
}

}
}
