#include "simulator/folder/DescriptionReader.h"

#include "simulator/folder/AddressText.h"
#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/KnobReader.h"
#include "simulator/folder/StoredFileReader.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>

namespace simulator {

namespace {

using contract::SelfTest;

SoftwareVersions ReadSoftware(const CDescriptionNode& node) {
    SoftwareVersions versions;
    node.ForEachMember([&](const std::string& key, const CDescriptionNode& member) {
        const auto* version =
            std::find_if(std::begin(kSoftwareVersions), std::end(kSoftwareVersions),
                         [&](const auto& entry) { return entry.first == key; });
        if (version == std::end(kSoftwareVersions)) {
            member.Refuse("is not a known key");
        }
        versions.*version->second = member.Text();
    });
    return versions;
}

std::map<SelfTest, std::int32_t> ReadSelfTests(const CDescriptionNode& node) {
    std::map<SelfTest, std::int32_t> results;
    node.ForEachMember([&](const std::string& key, const CDescriptionNode& member) {
        const auto* test = std::find_if(std::begin(kSelfTests), std::end(kSelfTests),
                                        [&](const auto& entry) { return entry.first == key; });
        if (test == std::end(kSelfTests)) {
            member.Refuse("is not a known self-test");
        }
        results[test->second] = member.NameOrNumber<std::int32_t>(kTestResults);
    });
    return results;
}

contract::AddressValue ReadAddress(const CDescriptionNode& node) {
    const auto text = node.Text();
    const auto address = ParseAddress(text);
    if (!address && !text.empty()) {
        node.Refuse("must be an IPv4 address such as \"192.168.0.1\", or empty");
    }
    return address.value_or(0);
}

contract::AddressValue ReadOptionalAddress(const CDescriptionNode& node, const char* key) {
    const auto member = node.OptionalMember(key);
    return member ? ReadAddress(*member) : 0;
}

NetworkSettings ReadNetwork(const CDescriptionNode& node) {
    node.ExpectKeys({"ipAddress", "subnetMask", "gateway", "useDhcp", "description", "macAddress"});
    NetworkSettings settings;
    settings.useDhcp = node.Member("useDhcp").Flag();
    settings.ipAddress = node.OptionalText("ipAddress");
    settings.ipAddressValue = ReadOptionalAddress(node, "ipAddress");
    if (settings.useDhcp) {
        settings.ipAddressValue = contract::kAddressByDhcp;
    }
    settings.subnetMask = ReadOptionalAddress(node, "subnetMask");
    settings.gateway = ReadOptionalAddress(node, "gateway");
    settings.description = node.OptionalText("description");
    settings.macAddress = node.OptionalText("macAddress");
    return settings;
}

PcCard ReadPcCard(const CDescriptionNode& node) {
    node.ExpectKeys({"totalBytes"});
    return {node.Member("totalBytes").WholeNumberOf<std::uint32_t>()};
}

void ReadIdentity(const CDescriptionNode& root, DeviceDescription& description) {
    description.type = root.Member("model").NameOrNumber<std::int32_t>(kModels);
    description.mode = root.Member("mode").NameOrNumber<std::int32_t>(kModes);
    description.serialNumber = root.Member("serialNumber").WholeNumberOf<std::int32_t>();
    description.hardwareVersion = root.OptionalText("hardwareVersion");
    const auto memory = root.Member("memory");
    memory.ExpectKeys({"ramBytes", "flashBytes"});
    description.totalRamBytes = memory.Member("ramBytes").WholeNumberOf<std::uint32_t>();
    description.totalFlashBytes = memory.Member("flashBytes").WholeNumberOf<std::uint32_t>();
}

}

DeviceDescription ReadDescription(const CDescriptionNode& root,
                                  const std::filesystem::path& folder) {
    root.ExpectKeys({"model", "mode", "serialNumber", "hardwareVersion", "memory", "software",
                     "selfTests", "network", "pcCard", "files", "faults", "latency", "loss"});
    DeviceDescription description;
    ReadIdentity(root, description);
    if (const auto software = root.OptionalMember("software")) {
        description.software = ReadSoftware(*software);
    }
    if (const auto selfTests = root.OptionalMember("selfTests")) {
        description.selfTests = ReadSelfTests(*selfTests);
    }
    if (const auto network = root.OptionalMember("network")) {
        description.network = ReadNetwork(*network);
    }
    if (const auto pcCard = root.OptionalMember("pcCard")) {
        description.pcCard = ReadPcCard(*pcCard);
    }
    ReadKnobs(root, description);
    description.files = ReadStoredFiles(root.Member("files"), folder);
    return description;
}

}
