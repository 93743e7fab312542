#include "panel/control/FileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace panel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileDialogTest, FilterTextGivesPairsOfDescriptionAndPattern) {
    EXPECT_THAT(SplitFilter("Ini files (*.ini)|*.ini|All files (*.*)|*.*|"),
                ElementsAre(FileFilter{"Ini files (*.ini)", "*.ini"},
                            FileFilter{"All files (*.*)", "*.*"}));
}

TEST(FileDialogTest, FilterTextWithoutItsLastBarGivesTheSamePairs) {
    EXPECT_THAT(SplitFilter("Images|*.bin"), ElementsAre(FileFilter{"Images", "*.bin"}));
}

TEST(FileDialogTest, FilterTextWithoutBarIsADescriptionWithoutPattern) {
    EXPECT_THAT(SplitFilter("Everything"), ElementsAre(FileFilter{"Everything", ""}));
}

TEST(FileDialogTest, FilterTextEndsAtAnEmptyPart) {
    EXPECT_THAT(SplitFilter("One|*.a||Two|*.b|"), ElementsAre(FileFilter{"One", "*.a"}));
    EXPECT_THAT(SplitFilter("One||Two|*.b|"), ElementsAre(FileFilter{"One", ""}));
    EXPECT_THAT(SplitFilter("|*.a|"), IsEmpty());
    EXPECT_THAT(SplitFilter(""), IsEmpty());
}

TEST(FileDialogTest, DefaultExtensionIsCutToThreeLetters) {
    EXPECT_EQ(WithDefaultExtension("/tmp/code", "Fpga files (*.bin)|*.bin|"), "/tmp/code.Fpg");
    EXPECT_EQ(WithDefaultExtension("code", "ini"), "code.ini");
    EXPECT_EQ(WithDefaultExtension("code", "c"), "code.c");
}

TEST(FileDialogTest, NameWithAnExtensionStaysAsItIs) {
    EXPECT_EQ(WithDefaultExtension("/tmp/code.bin", "txt"), "/tmp/code.bin");
    EXPECT_EQ(WithDefaultExtension("/tmp/code.", "txt"), "/tmp/code.");
    EXPECT_EQ(WithDefaultExtension("/tmp/code", ""), "/tmp/code");
    EXPECT_EQ(WithDefaultExtension("/tmp/", "txt"), "/tmp/");
    EXPECT_EQ(WithDefaultExtension("/tmp/code.b~1", "txt"), "/tmp/code.b~1");
}

TEST(FileDialogTest, DotInAFolderIsNoExtension) {
    EXPECT_EQ(WithDefaultExtension("/tmp/a.b/code", "txt"), "/tmp/a.b/code.txt");
    EXPECT_EQ(WithDefaultExtension("C:\\a.b\\code", "txt"), "C:\\a.b\\code.txt");
}

}
}
