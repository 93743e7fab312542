#include "frontend/help/HelpFile.h"
#include "panel/control/ControlKinds.h"
#include "panel/control/HelpTopics.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/StringTable.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "panel/netconf/KRX10ConfTemplate.h"
#include "panel/selftest/SelfTestTemplate.h"
#include "panel/update/SWUpdateInfoTemplate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

using help::FindTopic;
using help::HelpTopic;
using testing::HasSubstr;

std::string ReadFile(const char* path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// With one blank for each run of blanks and line ends: where a line breaks means nothing.
std::string Flow(const std::string& text) {
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

class HelpContentTest : public testing::Test {
protected:
    std::set<std::uint32_t> LinksOf(const HelpTopic& topic) const {
        std::set<std::uint32_t> links;
        const std::regex link("\\]\\(topic:([0-9]+)\\)");
        for (std::sregex_iterator found(topic.text.begin(), topic.text.end(), link), end;
             found != end; ++found) {
            links.insert(static_cast<std::uint32_t>(std::stoul((*found)[1])));
        }
        return links;
    }

    const std::string m_text = ReadFile(KRX8_HELP_FILE);
    const std::vector<HelpTopic> m_topics = help::ParseHelp(m_text);
    const std::string m_flow = Flow(m_text);
};

TEST_F(HelpContentTest, FileLiesBesideTheProgramThatOpensIt) {
    EXPECT_EQ(ReadFile(KRX8_HELP_BESIDE_COMPONENT), m_text);
}

TEST_F(HelpContentTest, EveryTopicHasItsOwnNumberAndSomethingToSay) {
    ASSERT_FALSE(m_topics.empty());
    std::set<std::uint32_t> numbers;
    for (const HelpTopic& topic : m_topics) {
        EXPECT_TRUE(numbers.insert(topic.number).second) << topic.number;
        EXPECT_NE(topic.number, 0u);
        EXPECT_GT(Flow(topic.text).size(), 20u) << topic.number;
    }
}

TEST_F(HelpContentTest, EveryLinkLeadsToATopic) {
    for (const HelpTopic& topic : m_topics) {
        for (const std::uint32_t link : LinksOf(topic)) {
            EXPECT_NE(FindTopic(m_topics, link), nullptr) << topic.number << " to " << link;
        }
    }
}

TEST_F(HelpContentTest, EveryTopicCanBeReachedFromTheFirstPage) {
    std::set<std::uint32_t> reached = {1};
    for (std::size_t before = 0; before != reached.size();) {
        before = reached.size();
        for (const HelpTopic& topic : m_topics) {
            if (reached.contains(topic.number)) {
                reached.merge(LinksOf(topic));
            }
        }
    }
    for (const HelpTopic& topic : m_topics) {
        EXPECT_TRUE(reached.contains(topic.number)) << topic.number << " " << topic.title;
    }
}

// A line that is meant as a heading of a topic but is none would be lost in the topic before it.
TEST_F(HelpContentTest, NoHeadingOfATopicIsMistyped) {
    for (const HelpTopic& topic : m_topics) {
        EXPECT_EQ(topic.text.rfind("# ", 0), std::string::npos) << topic.number;
        EXPECT_EQ(topic.text.find("\n# "), std::string::npos) << topic.number;
        EXPECT_EQ(topic.text.find("\n#0"), std::string::npos) << topic.number;
    }
}

class HelpOnDialogTest : public HelpContentTest,
                         public testing::WithParamInterface<const panel::DialogTemplate*> {};

TEST_P(HelpOnDialogTest, EveryControlThatCanHaveTheFocusHasATopic) {
    int asked = 0;
    for (const panel::ControlTemplate& control : GetParam()->controls) {
        if (panel::CanHaveFocus(control.kind)) {
            EXPECT_NE(FindTopic(m_topics, control.helpContext), nullptr) << control.id;
            // The first page belongs to the Help button's window as a whole.
            EXPECT_NE(control.helpContext, 1u) << control.id;
            ++asked;
        } else {
            EXPECT_EQ(control.helpContext, 0u) << control.id;
        }
    }
    EXPECT_GT(asked, 0);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, HelpOnDialogTest,
                         testing::Values(&panel::kPanelTemplate, &panel::kPhoneFileUploadTemplate,
                                         &panel::kSelfTestTemplate, &panel::kSWUpdateInfoTemplate,
                                         &panel::kKRX10ConfTemplate),
                         [](const auto& dialog) { return std::to_string(dialog.param->id); });

TEST_F(HelpContentTest, EveryTextOfTheStringTableIsMentioned) {
    // What file dialogs are told: no user reads these texts.
    const std::set<int> silent = {137, 138, 142, 143, 146, 159, 160, 176, 177, 200, 201};
    int mentioned = 0;
    for (int id = 100; id <= 204; ++id) {
        std::string text = panel::LoadPanelString(static_cast<panel::StringId>(id));
        // A mnemonic's mark is not seen.
        std::erase(text, '&');
        if (text.empty() || silent.contains(id)) {
            continue;
        }
        EXPECT_THAT(m_flow, HasSubstr(Flow(text))) << id;
        ++mentioned;
    }
    EXPECT_EQ(mentioned, 51);
}

TEST_F(HelpContentTest, EveryResultOfASelfTestIsExplained) {
    const HelpTopic* const list = FindTopic(m_topics, 236);
    ASSERT_NE(list, nullptr);
    for (const char* result :
         {"OK", "Failed", "Ignored", "Not run", "File missing", "File invalid",
          "Certificate missing", "Certificate invalid", "Authentication failed", "Flash not found",
          "Flash not usable", "Driver failed", "Public Key failed", "Media not found",
          "Media not supported", "Media not usable", "unknown result"}) {
        EXPECT_THAT(list->text, HasSubstr("\n| " + std::string(result) + " | "));
    }
}

class HelpOnMessageTest : public HelpContentTest,
                          public testing::WithParamInterface<const char*> {};

TEST_P(HelpOnMessageTest, MessageIsMentioned) { EXPECT_THAT(m_flow, HasSubstr(GetParam())); }

INSTANTIATE_TEST_SUITE_P(
    DeviceAndConnection, HelpOnMessageTest,
    testing::Values(
        "Connecting to KxProgrammingDevice subsystem failed", "SetSubsystemAccess",
        "Failed to read the Programming Device hardware info",
        "Failed to read the Programming Device type", "Wrong prommer type detected.",
        "Programming Device Mode query failed", "IProductInformation instance retrieving failed",
        "IProductDetection getting failed", "Query of IProductDetectionControl interface failed",
        "Product Communication state getting failed", "Disabling of product polling failed",
        "Enabling of product polling failed", "Product Detection disabler initializing",
        "Disabling Product Detection", "Enabling Product Detection"));

INSTANTIATE_TEST_SUITE_P(
    Information, HelpOnMessageTest,
    testing::Values("Software Info request failed", "Hardware Info request failed",
                    "Boot SW version query failed", "Application SW version query failed",
                    "FPGA Code version query failed", "Hardware version query failed",
                    "Total RAM size query failed", "Total Flash size query failed",
                    "Serial Number query failed", "Update Free memory",
                    "Free resources query failed", "Free RAM size query failed",
                    "Free Flash size query failed", "Krx10Control feature get failed",
                    "KRX-10 Communication configuration query failed",
                    "IKrx10CommunicationConfiguration2 interface query failed",
                    "IP address query failed", "Querying of IP address as a 32-bit integer failed",
                    "Subnet mask getting failed", "Gateway address getting failed",
                    "DHCP use getting failed", "KRX-10 description query failed",
                    "MAC address query failed"));

INSTANTIATE_TEST_SUITE_P(Report, HelpOnMessageTest,
                         testing::Values("Security Software version retrieving failed",
                                         "FPGA driver version retrieving failed",
                                         "MMCR driver version retrieving failed",
                                         "USB Device Function driver version retrieving failed",
                                         "USB Host Controller driver version retrieving failed",
                                         "ZTWCDC driver version retrieving failed",
                                         "IKrx20SwInfo instance query failed",
                                         "Type Info retrieving failed",
                                         "Boot Loader version retrieving failed",
                                         "Service Mode FPGA code version retrieving failed"));

INSTANTIATE_TEST_SUITE_P(
    Files, HelpOnMessageTest,
    testing::Values(
        "File listing query failed", "Cannot get the count of files",
        "Cannot get info about a file", "Cannot get name of the file",
        "Cannot get type of the file", "Cannot get ID of the file",
        "Cannot get version of the file", "Cannot get size of the file", "Cannot get file location",
        "Cannot get generation of the file", "Method not selected", "Destination not selected",
        "Upload method retrieving failed", "Destination retrieving failed",
        "GetOpenFileName() failed, error code ", "Popup menu creation failed",
        "Are you sure you want to delete '", "Are you sure you want to delete these ",
        "Are you sure you want do delete ALL these files?", "Cannot delete MCUSW file with ID ",
        "Cannot delete Algorithm Code file with ID ",
        "Cannot delete Secondary Boot Code file with ID ", "Phone file to be uploaded"));

INSTANTIATE_TEST_SUITE_P(
    FrontEndsAndWorkstation, HelpOnMessageTest,
    testing::Values(
        "### The folder was not found. ",
        "### The path is too long. Choose a shorter name, or a folder with a shorter path. ",
        "### File not found. Please verify the correct file name was given. ",
        "### The help file was not found. It was looked for here: ",
        "### There is no page NUMBER in this help. ", "### Connect ", "### Show Details... ",
        "| NAME (gone) |", "| NAME connected |", "| NAME does not answer |",
        "| No device connected |", "| Phone polling: on |", "| Phone polling: suspended |"));

INSTANTIATE_TEST_SUITE_P(
    StatusLog, HelpOnMessageTest,
    testing::Values("Programming Device is in Normal mode", "Programming Device is in Service mode",
                    "Programming Device is in Maintenance mode",
                    "Programming Device is in Unknown mode", "Querying self-tests results",
                    "Querying hardware and software info from Programming Device",
                    "Querying free memory resources", "Updating file listing...",
                    "File listing updated",
                    "Currently installed Flash Update Package in Programming Device is: "));

INSTANTIATE_TEST_SUITE_P(Dialogs, HelpOnMessageTest,
                         testing::Values("Startup Self-test statuses",
                                         "Programming Device's SW Update",
                                         "Would you like to update the Programming Device now?",
                                         "Flash Update Version", "Device's SW Version",
                                         "Self-test results", "HRESULT 0x80004005 (-2147467259)"));

}
