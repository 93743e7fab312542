#include "simulator/device/UpdateDescription.h"
#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

/// The examples of the documents, used as a reader would who copied them.
class FormatDocumentTest : public DeviceFolderFixture {
protected:
    static std::string Example(const std::string& name, const std::string& language) {
        std::ostringstream document;
        document << std::ifstream(std::string(KRX8_DOCUMENTS) + "/" + name).rdbuf();
        const auto text = document.str();
        const auto opening = "```" + language + "\n";
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
    Describe(Example("device-folder.md", "json"));
    const auto device = Read();
    EXPECT_EQ(device.serialNumber, 200013846);
    ASSERT_EQ(device.files.size(), 2u);
    EXPECT_EQ(device.files[1].sizeBytes, 3);
    EXPECT_EQ(device.faults.size(), 2u);
    EXPECT_EQ(device.latency.operationsMs.size(), 1u);
    ASSERT_TRUE(device.loss);
    EXPECT_EQ(device.loss->returnsAfterCalls, 20u);
}

TEST_F(FormatDocumentTest, UpdateExampleIsAccepted) {
    m_folder.Write("u.ini", Example("update-description.md", "ini"));
    const auto read = ReadUpdateDescription(m_folder.Path() / "u.ini", kKrx20);
    const auto* description = std::get_if<UpdateDescription>(&read);
    ASSERT_NE(description, nullptr) << std::get<Failure>(read).description;
    EXPECT_EQ(description->name, "KRX-20 software package");
    EXPECT_EQ(description->version, "5.2.0");
    ASSERT_EQ(description->entries.size(), 4u);
    EXPECT_EQ(description->entries[0].kind, UpdateEntry::Kind::Image);
    EXPECT_EQ(description->entries[1].path, "krx20/emmc_alg.fg");
    EXPECT_EQ(description->entries[1].destination, Destination::ExternalStorage);
    EXPECT_EQ(description->entries[3].path, "nor32_alg.fia");
}

}
}
