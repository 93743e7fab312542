#include "tests/component/win32/control/SmallDevice.h"

#include "contract/device/FileInfo.h"

#include <cstdio>

namespace controltests {

using contract::Status;

namespace {

std::string Text(const std::string& text) { return text; }
std::string Text(std::int32_t number) { return std::to_string(number); }
std::string Text(bool flag) { return flag ? "true" : "false"; }

std::string Hex(std::uint32_t number) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", number);
    return text;
}

template <class First, class... Rest>
std::string Called(const char* operation, const First& first, const Rest&... rest) {
    return std::string(operation) + "(" + Text(first) + ((", " + Text(rest)) + ... + ")");
}

struct File {
    const char* name;
    std::int32_t type;
    std::int32_t id;
    const char* version;
};

constexpr File kFiles[] = {
    {"alpha.fia", 19, 1, "1.1"}, {"beta.fia", 21, 2, "2.2"}, {"version.fia", 22, 3, "2.5.13"}};

class CFileOfDevice final : public contract::IFileInfo {
public:
    explicit CFileOfDevice(const File& file) : m_file(file) {}

    Status GetName(std::string& name) override { return Tell(m_file.name, name); }
    Status GetType(std::int32_t& type) override { return Tell(m_file.type, type); }
    Status GetId(std::int32_t& id) override { return Tell(m_file.id, id); }
    Status GetVersion(std::string& version) override { return Tell(m_file.version, version); }
    Status GetSize(std::int32_t& sizeBytes) override { return Tell(1000, sizeBytes); }
    Status GetLocation(std::int32_t& location) override { return Tell(2, location); }
    Status GetGeneration(std::uint32_t& generation) override { return Tell(0u, generation); }

private:
    template <class Value, class Result>
    Status Tell(const Value& value, Result& result) {
        result = value;
        return contract::kSuccess;
    }

    const File& m_file;
};

}

Status CSmallDevice::Note(const std::string& call) {
    calls.push_back(call);
    return Run(call);
}

Status CSmallDevice::RequestMode(contract::ModeRequest request) {
    if (request != contract::ModeRequest::Report) {
        return Note(Called("RequestMode", static_cast<std::int32_t>(request)));
    }
    m_events->RaiseToAll([](Events& sink) { return sink.ModeChanged(1); });
    return Run("RequestMode(0)");
}

Status CSmallDevice::UploadPhoneFile(const std::string& path, std::int32_t destination,
                                     std::int32_t method, std::int32_t&) {
    return Note(Called("UploadPhoneFile", path, destination, method));
}

Status CSmallDevice::MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                              std::int32_t reserved) {
    return Note(Called("MoveFile", type, id, destination, reserved));
}

Status CSmallDevice::DeleteFile(std::int32_t type, std::int32_t id) {
    return Note(Called("DeleteFile", type, id));
}

Status CSmallDevice::UploadCode(const std::string& path, std::int32_t codeKind,
                                std::int32_t reserved, std::int32_t mode) {
    return Note(Called("UploadCode", path, codeKind, reserved, mode));
}

Status CSmallDevice::UpdateFromIniFile(const std::string& path) {
    return Note(Called("UpdateFromIniFile", path));
}

Status CSmallDevice::RerunMediaTests(std::uint32_t mask) {
    return Note(Called("RerunMediaTests", Hex(mask)));
}

Status CSmallDevice::GetTypeInfo(std::uint32_t, std::uint32_t,
                                 Shared<contract::ITypeInformation>& information) {
    information = std::make_shared<contract::ITypeInformation>();
    return contract::kSuccess;
}

Status CSmallDevice::GetFileInfo(std::int32_t index, Shared<contract::IFileInfo>& info) {
    info = std::make_shared<CFileOfDevice>(kFiles[index - 1]);
    return contract::kSuccess;
}

Status CSmallDevice::PrepareMedia(contract::Medium medium) {
    return Note(Called("PrepareMedia", static_cast<std::int32_t>(medium)));
}

Status CSmallDevice::SetIpAddress(contract::AddressValue address) {
    return Note(Called("SetIpAddress", Hex(address)));
}

Status CSmallDevice::SetDhcp(bool useDhcp) { return Note(Called("SetDhcp", useDhcp)); }

Status CSmallDevice::SetSubnetMask(contract::AddressValue mask) {
    return Note(Called("SetSubnetMask", Hex(mask)));
}

Status CSmallDevice::SetGateway(contract::AddressValue gateway) {
    return Note(Called("SetGateway", Hex(gateway)));
}

Status CSmallDevice::SetDescription(const std::string& description) {
    return Note(Called("SetDescription", description));
}

Status CSmallDevice::ApplyConfiguration() { return Note("ApplyConfiguration()"); }

}
