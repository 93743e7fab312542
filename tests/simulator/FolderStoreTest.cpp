#include "tests/simulator/FolderStoreFixture.h"

namespace simulator {
namespace {

namespace fs = std::filesystem;

using FolderStoreTest = FolderStoreFixture;

TEST_F(FolderStoreTest, ChangeIsThereAfterOpeningAgain) {
    const auto device = Open();
    EXPECT_FALSE(Rename(*device, "X9"));
    EXPECT_EQ(Open()->State(), device->State());
    EXPECT_EQ(Read().hardwareVersion, "X9");
}

TEST_F(FolderStoreTest, ChangeThatChangesNothingWritesNothing) {
    const auto before = Snapshot();
    const auto device = Open();
    EXPECT_FALSE(device->Change(device->State()));
    EXPECT_EQ(Snapshot(), before);
}

TEST_F(FolderStoreTest, NewFileIsStoredUnderItsName) {
    EXPECT_FALSE(Store(*Open(), {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "cc"));
    EXPECT_EQ(Content("c.fia"), "cc");
    EXPECT_EQ(Read().files[2].content, "c.fia");
    EXPECT_EQ(Read().files[2].sizeBytes, 2);
}

TEST_F(FolderStoreTest, ReplacedBytesGetAnotherNameAndTheOldOnesGo) {
    const auto device = Open();
    auto next = device->State();
    next.files[0].sizeBytes = 4;
    const NewContent content{0, "AAAA"};
    EXPECT_FALSE(device->Change(next, &content));
    EXPECT_EQ(StoredNames(), (NameList{"a.fia~2", "second"}));
    EXPECT_EQ(Content("a.fia~2"), "AAAA");
    EXPECT_EQ(Open()->State(), device->State());
}

TEST_F(FolderStoreTest, NameThatIsNoFileNameIsStoredUnderAnother) {
    for (const auto& name : {std::string("a/b"), std::string(".."), std::string(256, 'n')}) {
        const auto device = Open();
        EXPECT_FALSE(Store(*device, {name, 21, 99, "1", 0, kInFlash, 0, ""}, "x"));
        EXPECT_EQ(Open()->State(), device->State());
        EXPECT_EQ(Read().files[2].content, "content");
        EXPECT_FALSE(device->Change([&] {
            auto next = device->State();
            next.files.pop_back();
            return next;
        }()));
    }
}

TEST_F(FolderStoreTest, DeletedFileLosesItsBytes) {
    const auto device = Open();
    auto next = device->State();
    next.files.clear();
    EXPECT_FALSE(device->Change(next));
    EXPECT_EQ(StoredNames(), NameList{});
}

TEST_F(FolderStoreTest, OrphansAreIgnoredAndGoWithTheNextChange) {
    m_folder.Write("files/orphan", "half");
    m_folder.Write("files/sub/kept", "x");
    m_folder.Write("device.json.new", "{ half");
    m_folder.Write("content.new", "half");
    const auto device = Open();
    EXPECT_EQ(StoredNames(), (NameList{"a.fia", "orphan", "second", "sub"}));
    EXPECT_FALSE(Store(*device, {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "cc"));
    EXPECT_EQ(StoredNames(), (NameList{"a.fia", "c.fia", "second", "sub"}));
    EXPECT_FALSE(fs::exists(m_folder.Path() / "device.json.new"));
    EXPECT_FALSE(fs::exists(m_folder.Path() / "content.new"));
}

TEST_F(FolderStoreTest, FolderWithoutFilesFolderGetsOne) {
    Describe(Replaced(kGoodDescription,
                      R"({ "name": "a.fia", "type": "algorithm", "id": 1, "location": "RAM" },
    { "name": "b.fia", "type": 22, "id": 2, "location": 7, "content": "second" })",
                      ""));
    fs::remove_all(m_folder.Path() / "files");
    EXPECT_FALSE(Store(*Open(), {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "cc"));
    EXPECT_EQ(Content("c.fia"), "cc");
}

TEST_F(FolderStoreTest, ChangeAfterAnotherProgramsIsRefused) {
    const auto device = Open();
    EXPECT_FALSE(Rename(*Open(), "theirs"));
    const auto before = Snapshot();
    const auto failure = Rename(*device, "ours");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->status, contract::Status::FromBits(0x8007051A));
    EXPECT_EQ(failure->description, "The device's folder \"" + m_folder.Path().string() +
                                        "\" was changed by another program; connect the device "
                                        "again");
    EXPECT_EQ(device->Description().hardwareVersion, "");
    EXPECT_EQ(Snapshot(), before);
}

TEST_F(FolderStoreTest, FolderThatIsGoneLeavesTheDeviceAsItWas) {
    const auto device = Open();
    const auto state = device->State();
    fs::remove_all(m_folder.Path());
    const auto failure = Rename(*device, "x");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->status, contract::Status::FromBits(0x8007001D));
    EXPECT_EQ(device->State(), state);
}

TEST_F(FolderStoreTest, ModeRequestedIsTheModeAfterOpeningAgain) {
    Describe(Replaced(kGoodDescription, "\"Normal\"", "\"Service\""));
    EXPECT_EQ(Open()->RequestMode(contract::ModeRequest::Normal), contract::kSuccess);
    EXPECT_EQ(Open()->Mode(), 1);
}

TEST_F(FolderStoreTest, ResetThatChangesNothingNeedsNoFolder) {
    const auto device = Open();
    fs::remove_all(m_folder.Path());
    EXPECT_EQ(device->RequestMode(contract::ModeRequest::Reset), contract::kSuccess);
}

TEST_F(FolderStoreTest, ResetThatCannotBeStoredFailsAndTheDeviceAnswersAgain) {
    Describe(Replaced(kGoodDescription, "\"Normal\"", "\"Maintenance\""));
    const auto device = Open();
    fs::remove_all(m_folder.Path());
    ExpectFailure(device->RequestMode(contract::ModeRequest::Reset), 0x8007001D,
                  "The device's folder \"" + m_folder.Path().string() +
                      "\" cannot be written: No such file or directory");
    EXPECT_EQ(device->Mode(), 3);
}

TEST_F(FolderStoreTest, ModeThatIsOnlyEnteredIsForgotten) {
    Open()->EnterMode(kMaintenanceMode);
    EXPECT_EQ(Open()->Mode(), 1);
}

}
}
