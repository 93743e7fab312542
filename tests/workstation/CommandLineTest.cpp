#include "workstation/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using workstation::CommandLineError;
using workstation::Options;

class CommandLineTest : public testing::Test {
protected:
    static Options Accepted(const std::vector<std::string>& arguments) {
        const auto result = workstation::ParseCommandLine(arguments);
        if (const auto* error = std::get_if<CommandLineError>(&result)) {
            ADD_FAILURE() << error->reason;
            return {};
        }
        return std::get<Options>(result);
    }

    static std::string Refusal(const std::vector<std::string>& arguments) {
        const auto result = workstation::ParseCommandLine(arguments);
        const auto* error = std::get_if<CommandLineError>(&result);
        return error ? error->reason : "accepted";
    }
};

TEST_F(CommandLineTest, NoArgumentsAskForNothing) {
    const Options options = Accepted({});
    EXPECT_TRUE(options.device.empty());
    EXPECT_TRUE(options.devices.empty());
    EXPECT_TRUE(options.snapshot.empty());
    EXPECT_TRUE(options.fallback.empty());
    EXPECT_FALSE(options.text);
    EXPECT_FALSE(options.help);
}

TEST_F(CommandLineTest, EachOptionSetsItsOwnValue) {
    const Options options = Accepted({"--device", "d", "--devices", "r", "--snapshot", "s.png",
                                      "--fallback", "f.png", "--text", "--help"});
    EXPECT_EQ(options.device, "d");
    EXPECT_EQ(options.devices, "r");
    EXPECT_EQ(options.snapshot, "s.png");
    EXPECT_EQ(options.fallback, "f.png");
    EXPECT_TRUE(options.text);
    EXPECT_TRUE(options.help);
}

TEST_F(CommandLineTest, ValueAfterEqualsSignIsTaken) {
    EXPECT_EQ(Accepted({"--device=a=b"}).device, "a=b");
}

TEST_F(CommandLineTest, RepeatedOptionTakesTheLastValue) {
    EXPECT_EQ(Accepted({"--device", "first", "--device", "second"}).device, "second");
}

TEST_F(CommandLineTest, UnknownOptionIsNamed) {
    EXPECT_EQ(Refusal({"--colour"}), "unknown option '--colour'");
    EXPECT_EQ(Refusal({"-d"}), "unknown option '-d'");
    EXPECT_EQ(Refusal({"--text=yes"}), "unknown option '--text=yes'");
}

TEST_F(CommandLineTest, ArgumentWithoutOptionIsNamed) {
    EXPECT_EQ(Refusal({"--text", "krx-20"}), "unexpected argument 'krx-20'");
}

TEST_F(CommandLineTest, OptionWithoutItsValueIsNamed) {
    EXPECT_EQ(Refusal({"--text", "--device"}), "option --device needs a value");
    EXPECT_EQ(Refusal({"--snapshot="}), "option --snapshot has an empty value");
    EXPECT_EQ(Refusal({"--devices", ""}), "option --devices has an empty value");
}

TEST_F(CommandLineTest, HelpNamesEveryOption) {
    const std::string help = workstation::HelpText();
    for (const char* option : {"--device FOLDER", "--devices ROOT", "--snapshot FILE.png", "--text",
                               "--fallback FILE.png", "--help"}) {
        EXPECT_NE(help.find(std::string("  ") + option + "  "), std::string::npos) << option;
    }
}

}
