#include "panel/control/PanelTemplate.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace panel {
namespace {

const ControlTemplate& Control(ControlId id) {
    for (const ControlTemplate& control : kPanelTemplate.controls) {
        if (control.id == id) {
            return control;
        }
    }
    throw std::out_of_range("no control " + std::to_string(id));
}

struct Row {
    ControlId id;
    ControlKind kind;
    const char* text;
    Rectangle rectangle;
    InitialState state;
};

class PanelTemplateRowTest : public testing::TestWithParam<Row> {};

TEST_P(PanelTemplateRowTest, ControlStandsAsDesigned) {
    const ControlTemplate& control = Control(GetParam().id);
    EXPECT_EQ(control.kind, GetParam().kind);
    EXPECT_STREQ(control.text, GetParam().text);
    EXPECT_EQ(control.rectangle, GetParam().rectangle);
    EXPECT_EQ(control.state, GetParam().state);
}

using enum ControlKind;
using enum InitialState;

INSTANTIATE_TEST_SUITE_P(
    Controls, PanelTemplateRowTest,
    testing::Values(Row{201, GroupBox, "KRX-8 Info", {7, 7, 129, 190}, Enabled},
                    Row{223, GroupBox, "Flash Box Files", {143, 7, 300, 190}, Enabled},
                    Row{224, MultiSelectList, "", {152, 18, 284, 172}, Disabled},
                    Row{234, GroupBox, "Progress Info", {7, 200, 436, 67}, Enabled},
                    Row{253, ProgressBar, "", {14, 212, 422, 12}, Hidden},
                    Row{254, CentredLabel, "Task (%)", {14, 228, 421, 8}, Hidden},
                    Row{259, Log, "", {15, 215, 421, 48}, Enabled},
                    Row{226, Button, "&Update", {7, 273, 40, 14}, Disabled},
                    Row{227, Button, "&Delete", {51, 273, 40, 14}, Disabled},
                    Row{228, Button, "&Report", {95, 273, 40, 14}, Disabled},
                    Row{229, Button, "Re&set", {139, 273, 40, 14}, Disabled},
                    Row{222, Button, "D&etails", {271, 273, 40, 14}, Disabled},
                    Row{246, Button, "&KRX10 Conf", {315, 273, 40, 14}, Disabled},
                    Row{230, Button, "&Close", {359, 273, 40, 14}, Enabled},
                    Row{9, Button, "&Help", {403, 273, 40, 14}, Enabled}));

TEST(PanelTemplateTest, DialogHasItsIdAndSizeAndNoCaption) {
    EXPECT_EQ(kPanelTemplate.id, 103);
    EXPECT_STREQ(kPanelTemplate.title, "");
    EXPECT_EQ(kPanelTemplate.size, (Size{450, 294}));
}

TEST(PanelTemplateTest, LabelsStandTopToBottomBesideTheirFields) {
    struct Pair {
        ControlId label;
        const char* text;
        ControlId field;
        ControlKind kind;
    };
    const std::vector<Pair> pairs = {{202, "S/N", 211, TextField},
                                     {203, "HW", 212, TextField},
                                     {204, "Flash Size (B)", 213, NumberField},
                                     {205, "Free Flash (B)", 214, NumberField},
                                     {206, "SRAM Size (B)", 215, NumberField},
                                     {207, "Free SRAM (B)", 216, NumberField},
                                     {208, "Boot SW", 217, TextField},
                                     {209, "FPGA", 218, TextField},
                                     {210, "Application SW", 219, TextField},
                                     {220, "Self-test Status", 221, TextField},
                                     {245, "IP address", 244, TextField}};
    int lastTop = 7;
    for (const Pair& pair : pairs) {
        const ControlTemplate& label = Control(pair.label);
        const ControlTemplate& field = Control(pair.field);
        EXPECT_STREQ(label.text, pair.text);
        EXPECT_EQ(label.kind, Label);
        EXPECT_STREQ(field.text, "");
        EXPECT_EQ(field.kind, pair.kind);
        EXPECT_EQ(label.state, Enabled);
        EXPECT_EQ(label.rectangle.x, 14);
        EXPECT_EQ(field.rectangle, (Rectangle{69, field.rectangle.y, 60, 12}));
        EXPECT_LE(label.rectangle.Right(), field.rectangle.x);
        EXPECT_LT(std::abs(2 * label.rectangle.y + label.rectangle.height - 2 * field.rectangle.y -
                           field.rectangle.height),
                  3);
        EXPECT_GT(field.rectangle.y, lastTop);
        EXPECT_LT(field.rectangle.Bottom(), 7 + 190);
        EXPECT_EQ(field.state, Enabled);
        lastTop = field.rectangle.y;
    }
}

TEST(PanelTemplateTest, IdsAreUnique) {
    std::set<ControlId> ids;
    for (const ControlTemplate& control : kPanelTemplate.controls) {
        EXPECT_TRUE(ids.insert(control.id).second) << control.id;
    }
    EXPECT_EQ(ids.size(), 37u);
}

TEST(PanelTemplateTest, MnemonicsAreUnique) {
    std::set<char> mnemonics;
    for (const ControlTemplate& control : kPanelTemplate.controls) {
        const std::string text = control.text;
        const auto mark = text.find('&');
        if (mark != std::string::npos) {
            EXPECT_TRUE(mnemonics.insert(static_cast<char>(std::tolower(text.at(mark + 1)))).second)
                << text;
        }
    }
    EXPECT_EQ(mnemonics.size(), 8u);
}

TEST(PanelTemplateTest, EveryControlLiesWithinTheDialog) {
    for (const ControlTemplate& control : kPanelTemplate.controls) {
        EXPECT_GE(control.rectangle.x, 7) << control.id;
        EXPECT_GE(control.rectangle.y, 7) << control.id;
        EXPECT_LE(control.rectangle.Right(), 443) << control.id;
        EXPECT_LE(control.rectangle.Bottom(), 287) << control.id;
    }
}

}
}
