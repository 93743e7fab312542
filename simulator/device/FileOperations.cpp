#include "simulator/device/FileOperations.h"

#include "simulator/folder/MessageText.h"

#include <utility>
#include <variant>

namespace simulator {

namespace {

PhoneFile Recognise(const CSourceFile& source) {
    auto file = RecognisePhoneFile(source.Name(), source.Head());
    file.sizeBytes = source.SizeBytes();
    return file;
}

Outcome Change(CDevice& device, std::variant<DeviceDescription, Failure> plan) {
    if (auto* failure = std::get_if<Failure>(&plan)) {
        return std::move(*failure);
    }
    return device.Change(std::get<DeviceDescription>(std::move(plan)));
}

Outcome ExpectRange(std::int32_t value, const std::string& what) {
    if (0 <= value && value <= 3) {
        return std::nullopt;
    }
    return Failure{kInvalidArgument, "There is no " + what + " " + std::to_string(value)};
}

Outcome EndAsUpToDate(CDevice& device, const CSourceFile& source, UploadResult& result) {
    device.RaiseMessage(EscapeForMessage(source.Name()) + " is up to date", 0, 0);
    result = UploadResult::UpToDate;
    return std::nullopt;
}

/// Reads the file's bytes, with messages, and stores them as the device then stands: who hears the
/// messages may change it, and may even store the file.
Outcome Transfer(CDevice& device, const CSourceFile& source, Destination destination,
                 UploadMethod method, const std::string& verb, UploadResult& result) {
    const auto text = verb + " " + EscapeForMessage(source.Name());
    NewContent content;
    auto failure = source.Read(
        content.bytes, [&](auto done, auto total) { device.RaiseMessage(text, done, total); });
    if (failure) {
        return failure;
    }
    auto plan = PlanStore(device.State(), Recognise(source), destination, method);
    if (auto* refusal = std::get_if<Failure>(&plan)) {
        return std::move(*refusal);
    }
    auto& store = std::get<StorePlan>(plan);
    if (store.isUpToDate) {
        return EndAsUpToDate(device, source, result);
    }
    content.file = store.file;
    failure = device.Change(std::move(store.next), &content);
    if (!failure) {
        result = UploadResult::Stored;
    }
    return failure;
}

}

Outcome StorePhoneFile(CDevice& device, const CSourceFile& source, Destination destination,
                       UploadMethod method, const std::string& verb, UploadResult& result) {
    // Before the first byte: a file that has no place is not sent.
    auto plan = PlanStore(device.State(), Recognise(source), destination, method);
    if (auto* failure = std::get_if<Failure>(&plan)) {
        return std::move(*failure);
    }
    if (std::get<StorePlan>(plan).isUpToDate) {
        return EndAsUpToDate(device, source, result);
    }
    return Transfer(device, source, destination, method, verb, result);
}

Outcome UploadPhoneFile(CDevice& device, const std::string& path, std::int32_t destination,
                        std::int32_t method, std::int32_t& result) {
    for (auto failure : {ExpectRange(destination, "destination"), ExpectRange(method, "method"),
                         ExpectFileMode(device.Description().type, device.Mode())}) {
        if (failure) {
            return failure;
        }
    }
    auto source = CSourceFile::Open(LocalPath(path));
    if (auto* failure = std::get_if<Failure>(&source)) {
        return std::move(*failure);
    }
    const bool isFlashing = static_cast<UploadMethod>(method) == UploadMethod::Flashing;
    auto stored = UploadResult::Stored;
    auto failure = StorePhoneFile(
        device, std::get<CSourceFile>(source), static_cast<Destination>(destination),
        static_cast<UploadMethod>(method), isFlashing ? "Flashing" : "Uploading", stored);
    if (!failure) {
        result = static_cast<std::int32_t>(stored);
    }
    return failure;
}

Outcome MoveFile(CDevice& device, std::int32_t type, std::int32_t id, std::int32_t destination,
                 std::int32_t reserved) {
    if (reserved != 0) {
        return Failure{kInvalidArgument, "The reserved argument of a move must be 0"};
    }
    if (auto failure = ExpectFileMode(device.Description().type, device.Mode())) {
        return failure;
    }
    return Change(device,
                  PlanMove(device.State(), type, id, static_cast<Destination>(destination)));
}

Outcome DeleteFile(CDevice& device, std::int32_t type, std::int32_t id) {
    if (auto failure = ExpectFileMode(device.Description().type, device.Mode())) {
        return failure;
    }
    return Change(device, PlanDelete(device.State(), type, id));
}

}
