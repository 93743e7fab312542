#include "tests/simulator/Answers.h"

#include "contract/ErrorInfo.h"

namespace simulator {

void ExpectFailure(contract::Status status, std::uint32_t bits, const std::string& description) {
    EXPECT_EQ(status, contract::Status::FromBits(bits));
    EXPECT_EQ(contract::TakeErrorInfo(), description);
}

}
