#include "tests/simulator/FolderStoreFixture.h"

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

using FolderStoreFailureTest = FolderStoreFixture;

TEST_F(FolderStoreFailureTest, FolderThatCannotBeWrittenLeavesTheDeviceAsItWas) {
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

TEST_F(FolderStoreFailureTest, DiskThatFillsUpLeavesTheDeviceAsItWas) {
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

}
}
