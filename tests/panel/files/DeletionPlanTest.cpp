#include "panel/files/DeletionPlan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace panel {
namespace {

using Deletions = std::vector<std::pair<std::int32_t, std::int32_t>>;

Deletions Plan(const std::vector<FileRowKey>& keys) {
    Deletions deletions;
    for (const DeletionGroup& group : PlanDeletion(keys)) {
        for (const std::int32_t id : group.ids) {
            deletions.emplace_back(group.type, id);
        }
    }
    return deletions;
}

TEST(DeletionPlanTest, TypesComeInTheirOrderAndIdentifiersAscend) {
    EXPECT_EQ(Plan({MakeFileRowKey(19, 2, 5), MakeFileRowKey(22, 2, 9), MakeFileRowKey(21, 2, 3),
                    MakeFileRowKey(22, 2, 2)}),
              (Deletions{{22, 2}, {22, 9}, {21, 3}, {19, 5}}));
}

TEST(DeletionPlanTest, OtherTypesAreLeftAlone) {
    EXPECT_EQ(Plan({MakeFileRowKey(20, 2, 5), MakeFileRowKey(0, 2, 1), MakeFileRowKey(19, 1, 4)}),
              (Deletions{{19, 4}}));
    EXPECT_EQ(Plan({}), Deletions{});
}

TEST(DeletionPlanTest, IdentifiersAreTakenAsUnsignedSixteenBits) {
    EXPECT_EQ(Plan({MakeFileRowKey(21, 2, 70000), MakeFileRowKey(21, 2, -1),
                    MakeFileRowKey(21, 2, 4464)}),
              (Deletions{{21, 4464}, {21, 4464}, {21, 65535}}));
}

TEST(DeletionPlanTest, AllOfSeveralIsADeletionOfAll) {
    EXPECT_TRUE(IsDeletionOfAll(5, 5));
    EXPECT_TRUE(IsDeletionOfAll(2, 2));
    EXPECT_FALSE(IsDeletionOfAll(1, 1));
    EXPECT_FALSE(IsDeletionOfAll(4, 5));
}

TEST(DeletionPlanTest, QuestionFitsTheSelection) {
    EXPECT_EQ(DeletionQuestion(5, 5, "a.fia"), "Are you sure you want do delete ALL these files?");
    EXPECT_EQ(DeletionQuestion(1, 1, "a.fia"), "Are you sure you want to delete 'a.fia'?");
    EXPECT_EQ(DeletionQuestion(1, 5, "a.fia"), "Are you sure you want to delete 'a.fia'?");
    EXPECT_EQ(DeletionQuestion(1, 5, ""), "Are you sure you want to delete ''?");
    EXPECT_EQ(DeletionQuestion(3, 5, "a.fia"), "Are you sure you want to delete these 3 files?");
}

TEST(DeletionPlanTest, QuestionIsCutTo199Units) {
    const std::string longName(260, 'n');
    const std::string question = DeletionQuestion(1, 5, longName);
    EXPECT_EQ(question.size(), 199u);
    EXPECT_EQ(question, "Are you sure you want to delete '" + std::string(166, 'n'));
}

}
}
