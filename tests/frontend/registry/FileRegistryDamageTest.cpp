#include "panel/control/Trace.h"
#include "tests/frontend/registry/RegistryFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace registry {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct Damage {
    const char* text;
    const char* said;
};

class FileRegistryDamageTest : public RegistryFixture, public testing::WithParamInterface<Damage> {
protected:
    void ExpectOneTraceLine(const std::string& said) {
        if (panel::kTraceLines) {
            EXPECT_THAT(traceLines, ElementsAre(AllOf(StartsWith("CSettingsFile::Load: " + Path() +
                                                                 " is damaged: "),
                                                      HasSubstr(said), EndsWith("\n"))));
        } else {
            EXPECT_THAT(traceLines, IsEmpty());
        }
        traceLines.clear();
    }
};

TEST_P(FileRegistryDamageTest, DamagedFileHasNoKeys) {
    WriteFile(GetParam().text);
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    EXPECT_EQ(key, nullptr);
    ExpectOneTraceLine(GetParam().said);
}

TEST_P(FileRegistryDamageTest, FileDamagedSinceOpeningHasNoValues) {
    Create()->WriteText("FlashDir", "C:\\Flash");
    const auto key = Open();
    WriteFile(GetParam().text);
    std::string bytes = "before";
    EXPECT_EQ(key->ReadValue("FlashDir", 260, bytes), 2);
    EXPECT_EQ(bytes, "before");
    ExpectOneTraceLine(GetParam().said);
}

TEST_P(FileRegistryDamageTest, DamagedFileIsNotOverwritten) {
    const auto opened = Create();
    WriteFile(GetParam().text);
    std::unique_ptr<panel::IRegistryKey> created;
    EXPECT_EQ(registry.CreateKey(kKey, created), 13);
    EXPECT_EQ(created, nullptr);
    EXPECT_EQ(opened->WriteText("FlashDir", "C:\\Flash"), 13);
    EXPECT_EQ(opened->WriteNumber("Count", 1), 13);
    EXPECT_EQ(ReadFile(), GetParam().text);
}

TEST_P(FileRegistryDamageTest, MendedFileIsReadAgain) {
    WriteFile(GetParam().text);
    EXPECT_EQ(Read("FlashVersion"), "(error 2)");
    WriteFile(R"({"SOFTWARE/Programs/Update": {"FlashVersion": "1.0"}})");
    EXPECT_EQ(Read("FlashVersion"), std::string("1.0") + '\0');
}

INSTANTIATE_TEST_SUITE_P(
    Damages, FileRegistryDamageTest,
    testing::Values(Damage{"", "unexpected end of input"},
                    Damage{R"({"SOFTWARE/Programs/Update": {"FlashDir": "C:\\Fl)", "parse error"},
                    Damage{R"({"SOFTWARE/Programs/Update": {}} {})", "parse error"},
                    Damage{"{\"A\xFF\": {}}", "UTF-8"}, Damage{"[]", "it is not an object of keys"},
                    Damage{R"({"A": 5})", R"("A" is not an object of values)"},
                    Damage{R"({"A": {"b": true}})", R"("b" is neither a text nor)"},
                    Damage{R"({"A": {"b": -1}})", R"("b" is neither a text nor)"},
                    Damage{R"({"A": {"b": 1.5}})", R"("b" is neither a text nor)"},
                    Damage{R"({"A": {"b": 4294967296}})", R"("b" is neither a text nor)"},
                    Damage{R"({"A": {"b": {}}})", R"("b" is neither a text nor)"},
                    Damage{R"({"A": {"b": 1, "b": 2}})", R"("b" stands twice)"},
                    Damage{R"({"A": {"b": 1}, "A": {}})", R"("A" stands twice)"},
                    Damage{R"({"A": {"": 1, "": 2}})", R"("" stands twice)"},
                    Damage{R"({"": {}, "": {}})", R"("" stands twice)"}));

class FileRegistryStrangeFileTest : public FileRegistryDamageTest {};

TEST_F(FileRegistryStrangeFileTest, FolderInPlaceOfTheFileHasNoKeysAndTakesNone) {
    std::filesystem::create_directory(Path());
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    ExpectOneTraceLine("it is not a file");
    EXPECT_EQ(registry.CreateKey(kKey, key), 13);
    EXPECT_TRUE(std::filesystem::is_directory(Path()));
}

TEST_F(FileRegistryStrangeFileTest, HugeFileIsDamaged) {
    WriteFile("{}");
    std::filesystem::resize_file(Path(), (1 << 24) + 1);
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    ExpectOneTraceLine("it is larger than 16 MiB");
}

TEST_F(FileRegistryStrangeFileTest, DeeplyNestedFileIsDamaged) {
    constexpr int kDepth = 100'000;
    WriteFile(std::string(kDepth, '[') + std::string(kDepth, ']'));
    std::unique_ptr<panel::IRegistryKey> key;
    EXPECT_EQ(registry.OpenKey(kKey, key), 2);
    ExpectOneTraceLine("it is not an object of keys");
}

}
}
