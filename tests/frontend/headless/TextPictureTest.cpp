#include "frontend/headless/TextPicture.h"

#include <gtest/gtest.h>

namespace {

using headless::FormatTextPicture;
using headless::TextPicture;
using panel::Alignment;

TEST(TextPictureTest, FieldsStandBesideTheWidestLabel) {
    TextPicture picture;
    picture.title = "KRX-20 Info";
    picture.fields = {{"S/N", "00-00-5E-00-53-14"}, {"HW", "1.2"}, {"Self-test Status", "TEST OK"}};
    EXPECT_EQ(FormatTextPicture(picture), "KRX-20 Info\n"
                                          "S/N               00-00-5E-00-53-14\n"
                                          "HW                1.2\n"
                                          "Self-test Status  TEST OK\n");
}

TEST(TextPictureTest, EmptyFieldPrintsItsLabelWithoutBlanksBehind) {
    TextPicture picture;
    picture.fields = {{"FPGA", ""}, {"HW", "1.2"}};
    EXPECT_EQ(FormatTextPicture(picture), "FPGA\n"
                                          "HW    1.2\n");
}

TEST(TextPictureTest, ColumnsAreAlignedBelowTheirHeadings) {
    TextPicture picture;
    picture.listTitle = "Flash Box Files";
    picture.columns = {{"File name"}, {"File ID", Alignment::Right}, {"Location"}};
    picture.rows = {{"boot.fia", "7", "Flash"}, {"a-longer-name.fia", "70000", ""}};
    EXPECT_EQ(FormatTextPicture(picture), "Flash Box Files\n"
                                          "File name          File ID  Location\n"
                                          "boot.fia                 7  Flash\n"
                                          "a-longer-name.fia    70000\n");
}

TEST(TextPictureTest, EmptyListPrintsItsHeadings) {
    TextPicture picture;
    picture.columns = {{"File name"}, {"Type"}};
    EXPECT_EQ(FormatTextPicture(picture), "File name  Type\n");
}

TEST(TextPictureTest, WidthsCountCharactersNotBytes) {
    TextPicture picture;
    picture.columns = {{"Name"}, {"Type"}};
    picture.rows = {{"\xC3\xA4\xC3\xB6\xC3\xBC\xE2\x82\xAC!", "Algo"}, {"plain", "MCUSW"}};
    EXPECT_EQ(FormatTextPicture(picture), "Name   Type\n"
                                          "\xC3\xA4\xC3\xB6\xC3\xBC\xE2\x82\xAC!  Algo\n"
                                          "plain  MCUSW\n");
}

TEST(TextPictureTest, ControlCharactersAndInvalidBytesKeepTheirLine) {
    TextPicture picture;
    picture.fields = {{"HW", "a\r\nb\tc\x7F"
                             "d\xFF"}};
    EXPECT_EQ(FormatTextPicture(picture), "HW  a  b c d\xEF\xBF\xBD\n");
}

TEST(TextPictureTest, RowsMayBeShorterOrLongerThanTheColumns) {
    TextPicture picture;
    picture.columns = {{"A"}, {"B"}};
    picture.rows = {{"1"}, {"1", "2", "3"}, {}};
    EXPECT_EQ(FormatTextPicture(picture), "A  B\n"
                                          "1\n"
                                          "1  2\n"
                                          "\n");
}

TEST(TextPictureTest, PartsAreSeparatedByAnEmptyLine) {
    TextPicture picture;
    picture.fields = {{"HW", "1"}};
    picture.columns = {{"Name"}};
    picture.logTitle = "Progress Info";
    picture.logLines = {"Updating file listing...", "File listing updated"};
    EXPECT_EQ(FormatTextPicture(picture), "HW  1\n"
                                          "\n"
                                          "Name\n"
                                          "\n"
                                          "Progress Info\n"
                                          "Updating file listing...\n"
                                          "File listing updated\n");
}

TEST(TextPictureTest, NothingShownPrintsNothing) { EXPECT_EQ(FormatTextPicture({}), ""); }

}
