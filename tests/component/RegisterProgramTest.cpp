#include "tests/component/RegistryFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>

namespace component {

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct Outcome {
    int status = -1;
    std::string output; ///< of both streams
};

Outcome StartProgram(const std::string& arguments) {
    Outcome outcome;
    FILE* const program = popen((KRX8_REGISTER " " + arguments + " 2>&1").c_str(), "r");
    char line[512];
    while (program && std::fgets(line, sizeof line, program)) {
        outcome.output += line;
    }
    outcome.status = program ? WEXITSTATUS(pclose(program)) : -1;
    return outcome;
}

class RegisterProgramTest : public testing::Test {
protected:
    std::string Catalogue() const {
        std::ifstream file(m_registry.Path());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    CRegistryFile m_registry;
};

TEST_F(RegisterProgramTest, WritesWhereTheComponentIs) {
    const Outcome outcome = StartProgram(KRX8_COMPONENT);
    EXPECT_EQ(outcome.output, KRX8_COMPONENT " is registered in " + m_registry.Path() + "\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(Catalogue(), HasSubstr("\"" KRX8_COMPONENT "\""));
}

TEST_F(RegisterProgramTest, TakesItBack) {
    ASSERT_EQ(StartProgram(KRX8_COMPONENT).status, 0);
    const Outcome outcome = StartProgram("--unregister " KRX8_COMPONENT);
    EXPECT_EQ(outcome.output,
              KRX8_COMPONENT " is no longer registered in " + m_registry.Path() + "\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(Catalogue(), Not(HasSubstr("KRX8Maintenance")));
}

TEST_F(RegisterProgramTest, FileThatIsNoLibraryIsNamed) {
    const Outcome outcome = StartProgram("/dev/null");
    EXPECT_THAT(outcome.output, StartsWith("krx8-register: cannot load /dev/null"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(Catalogue(), "");
}

TEST_F(RegisterProgramTest, CatalogueThatIsDamagedIsNamedAndStaysAsItIs) {
    std::ofstream(m_registry.Path()) << "{ damaged";
    const Outcome outcome = StartProgram(KRX8_COMPONENT);
    EXPECT_EQ(outcome.output, "krx8-register: " + m_registry.Path() +
                                  " cannot be changed (0x8007000d): it is damaged\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(Catalogue(), "{ damaged");
}

TEST_F(RegisterProgramTest, CatalogueBelowAFileIsRefusedWithTheReason) {
    const std::string file = m_registry.Path();
    std::ofstream(file) << "{}";
    setenv("KRX8_REGISTRY", (file + "/registry.json").c_str(), 1);
    const Outcome outcome = StartProgram(KRX8_COMPONENT);
    EXPECT_EQ(outcome.output, "krx8-register: " + file +
                                  "/registry.json cannot be changed (0x80070003): something on "
                                  "the way to it is not a folder\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(RegisterProgramTest, ReasonThatTheComponentGivesFollowsTheStatus) {
    const Outcome outcome = StartProgram(KRX8_EMPTY_COMPONENT);
    EXPECT_EQ(outcome.output, "krx8-register: " + m_registry.Path() +
                                  " cannot be changed (0x80004005): there is no room\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(RegisterProgramTest, WrongCommandLineIsAnsweredByTheUsage) {
    for (const char* arguments : {"", "--unregister", "--colour", "a.so b.so"}) {
        const Outcome outcome = StartProgram(arguments);
        EXPECT_THAT(outcome.output, StartsWith("Usage: krx8-register [--unregister] LIBRARY"));
        EXPECT_EQ(outcome.status, 2) << arguments;
    }
    EXPECT_EQ(StartProgram("--help").status, 0);
}

}

}
