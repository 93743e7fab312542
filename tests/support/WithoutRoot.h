#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace support {

/// Gives up the rights of root while it lives, if the tests have them: root may read and write
/// everywhere, so that a test of missing rights would test nothing.
class CWithoutRoot {
public:
    CWithoutRoot() : m_user(geteuid()) {
        if (m_user == 0) {
            constexpr uid_t kNobody = 65534;
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~CWithoutRoot() { EXPECT_EQ(seteuid(m_user), 0); }
    CWithoutRoot(const CWithoutRoot&) = delete;
    CWithoutRoot& operator=(const CWithoutRoot&) = delete;

private:
    const uid_t m_user;
};

}
