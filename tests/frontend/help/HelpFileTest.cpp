#include "frontend/help/HelpFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace help {

bool operator==(const HelpTopic& a, const HelpTopic& b) {
    return a.number == b.number && a.title == b.title && a.text == b.text;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(HelpFileTest, TopicReachesToTheNextOne) {
    EXPECT_THAT(ParseHelp("# 1 First page\n\nText.\n\n## Part\n\nMore.\n# 226 Update\nOther."),
                ElementsAre(HelpTopic{1, "First page", "\nText.\n\n## Part\n\nMore.\n"},
                            HelpTopic{226, "Update", "Other.\n"}));
}

TEST(HelpFileTest, TextBeforeTheFirstTopicBelongsToNone) {
    EXPECT_THAT(ParseHelp("Preface\n\n# 1 A\nText\n"), ElementsAre(HelpTopic{1, "A", "Text\n"}));
}

TEST(HelpFileTest, HeadingsOfOtherShapesAreText) {
    const std::string lines = "#2 A\n# A\n# \n# 2\n# 2 \n# 2A\n# -2 A\n# 4294967296 A\n 2 A\n";
    EXPECT_THAT(ParseHelp("# 4294967295 Last\n" + lines),
                ElementsAre(HelpTopic{4294967295u, "Last", lines}));
}

TEST(HelpFileTest, LinesMayEndInCrLf) {
    EXPECT_THAT(ParseHelp("# 1 A\r\nText\r\n"), ElementsAre(HelpTopic{1, "A", "Text\n"}));
}

TEST(HelpFileTest, EmptyFileHasNoTopics) { EXPECT_THAT(ParseHelp(""), IsEmpty()); }

TEST(HelpFileTest, FindTopicGivesTheFirstOfThatNumber) {
    const std::vector<HelpTopic> topics = {{7, "A", ""}, {9, "B", ""}, {9, "C", ""}};
    EXPECT_EQ(FindTopic(topics, 9), &topics[1]);
    EXPECT_EQ(FindTopic(topics, 8), nullptr);
}

}
}
