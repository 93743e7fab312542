#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

/// The example of docs/device-folder.md, opened as a reader would who copied it.
class FormatDocumentTest : public DeviceFolderFixture {
protected:
    static std::string Example() {
        std::ostringstream document;
        document << std::ifstream(KRX8_FORMAT_DOCUMENT).rdbuf();
        const auto text = document.str();
        const std::string opening = "```json\n";
        const auto begin = text.find(opening);
        const auto end = text.find("```", begin + opening.size());
        if (begin == std::string::npos || end == std::string::npos) {
            return "";
        }
        return text.substr(begin + opening.size(), end - begin - opening.size());
    }
};

TEST_F(FormatDocumentTest, ExampleIsAccepted) {
    m_folder.Write("files/version.fia", "12");
    m_folder.Write("files/fenwick-as-uploaded", "123");
    Describe(Example());
    const auto device = Read();
    EXPECT_EQ(device.serialNumber, 200013846);
    ASSERT_EQ(device.files.size(), 2u);
    EXPECT_EQ(device.files[1].sizeBytes, 3);
    EXPECT_EQ(device.faults.size(), 2u);
    EXPECT_EQ(device.latency.operationsMs.size(), 1u);
    ASSERT_TRUE(device.loss);
    EXPECT_EQ(device.loss->returnsAfterCalls, 20u);
}

}
}
