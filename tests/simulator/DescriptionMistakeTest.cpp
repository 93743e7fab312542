#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

/// One mistake in a good description, and how it is refused.
struct Mistake {
    const char* name;
    const char* from;
    const char* to;
    /// After the path of device.json.
    const char* message;

    friend void PrintTo(const Mistake& mistake, std::ostream* stream) {
        *stream << mistake.to << " in place of " << mistake.from;
    }
};

class DescriptionMistakeTest : public DeviceFolderFixture,
                               public testing::WithParamInterface<Mistake> {};

TEST_P(DescriptionMistakeTest, IsRefused) {
    Describe(Replaced(kGoodDescription, GetParam().from, GetParam().to));
    ExpectRefusal(std::string("/device.json:") + GetParam().message);
}

constexpr const char* kMode = "\"mode\"";

const Mistake kMistakes[] = {
    {"UnknownKey", kMode, R"("colour": 1, "mode")", R"(3: "colour" is not a known key)"},
    {"UnknownKeyWithLineBreak", kMode, R"("a\nb": 1, "mode")", R"(3: "a\nb" is not a known key)"},
    {"UnknownKeyThatSteersTerminals", kMode,
     "\"\xC2\x9B"
     "1m\\u001b\": 1, \"mode\"",
     R"(3: "\u009b1m\u001b" is not a known key)"},
    {"DuplicateKey", "\"serialNumber\": 7", "\"mode\": 1", R"(4: "mode" is given twice)"},
    {"DuplicateInnerKey", "\"flashBytes\"", "\"ramBytes\"",
     R"(7: "memory.ramBytes" is given twice)"},
    {"DuplicateKeyWithLineBreak", kMode, R"("a\nb": 1, "a\nb": 1, "mode")",
     R"(3: "a\nb" is given twice)"},
    {"MissingModel", "\"model\": \"KRX-20\",", "", R"(1: "model" is missing)"},
    {"MissingMode", "\"mode\": \"Normal\",", "", R"(1: "mode" is missing)"},
    {"MissingSerialNumber", "\"serialNumber\": 7,", "", R"(1: "serialNumber" is missing)"},
    {"MissingMemory", "\"memory\": {\n    \"ramBytes\": 1024,\n    \"flashBytes\": 4096\n  },", "",
     R"(1: "memory" is missing)"},
    {"MissingRam", "\"ramBytes\": 1024,", "", R"(5: "memory.ramBytes" is missing)"},
    {"MissingFlash", ",\n    \"flashBytes\": 4096", "", R"(5: "memory.flashBytes" is missing)"},
    {"UnknownModel", "\"KRX-20\"", "\"KRX-30\"",
     "2: \"model\" must be one of \"KRX-8\", \"KRX-8C\", \"KRX-10\", \"KRX-20\", \"KRX-21\" or a "
     "whole number"},
    {"ModelOfWrongType", "\"KRX-20\"", "[]",
     "2: \"model\" must be one of \"KRX-8\", \"KRX-8C\", \"KRX-10\", \"KRX-20\", \"KRX-21\" or a "
     "whole number"},
    {"ModelOutOfRange", "\"KRX-20\"", "2147483648",
     R"(2: "model" must be a whole number from -2147483648 to 2147483647)"},
    {"UnknownMode", "\"Normal\"", "\"normal\"",
     R"(3: "mode" must be one of "Normal", "Service", "Maintenance" or a whole number)"},
    {"SerialNumberAsText", ": 7,", ": \"7\",",
     R"(4: "serialNumber" must be a whole number from -2147483648 to 2147483647)"},
    {"SerialNumberWithFraction", ": 7,", ": 7.5,",
     R"(4: "serialNumber" must be a whole number from -2147483648 to 2147483647)"},
    {"NumberTooLarge", ": 7,", ": 1e999,", R"(4: "serialNumber" is too large a number)"},
    {"NegativeNumberTooLarge", "1024", "-1e999", R"(6: "memory.ramBytes" is too large a number)"},
    {"NumberTooLargeAtLineEnd", "4096\n", "1e999\n",
     R"(7: "memory.flashBytes" is too large a number)"},
    {"NumberTooLargeInList", kMode, R"("faults": [1,
      1e999], "mode")",
     R"(4: "faults[1]" is too large a number)"},
    {"NestedTooDeeply", kMode, R"("software": [[[[[[[[]]]]]]]], "mode")",
     R"(3: "software[0][0][0][0][0][0][0]" is nested too deeply: 8 levels are the most)"},
    {"NestedAsDeeplyAsCanBe", kMode, R"("software": [[[[[[[1]]]]]]], "mode")",
     R"(3: "software" must be an object)"},
    {"SerialNumberTooLow", ": 7,", ": -2147483649,",
     R"(4: "serialNumber" must be a whole number from -2147483648 to 2147483647)"},
    {"HardwareVersionAsNumber", kMode, R"("hardwareVersion": 3, "mode")",
     R"(3: "hardwareVersion" must be a text)"},
    {"MemoryAsList", "{\n    \"ramBytes\": 1024,\n    \"flashBytes\": 4096\n  }", "[]",
     R"(5: "memory" must be an object)"},
    {"UnknownMemory", "\"flashBytes\": 4096", "\"flashBytes\": 4096, \"rom\": 1",
     R"(7: "memory.rom" is not a known key)"},
    {"NegativeRam", "1024", "-1",
     R"(6: "memory.ramBytes" must be a whole number from 0 to 4294967295)"},
    {"RamTooLarge", "1024", "4294967296",
     R"(6: "memory.ramBytes" must be a whole number from 0 to 4294967295)"},
    {"RamBeyondEveryRange", "1024", "18446744073709551615",
     R"(6: "memory.ramBytes" must be a whole number from 0 to 4294967295)"},
    {"ValueBelowItsKey", "1024", "\n\n\"much\"",
     R"(8: "memory.ramBytes" must be a whole number from 0 to 4294967295)"},
    {"UnknownSoftware", kMode, R"("software": {"bios": "1"}, "mode")",
     R"(3: "software.bios" is not a known key)"},
    {"SoftwareAsNumber", kMode, R"("software": {"boot": 1}, "mode")",
     R"(3: "software.boot" must be a text)"},
    {"UnknownSelfTest", kMode, R"("selfTests": {"cpu": 0}, "mode")",
     R"(3: "selfTests.cpu" is not a known self-test)"},
    {"UnknownResult", kMode, R"("selfTests": {"ram": true}, "mode")",
     "3: \"selfTests.ram\" must be one of \"ok\", \"failed\", \"ignored\", \"notRun\", "
     "\"fileMissing\", \"fileInvalid\", \"certificateMissing\", \"certificateInvalid\", "
     "\"authenticationFailed\", \"flashNotFound\", \"flashNotUsable\", \"driverFailed\", "
     "\"publicKeyFailed\", \"mediaNotFound\", \"mediaNotSupported\", \"mediaNotUsable\" or a whole "
     "number"},
    {"NetworkWithoutDhcp", kMode, R"("network": {}, "mode")", R"(3: "network.useDhcp" is missing)"},
    {"DhcpAsNumber", kMode, R"("network": {"useDhcp": 1}, "mode")",
     R"(3: "network.useDhcp" must be true or false)"},
    {"BadAddress", kMode, R"("network": {"useDhcp": true, "ipAddress": "1.2.3"}, "mode")",
     R"(3: "network.ipAddress" must be an IPv4 address such as "192.168.0.1", or empty)"},
    {"BadMask", kMode, R"("network": {"useDhcp": true, "subnetMask": "24"}, "mode")",
     R"(3: "network.subnetMask" must be an IPv4 address such as "192.168.0.1", or empty)"},
    {"BadGateway", kMode, R"("network": {"useDhcp": true, "gateway": "1.2.3.999"}, "mode")",
     R"(3: "network.gateway" must be an IPv4 address such as "192.168.0.1", or empty)"},
    {"UnknownNetworkKey", kMode, R"("network": {"useDhcp": true, "dns": ""}, "mode")",
     R"(3: "network.dns" is not a known key)"},
    {"PcCardWithoutSize", kMode, R"("pcCard": {}, "mode")", R"(3: "pcCard.totalBytes" is missing)"},
    {"PcCardAsFlag", kMode, R"("pcCard": true, "mode")", R"(3: "pcCard" must be an object)"},
    {"FileAsText", "{ \"name\": \"a.fia\"", "\"a.fia\", { \"name\": \"a.fia\"",
     R"(10: "files[0]" must be an object)"},
    {"UnknownFileKey", "\"id\": 1", "\"id\": 1, \"size\": 3",
     R"(10: "files[0].size" is not a known key)"},
    {"MissingName", "\"name\": \"b.fia\", ", "", R"(11: "files[1].name" is missing)"},
    {"MissingType", "\"type\": 22, ", "", R"(11: "files[1].type" is missing)"},
    {"MissingId", "\"id\": 2, ", "", R"(11: "files[1].id" is missing)"},
    {"MissingLocation", "\"location\": 7, ", "", R"(11: "files[1].location" is missing)"},
    {"UnknownType", "\"algorithm\"", "\"music\"",
     "10: \"files[0].type\" must be one of \"secondaryBoot\", \"algorithm\", \"mcuSoftware\" or a "
     "whole number"},
    {"UnknownLocation", "\"RAM\"", "\"ROM\"",
     R"(10: "files[0].location" must be one of "RAM", "Flash", "PCCard" or a whole number)"},
    {"UnknownGeneration", "\"id\": 1", "\"id\": 1, \"generation\": \"QX9\"",
     "10: \"files[0].generation\" must be one of \"none\", \"QX1\", \"QX2\", \"QX3\" or a whole "
     "number"},
    {"NegativeGeneration", "\"id\": 1", "\"id\": 1, \"generation\": -1",
     R"(10: "files[0].generation" must be a whole number from 0 to 4294967295)"},
    {"ContentElsewhere", "\"second\"", "\"../device.json\"",
     R"(11: "files[1].content" must be a plain file name)"},
    {"ContentEmpty", "\"second\"", "\"\"", R"(11: "files[1].content" must be a plain file name)"},
    {"NameThatIsNoFileName", "\"name\": \"a.fia\"", "\"name\": \"a/b\"",
     R"(10: "files[0].name" is no plain file name, so that "content" must give one)"},
    {"SameTypeAndId", "22, \"id\": 2", "21, \"id\": 1",
     R"(11: "files[1]" has the type and the identifier (low 16 bits) of "files[0]")"},
    {"SameLowIdBits", "22, \"id\": 2", "21, \"id\": 65537",
     R"(11: "files[1]" has the type and the identifier (low 16 bits) of "files[0]")"},
    {"SameContent", "\"second\"", "\"a.fia\"", R"(11: "files[1]" has the content of "files[0]")"},
    {"FaultsAsObject", kMode, R"("faults": {}, "mode")", R"(3: "faults" must be a list)"},
    {"FaultOfUnknownOperation", kMode,
     R"("faults": [{"operation": "File.Burn", "call": 1, "status": "0x80004005"}], "mode")",
     R"(3: "faults[0].operation" is not the name of an operation)"},
    {"FaultWithoutCall", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "status": "0x80004005"}], "mode")",
     R"(3: "faults[0].call" is missing)"},
    {"FaultAtCallZero", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 0}], "mode")",
     R"(3: "faults[0].call" must be a whole number from 1 to 4294967295)"},
    {"FaultWithoutStatus", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 1}], "mode")",
     R"(3: "faults[0].status" is missing)"},
    {"FaultWithSuccess", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 1, "status": "0x00000001"}], "mode")",
     "3: \"faults[0].status\" must be a failure code such as \"0x80004005\" (0x80000000 to "
     "0xFFFFFFFF)"},
    {"FaultWithOverlongStatus", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 1, "status": "0x180004005"}], "mode")",
     "3: \"faults[0].status\" must be a failure code such as \"0x80004005\" (0x80000000 to "
     "0xFFFFFFFF)"},
    {"FaultWithStatusInWords", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 1, "status": "E_FAIL"}], "mode")",
     "3: \"faults[0].status\" must be a failure code such as \"0x80004005\" (0x80000000 to "
     "0xFFFFFFFF)"},
    {"NullForValue", kMode,
     R"("faults": [{"operation": "FileInfo.GetName", "call": 1, "null": true}], "mode")",
     R"(3: "faults[0].null" is for operations that deliver an object)"},
    {"NullWithStatus", kMode,
     R"("faults": [{"operation": "FileListing.GetFileInfo", "call": 1, "null": true,
       "status": "0x80004005"}], "mode")",
     R"(4: "faults[0].status" has no place beside "null")"},
    {"NullWithDescription", kMode,
     R"("faults": [{"operation": "FileListing.GetFileInfo", "call": 1, "null": true,
       "description": ""}], "mode")",
     R"(4: "faults[0].description" has no place beside "null")"},
    {"UnknownFaultKey", kMode, R"("faults": [{"operations": ""}], "mode")",
     R"(3: "faults[0].operations" is not a known key)"},
    {"LatencyTooLong", kMode, R"("latency": {"defaultMs": 60001}, "mode")",
     R"(3: "latency.defaultMs" must be a whole number from 0 to 60000)"},
    {"LatencyOfUnknownOperation", kMode, R"("latency": {"operationsMs": {"Nap": 1}}, "mode")",
     R"(3: "latency.operationsMs.Nap" is not the name of an operation)"},
    {"LatencyOfTheHost", kMode, R"("latency": {"operationsMs": {"Context.Register": 1}}, "mode")",
     R"(3: "latency.operationsMs.Context.Register" is not an operation of the device)"},
    {"UnknownLatencyKey", kMode, R"("latency": {"ms": 1}, "mode")",
     R"(3: "latency.ms" is not a known key)"},
    {"LossOfUnknownOperation", kMode, R"("loss": {"operation": "x", "call": 1}, "mode")",
     R"(3: "loss.operation" is not the name of an operation)"},
    {"LossOfAnEvent", kMode,
     R"("loss": {"operation": "ExtConnectionEvents.Event2", "call": 1}, "mode")",
     R"(3: "loss.operation" is not the name of an operation)"},
    {"LossReturningBeforeItGoes", kMode,
     R"("loss": {"operation": "FileInfo.GetName", "call": 1, "returnsAfterCalls": -1}, "mode")",
     R"(3: "loss.returnsAfterCalls" must be a whole number from 0 to 4294967295)"},
};

INSTANTIATE_TEST_SUITE_P(, DescriptionMistakeTest, testing::ValuesIn(kMistakes),
                         [](const auto& mistake) { return mistake.param.name; });

}
}
