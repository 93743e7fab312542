#include "panel/files/MenuContents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace panel {
namespace {

using testing::ElementsAre;

constexpr SelectionSummary kNothing{0, 0, 0, 0};
constexpr SelectionSummary kNothingOfFive{0, 5, 0, 0};

SelectionSummary Selected(std::int32_t type, std::int32_t location, int count = 1) {
    return {count, 5, type, location};
}

/// The commands, 0 for separators.
std::vector<int> Menu(DeviceType type, DeviceMode mode, const SelectionSummary& selection,
                      bool hasCard = false) {
    std::vector<int> commands;
    for (const MenuItem& item : FileMenu({type, mode, selection, hasCard})) {
        commands.push_back(item.command);
    }
    return commands;
}

TEST(MenuContentsTest, ItemsCarryTheirTexts) {
    std::map<int, std::string> texts;
    const auto collect = [&](DeviceType type, const SelectionSummary& selection) {
        for (const MenuItem& item : FileMenu({type, DeviceMode::Normal, selection, true})) {
            texts[item.command] = item.text;
        }
    };
    collect(DeviceType::Krx8, Selected(22, 1));
    collect(DeviceType::Krx10, Selected(22, 1));
    collect(DeviceType::Krx21, Selected(22, 1));
    EXPECT_EQ(texts, (std::map<int, std::string>{{0, ""},
                                                 {1, "Upload Phone Code file"},
                                                 {2, "Delete Phone Code file(s)        Delete"},
                                                 {3, "Move file to Flash"},
                                                 {4, "Move file to external storage"},
                                                 {5, "FPGA code upload"},
                                                 {6, "Application code upload"},
                                                 {7, "Application code upload via RS-232"},
                                                 {8, "Update KRX-10 software"},
                                                 {9, "Update KRX-20 software"},
                                                 {10, "Select &All"}}));
}

TEST(MenuContentsTest, Krx10InServiceModeWithEmptyListOffersItsImageAlone) {
    EXPECT_THAT(Menu(DeviceType::Krx10, DeviceMode::Service, kNothing), ElementsAre(8));
}

TEST(MenuContentsTest, PhoneFilesAreForNormalModeOrTheKrx8Family) {
    EXPECT_THAT(Menu(DeviceType::Krx8, DeviceMode::Service, kNothing), ElementsAre(1, 0, 5, 6, 7));
    EXPECT_THAT(Menu(DeviceType::Krx8C, DeviceMode::NotYetKnown, kNothing),
                ElementsAre(1, 0, 5, 6, 7));
    EXPECT_THAT(Menu(DeviceType::Krx20, DeviceMode::Service, kNothing), ElementsAre(9));
    EXPECT_THAT(Menu(DeviceType::Krx20, DeviceMode::Normal, kNothing), ElementsAre(1, 0, 9));
    EXPECT_THAT(Menu(DeviceType::Krx21, DeviceMode::Maintenance, kNothing), ElementsAre(9));
}

TEST(MenuContentsTest, Krx8MovesMcuSoftwareOutOfRamOnly) {
    EXPECT_THAT(Menu(DeviceType::Krx8, DeviceMode::Normal, Selected(22, 1)),
                ElementsAre(1, 2, 0, 3, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx8C, DeviceMode::Service, Selected(22, 1, 2), true),
                ElementsAre(1, 2, 0, 3, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx8, DeviceMode::Normal, Selected(22, 2), true),
                ElementsAre(1, 2, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx8C, DeviceMode::Normal, Selected(21, 1), true),
                ElementsAre(1, 2, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx8, DeviceMode::Normal, Selected(0, 1, 2), true),
                ElementsAre(1, 2, 0, 5, 6, 7, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx8, DeviceMode::Normal, Selected(22, 0, 2), true),
                ElementsAre(1, 2, 0, 5, 6, 7, 0, 10));
}

TEST(MenuContentsTest, OthersMoveByLocationAndCard) {
    const auto krx20 = [](const SelectionSummary& selection, bool hasCard) {
        return Menu(DeviceType::Krx20, DeviceMode::Normal, selection, hasCard);
    };
    EXPECT_THAT(krx20(Selected(19, 1), false), ElementsAre(1, 2, 0, 3, 0, 9, 0, 10));
    EXPECT_THAT(krx20(Selected(19, 1), true), ElementsAre(1, 2, 0, 3, 4, 0, 9, 0, 10));
    EXPECT_THAT(krx20(Selected(0, 2, 2), true), ElementsAre(1, 2, 0, 4, 0, 9, 0, 10));
    EXPECT_THAT(krx20(Selected(0, 2, 2), false), ElementsAre(1, 2, 0, 9, 0, 10));
    EXPECT_THAT(krx20(Selected(22, 3), false), ElementsAre(1, 2, 0, 3, 0, 9, 0, 10));
    EXPECT_THAT(krx20(Selected(22, 3), true), ElementsAre(1, 2, 0, 3, 0, 9, 0, 10));
}

TEST(MenuContentsTest, MixedOrUnknownLocationsOfferNoMove) {
    EXPECT_THAT(Menu(DeviceType::Krx20, DeviceMode::Normal, Selected(22, 0, 2), true),
                ElementsAre(1, 2, 0, 9, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx20, DeviceMode::Normal, Selected(22, 7), true),
                ElementsAre(1, 2, 0, 9, 0, 10));
}

TEST(MenuContentsTest, EachModelOffersItsCode) {
    EXPECT_THAT(Menu(DeviceType::Krx10, DeviceMode::Normal, kNothingOfFive),
                ElementsAre(1, 0, 8, 0, 10));
    EXPECT_THAT(Menu(DeviceType::Krx21, DeviceMode::Normal, kNothingOfFive),
                ElementsAre(1, 0, 9, 0, 10));
}

TEST(MenuContentsTest, UnknownModelOffersNoCodeAndCanShowTwoSeparators) {
    const DeviceType unknown{9};
    EXPECT_THAT(Menu(unknown, DeviceMode::Normal, kNothingOfFive), ElementsAre(1, 0, 0, 10));
    EXPECT_THAT(Menu(unknown, DeviceMode::Service, kNothing), ElementsAre());
    EXPECT_THAT(Menu(unknown, DeviceMode::Service, kNothingOfFive), ElementsAre(10));
}

TEST(MenuContentsTest, CardMattersForSelectionsOutsideTheKrx8Family) {
    EXPECT_TRUE(DependsOnExternalStorage(DeviceType::Krx10, Selected(22, 3)));
    EXPECT_TRUE(DependsOnExternalStorage(DeviceType{9}, Selected(22, 0)));
    EXPECT_FALSE(DependsOnExternalStorage(DeviceType::Krx10, kNothingOfFive));
    EXPECT_FALSE(DependsOnExternalStorage(DeviceType::Krx8, Selected(22, 1)));
    EXPECT_FALSE(DependsOnExternalStorage(DeviceType::Krx8C, Selected(22, 1)));
}

}
}
