#include "tests/simulator/FolderStoreFixture.h"
#include "tests/simulator/win32/OpenFile.h"

#include <memory>
#include <thread>

namespace simulator {
namespace {

namespace fs = std::filesystem;

class FolderStoreFailureTest : public FolderStoreFixture {
protected:
    std::string CannotBeWritten(const std::string& reason) const {
        return "The device's folder \"" + m_folder.Path().string() +
               "\" cannot be written: " + reason;
    }
};

TEST_F(FolderStoreFailureTest, FolderThatCannotBeWrittenLeavesTheDeviceAsItWas) {
    const auto device = Open();
    fs::create_directory(m_folder.Path() / "device.json.new");
    const auto state = device->State();
    const auto failure = Store(*device, {"c.fia", 21, 3, "1", 0, kInFlash, 0, ""}, "cc");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->status, contract::Status::FromBits(0x8007001D));
    EXPECT_EQ(failure->description, CannotBeWritten("Permission denied"));
    EXPECT_EQ(device->State(), state);
    EXPECT_EQ(Open()->State(), state);
}

TEST_F(FolderStoreFailureTest, DescriptionThatStaysOpenLeavesTheDeviceAsItWas) {
    const auto device = Open();
    const auto before = Snapshot();
    const auto failure = [&] {
        const COpenFile reader(m_folder.Path() / "device.json", FILE_SHARE_READ);
        return Rename(*device, "X9");
    }();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->description, CannotBeWritten("Permission denied"));
    EXPECT_EQ(device->Description().hardwareVersion, "");
    EXPECT_EQ(Snapshot(), before);
    EXPECT_FALSE(Rename(*device, "X9"));
}

TEST_F(FolderStoreFailureTest, ChangeWaitsForAReaderThatIsDoneSoon) {
    const auto device = Open();
    auto reader = std::make_unique<COpenFile>(m_folder.Path() / "device.json", FILE_SHARE_READ);
    std::thread done([&] {
        // The writer has come as far as the file that is in its way.
        while (!fs::exists(m_folder.Path() / "device.json.new")) {
            std::this_thread::yield();
        }
        reader.reset();
    });
    EXPECT_FALSE(Rename(*device, "X9"));
    done.join();
    EXPECT_EQ(Read().hardwareVersion, "X9");
}

}
}
