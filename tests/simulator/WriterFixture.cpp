#include "tests/simulator/WriterFixture.h"

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "simulator/folder/AddressText.h"

#include <iterator>

namespace simulator {

namespace {

using contract::Medium;
using contract::ModeRequest;
using contract::Status;

constexpr int kGenerations = 4;

constexpr std::int32_t kSecondaryBootId = 10;
constexpr std::int32_t kAlgorithmId = 20;
constexpr std::int32_t kMcuSoftwareId = 30;

constexpr std::int32_t kToRam = 1;
constexpr std::int32_t kToFlash = 2;
constexpr std::int32_t kToCard = 3;
constexpr std::int32_t kForce = 1;

constexpr auto kDeviceDescription = R"({
  "model": "KRX-20",
  "mode": "Normal",
  "serialNumber": 42,
  "memory": { "ramBytes": 1000000, "flashBytes": 1000000 },
  "pcCard": { "totalBytes": 1000000 },
  "software": { "application": "0.9", "boot": "0.9", "fpgaCode": "0.9" },
  "selfTests": { "applicationSw": "ok", "ztwcdcDriver": "ok", "mmcrDriver": "ok" },
  "network": { "useDhcp": true, "ipAddress": "192.0.2.20", "macAddress": "00-00-5E-00-53-20" },
  "files": []
}
)";

constexpr auto kPackage = R"([package]
version = 5.2.0
[common]
image = software.krx20
file = one_2nd.fia
file = two_alg.fia, PCCard
file = four_alg.fg
)";

/// Each generation of a file is of one letter and one length, so that a mixture would show.
std::string Bytes(const std::string& head, int generation) {
    return head + std::string(20000 + 3000 * static_cast<std::size_t>(generation),
                              static_cast<char>('a' + generation));
}

std::string PhoneFile(const std::string& name, int generation, std::int32_t id) {
    return Bytes(name + " 1." + std::to_string(generation) + " id=" + std::to_string(id) + "\n",
                 generation);
}

std::string Image(int generation) {
    const auto number = std::to_string(generation);
    return Bytes("version: 3." + number + "\nfpga: 2." + number + "\nboot: 1." + number + "\n",
                 generation);
}

}

const WriterFixture::Step WriterFixture::kSteps[] = {
    {"upload to flash", [](auto& self) { return self.StoreFile(0, "one_2nd.fia", kToFlash); }},
    {"upload to the card", [](auto& self) { return self.StoreFile(0, "two_alg.fia", kToCard); }},
    {"upload to RAM", [](auto& self) { return self.StoreFile(0, "three_mcu.fia", kToRam); }},
    {"upload over a file", [](auto& self) { return self.StoreFile(1, "one_2nd.fia", kToFlash); }},
    {"code upload", [](auto& self) { return self.LoadImage(1); }},
    {"move to flash",
     [](auto& self) { return self.Control()->MoveFile(kAlgorithm, kAlgorithmId, kToFlash, 0); }},
    {"fixed address", [](auto& self) { return self.SetNetwork(false, "bench 3"); }},
    {"update",
     [](auto& self) { return self.Control()->UpdateFromIniFile(self.PathOf(2, "u.ini")); }, true},
    {"deletion",
     [](auto& self) { return self.Control()->DeleteFile(kSecondaryBoot, kSecondaryBootId); }},
    {"move to the card",
     [](auto& self) { return self.Control()->MoveFile(kMcuSoftware, kMcuSoftwareId, kToCard, 0); }},
    {"upload again", [](auto& self) { return self.StoreFile(3, "one_2nd.fia", kToRam); }},
    {"formatting of the flash", [](auto& self) { return self.Prepare(Medium::InternalFlash); }},
    {"reset", [](auto& self) { return self.Control()->RequestMode(ModeRequest::Reset); }},
    {"formatting of the card", [](auto& self) { return self.Prepare(Medium::PcCard); }},
    {"Normal mode", [](auto& self) { return self.Control()->RequestMode(ModeRequest::Normal); }},
    {"media test",
     [](auto& self) { return self.Control()->RerunMediaTests(contract::kPcCardTest); }},
    {"address by DHCP", [](auto& self) { return self.SetNetwork(true, "anywhere"); }},
    {"code upload again", [](auto& self) { return self.LoadImage(0); }},
    {"deletion of all", [](auto& self) { return self.Control()->DeleteFile(0, 0); }},
};

const WriterFixture::Step& WriterFixture::StepAt(std::size_t index) { return kSteps[index]; }

std::size_t WriterFixture::StepCount() { return std::size(kSteps); }

void WriterFixture::SetUp() {
    m_devices.Write("device/device.json", kDeviceDescription);
    m_deviceFolder = m_devices.Path() / "device";
    for (int generation = 0; generation < kGenerations; ++generation) {
        const auto folder = std::to_string(generation) + "/";
        for (const auto& [name, id] : {std::pair("one_2nd.fia", kSecondaryBootId),
                                       {"two_alg.fia", kAlgorithmId},
                                       {"three_mcu.fia", kMcuSoftwareId},
                                       {"four_alg.fg", kAlgorithmId + 1}}) {
            WorkstationFile(folder + name, PhoneFile(name, generation, id));
        }
        WorkstationFile(folder + "software.krx20", Image(generation));
        WorkstationFile(folder + "u.ini", kPackage);
    }
}

void WriterFixture::WriteForEver(std::size_t step, const std::function<bool()>& report) {
    Reconnect();
    while (!HasFailure() && report() && RunStep(step)) {
        step = (step + 1) % StepCount();
    }
}

std::string WriterFixture::PathOf(int generation, const std::string& name) const {
    return m_workstation.PathOf(std::to_string(generation) + "/" + name);
}

Status WriterFixture::StoreFile(int generation, const std::string& name, std::int32_t destination) {
    return Upload(PathOf(generation, name), destination, kForce);
}

Status WriterFixture::LoadImage(int generation) {
    return Control()->UploadCode(PathOf(generation, "software.krx20"), -1, -1, -1);
}

Status WriterFixture::Prepare(Medium medium) { return Krx10Control()->PrepareMedia(medium); }

Status WriterFixture::SetNetwork(bool useDhcp, const std::string& description) {
    const auto first =
        ObjectOf(*Krx10Control(), &contract::IKrx10Control::GetCommunicationConfiguration);
    const auto copy = ObjectOf(
        *first, &contract::IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2);
    const auto address =
        useDhcp ? contract::kAddressByDhcp : ParseAddress("192.168.1.7").value_or(0);
    EXPECT_EQ(copy->SetIpAddress(address), contract::kSuccess);
    EXPECT_EQ(copy->SetDhcp(useDhcp), contract::kSuccess);
    EXPECT_EQ(copy->SetSubnetMask(ParseAddress("255.255.255.0").value_or(0)), contract::kSuccess);
    EXPECT_EQ(copy->SetDescription(description), contract::kSuccess);
    return copy->ApplyConfiguration();
}

std::shared_ptr<contract::IKrx10Control> WriterFixture::Krx10Control() {
    return ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control);
}

}
