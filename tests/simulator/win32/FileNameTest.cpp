#include "simulator/folder/SystemError.h"
#include "simulator/folder/SystemPath.h"
#include "tests/simulator/FolderStoreFixture.h"

namespace simulator {
namespace {

class FileNameTest : public FolderStoreFixture {};

TEST_F(FileNameTest, NamesThatTheSystemTakesOtherwiseAreNoFileNames) {
    for (const auto* name :
         {"",   ".",   "..",   "a/b", "a\\b", "a:b", "a*",      "a?",   "a\"b",     "<a",
          "a>", "a|b", "a\tb", "a.",  "a ",   "nul", "NUL.fia", "com1", "Lpt9.txt", "aux .fia"}) {
        EXPECT_FALSE(IsPlainFileName(name)) << name;
    }
    for (const auto* name :
         {"a.fia", "a b", ".a", "com", "com10", "com0", "null.fia", "a~2", "\xC3\xA4.fia"}) {
        EXPECT_TRUE(IsPlainFileName(name)) << name;
    }
}

TEST_F(FileNameTest, ContentThatIsNoFileNameIsRefused) {
    Describe(Replaced(kGoodDescription, "\"second\"", R"("a\nb")"));
    ExpectRefusal("/device.json:11: \"files[1].content\" must be a plain file name");
    Describe(Replaced(kGoodDescription, "\"a.fia\"", R"("a:b")"));
    ExpectRefusal("/device.json:10: \"files[0].name\" is no plain file name, so that \"content\" "
                  "must give one");
}

TEST_F(FileNameTest, NameOfADeviceIsStoredUnderAnother) {
    EXPECT_FALSE(Store(*Open(), {"nul", 21, 3, "1", 0, kInFlash, 0, ""}, "cc"));
    EXPECT_EQ(Read().files[2].content, "content");
    EXPECT_EQ(Content("content"), "cc");
}

TEST_F(FileNameTest, NameBeyondTheCodePageIsStoredAsItIs) {
    const std::string name = "\xC3\xA4\xE4\xB8\xAD.fia";
    EXPECT_FALSE(Store(*Open(), {name, 21, 3, "1", 0, kInFlash, 0, ""}, "cc"));
    EXPECT_EQ(Read().files[2].content, name);
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path() / L"files\\\u00E4\u4E2D.fia"));
}

TEST_F(FileNameTest, FileNamedInOtherLettersIsKept) {
    Describe(Replaced(kGoodDescription, "\"second\"", "\"SECOND\""));
    EXPECT_FALSE(Rename(*Open(), "X9"));
    EXPECT_EQ(StoredNames(), (NameList{"a.fia", "second"}));
}

TEST_F(FileNameTest, ContentNamedTwiceInOtherLettersIsRefused) {
    Describe(Replaced(kGoodDescription, "\"second\"", "\"A.FIA\""));
    ExpectRefusal("/device.json:11: \"files[1]\" has the content of \"files[0]\"");
}

TEST_F(FileNameTest, ErrorsAreSaidInTheSameWordsEverywhere) {
    const auto message = [](int code) { return MessageOf({code, std::system_category()}); };
    EXPECT_EQ(message(5), "Permission denied");
    EXPECT_EQ(message(2), "No such file or directory");
    EXPECT_EQ(message(3), "No such file or directory");
    EXPECT_EQ(message(112), "No space left on device");
    EXPECT_EQ(MessageOf({13, std::generic_category()}), "Permission denied");
    // One that others do not have is said by the system, on one line.
    EXPECT_NE(message(1314), "");
    EXPECT_EQ(message(1314).find_first_of("\r\n"), std::string::npos);
}

}
}
