#include "simulator/Device.h"
#include "tests/simulator/Answers.h"
#include "tests/simulator/DeviceFolderFixture.h"

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

namespace simulator {
namespace {

namespace fs = std::filesystem;

/// Lets no file of this process grow beyond a size while it lives, as a disk that is full.
class CFullDisk {
public:
    explicit CFullDisk(rlim_t sizeBytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_limit), 0);
        const rlimit limit{sizeBytes, m_limit.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~CFullDisk() {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_limit), 0);
        std::signal(SIGXFSZ, m_handler);
    }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;

private:
    void (*const m_handler)(int);
    rlimit m_limit{};
};

/// A device that lives in its folder.
class FolderStoreTest : public DeviceFolderFixture {
protected:
    std::shared_ptr<CDevice> Open() {
        auto result = OpenDevice(m_folder.Path());
        if (const auto* error = std::get_if<DescriptionError>(&result)) {
            ADD_FAILURE() << error->Message();
            return nullptr;
        }
        return std::get<std::shared_ptr<CDevice>>(result);
    }
    static Outcome Rename(CDevice& device, const std::string& hardwareVersion) {
        auto next = device.State();
        next.hardwareVersion = hardwareVersion;
        return device.Change(next);
    }
    static Outcome Store(CDevice& device, StoredFile file, const std::string& bytes) {
        auto next = device.State();
        file.sizeBytes = static_cast<std::int32_t>(bytes.size());
        next.files.push_back(file);
        const NewContent content{next.files.size() - 1, bytes};
        return device.Change(next, &content);
    }
    std::string Content(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(m_folder.Path() / "files" / name).rdbuf();
        return text.str();
    }
    std::vector<std::string> StoredNames() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder.Path() / "files")) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    using NameList = std::vector<std::string>;
};

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

TEST_F(FolderStoreTest, FolderThatCannotBeWrittenLeavesTheDeviceAsItWas) {
    const auto device = Open();
    // In the way of the new description, also of a user who may write everywhere.
    fs::create_directory(m_folder.Path() / "device.json.new");
    const auto state = device->State();
    const auto failure = Store(*device, {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "cc");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->status, contract::Status::FromBits(0x8007001D));
    EXPECT_EQ(failure->description, "The device's folder \"" + m_folder.Path().string() +
                                        "\" cannot be written: Is a directory");
    EXPECT_EQ(device->State(), state);
    EXPECT_EQ(Open()->State(), state);
}

TEST_F(FolderStoreTest, DiskThatFillsUpLeavesTheDeviceAsItWas) {
    const auto device = Open();
    const auto state = device->State();
    const auto before = Snapshot();
    const auto failure = [&] {
        const CFullDisk disk(50000);
        return Store(*device, {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, std::string(100000, 'c'));
    }();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->status, contract::Status::FromBits(0x8007001D));
    EXPECT_EQ(failure->description, "The device's folder \"" + m_folder.Path().string() +
                                        "\" cannot be written: File too large");
    EXPECT_EQ(device->State(), state);
    EXPECT_EQ(Snapshot(), before);
    EXPECT_FALSE(Store(*device, {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "c"));
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
