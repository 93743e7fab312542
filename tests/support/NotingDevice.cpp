#include "tests/support/NotingDevice.h"

#include <cstdio>

namespace support {

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

}

Status CNotingDevice::Note(const std::string& call) {
    calls.push_back(call);
    return AnswerTo(call);
}

Status CNotingDevice::RequestMode(contract::ModeRequest request) {
    return request == contract::ModeRequest::Report
               ? ReportMode()
               : Note(Called("RequestMode", static_cast<std::int32_t>(request)));
}

Status CNotingDevice::UploadPhoneFile(const std::string& path, std::int32_t destination,
                                      std::int32_t method, std::int32_t& result) {
    result = contract::kUnspecifiedFailure.Code();
    return Note(Called("UploadPhoneFile", path, destination, method));
}

Status CNotingDevice::MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                               std::int32_t reserved) {
    return Note(Called("MoveFile", type, id, destination, reserved));
}

Status CNotingDevice::DeleteFile(std::int32_t type, std::int32_t id) {
    return Note(Called("DeleteFile", type, id));
}

Status CNotingDevice::UploadCode(const std::string& path, std::int32_t codeKind,
                                 std::int32_t reserved, std::int32_t mode) {
    return Note(Called("UploadCode", path, codeKind, reserved, mode));
}

Status CNotingDevice::UpdateFromIniFile(const std::string& path) {
    return Note(Called("UpdateFromIniFile", path));
}

Status CNotingDevice::RerunMediaTests(std::uint32_t mask) {
    return Note(Called("RerunMediaTests", Hex(mask)));
}

Status CNotingDevice::PrepareMedia(contract::Medium medium) {
    return Note(Called("PrepareMedia", static_cast<std::int32_t>(medium)));
}

Status CNotingDevice::SetIpAddress(contract::AddressValue address) {
    return Note(Called("SetIpAddress", Hex(address)));
}

Status CNotingDevice::SetDhcp(bool useDhcp) { return Note(Called("SetDhcp", useDhcp)); }

Status CNotingDevice::SetSubnetMask(contract::AddressValue mask) {
    return Note(Called("SetSubnetMask", Hex(mask)));
}

Status CNotingDevice::SetGateway(contract::AddressValue gateway) {
    return Note(Called("SetGateway", Hex(gateway)));
}

Status CNotingDevice::SetDescription(const std::string& description) {
    return Note(Called("SetDescription", description));
}

Status CNotingDevice::ApplyConfiguration() { return Note("ApplyConfiguration()"); }

}
