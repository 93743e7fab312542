#include "simulator/device/CodeOperations.h"

#include "simulator/device/StartMode.h"
#include "simulator/folder/MessageText.h"

#include <utility>
#include <variant>

namespace simulator {

namespace {

/// The modes that each kind of code can be loaded in.
struct CodeWay {
    CodeKind kind;
    std::int32_t lowestMode;
    std::int32_t highestMode;
};

constexpr CodeWay kCodeWays[] = {
    {CodeKind::Fpga, 0, 0}, {CodeKind::Application, 0, 1}, {CodeKind::Image, -1, -1}};

Outcome ExpectWay(std::int32_t codeKind, std::int32_t reserved, std::int32_t mode) {
    for (const auto& way : kCodeWays) {
        if (static_cast<std::int32_t>(way.kind) == codeKind && reserved == -1 &&
            way.lowestMode <= mode && mode <= way.highestMode) {
            return std::nullopt;
        }
    }
    return Failure{kInvalidArgument, "There is no code upload of kind " + std::to_string(codeKind) +
                                         ", reserved " + std::to_string(reserved) + ", mode " +
                                         std::to_string(mode)};
}

}

Outcome LoadCode(CDevice& device, const CSourceFile& source, CodeKind kind,
                 const std::string& verb) {
    auto recognised = RecogniseCode(source, kind, device.Description());
    if (auto* failure = std::get_if<Failure>(&recognised)) {
        return std::move(*failure);
    }
    const auto text = verb + " " + EscapeForMessage(source.Name());
    auto failure =
        source.ReadThrough([&](auto done, auto total) { device.RaiseMessage(text, done, total); });
    if (failure) {
        return failure;
    }
    auto next = device.State();
    InstallCode(next, std::get<CodeVersions>(recognised));
    next.mode = ModeAfterStart(next);
    return device.Change(std::move(next));
}

Outcome UploadCode(CDevice& device, const std::string& path, std::int32_t codeKind,
                   std::int32_t reserved, std::int32_t mode) {
    if (auto failure = ExpectWay(codeKind, reserved, mode)) {
        return failure;
    }
    auto opened = CSourceFile::Open(LocalPath(path));
    if (auto* failure = std::get_if<Failure>(&opened)) {
        return std::move(*failure);
    }
    const auto& source = std::get<CSourceFile>(opened);
    const auto kind = static_cast<CodeKind>(codeKind);
    auto recognised = RecogniseCode(source, kind, device.Description());
    if (auto* failure = std::get_if<Failure>(&recognised)) {
        return std::move(*failure);
    }
    const CMaintenance maintenance(device);
    return LoadCode(device, source, kind, "Loading");
}

}
