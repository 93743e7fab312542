#include "simulator/device/CodeFile.h"

#include "simulator/device/FilePlan.h"
#include "simulator/device/PhoneFile.h"
#include "simulator/device/SelfTestRun.h"
#include "simulator/device/VersionText.h"
#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemPath.h"

#include <map>
#include <string_view>

namespace simulator {

namespace {

using Header = std::map<std::string, std::string, std::less<>>;

constexpr const char* kVersionWithoutAny = "1.0";

std::string_view Trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(" \t\r");
    if (begin == text.npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(" \t\r") - begin + 1);
}

/// The "key: value" lines at the head of a file, up to the first line that is none.
Header ReadHeader(std::string_view head) {
    Header header;
    while (true) {
        const auto end = head.find('\n');
        const auto line = head.substr(0, end);
        const auto colon = line.find(':');
        if (end == head.npos || colon == line.npos) {
            return header;
        }
        header.emplace(Trimmed(line.substr(0, colon)), Trimmed(line.substr(colon + 1)));
        head.remove_prefix(end + 1);
    }
}

std::string TextOf(const Header& header, std::string_view key) {
    const auto found = header.find(key);
    return found == header.end() ? std::string() : found->second;
}

std::string_view ModelName(std::int32_t type) {
    for (const auto& [name, value] : kModels) {
        if (value == type) {
            return name;
        }
    }
    return "this device";
}

bool IsListed(std::string_view list, std::string_view name) {
    while (true) {
        const auto comma = list.find(',');
        if (Trimmed(list.substr(0, comma)) == name) {
            return true;
        }
        if (comma == list.npos) {
            return false;
        }
        list.remove_prefix(comma + 1);
    }
}

/// The extension of images for the device; empty for one that takes none.
std::string_view ImageExtension(std::int32_t type) {
    if (type == kKrx10) {
        return ".krx10";
    }
    return type == kKrx20 || type == kKrx21 ? ".krx20" : "";
}

Failure FailAsWrong(const CSourceFile& source, const std::string& what) {
    return {kInvalidData, source.QuotedName() + " is " + what};
}

Outcome ExpectKind(CodeKind kind, std::int32_t deviceType) {
    const bool takesCode = IsKrx8Family(deviceType);
    const bool takesImages = !ImageExtension(deviceType).empty();
    if ((kind == CodeKind::Image && takesImages) || (kind != CodeKind::Image && takesCode)) {
        return std::nullopt;
    }
    return Failure{kInvalidArgument,
                   std::string(ModelName(deviceType)) + " takes no " +
                       (kind == CodeKind::Image ? "software images" : "single code files")};
}

Outcome ExpectModel(const CSourceFile& source, const Header& header, CodeKind kind,
                    std::int32_t deviceType) {
    if (const auto models = TextOf(header, "model"); !models.empty()) {
        if (IsListed(models, ModelName(deviceType))) {
            return std::nullopt;
        }
        return FailAsWrong(source, "for " + QuoteForMessage(models) + ", not for " +
                                       std::string(ModelName(deviceType)));
    }
    const auto extension = TextOfPath(PathOf(source.Name()).extension());
    if (kind != CodeKind::Image || IsSameName(extension, ImageExtension(deviceType))) {
        return std::nullopt;
    }
    return FailAsWrong(source, "no software image for " + std::string(ModelName(deviceType)));
}

Outcome ExpectContent(const CSourceFile& source, const Header& header, CodeKind kind) {
    constexpr NamedValue kContents[] = {{"image", static_cast<int>(CodeKind::Image)},
                                        {"fpga", static_cast<int>(CodeKind::Fpga)},
                                        {"application", static_cast<int>(CodeKind::Application)}};
    const auto content = TextOf(header, "content");
    for (const auto& [name, value] : kContents) {
        if (value == static_cast<std::int64_t>(kind) && !content.empty() && content != name) {
            return FailAsWrong(source, "of the content " + QuoteForMessage(content) + ", not " +
                                           QuoteForMessage(name));
        }
    }
    return std::nullopt;
}

/// Versions of code that a device shows are numbers; other words would be shown as if they were.
Outcome ExpectVersions(const CSourceFile& source, const Header& header, CodeKind kind) {
    const bool isImage = kind == CodeKind::Image;
    for (const auto* key : {"version", "fpga", "boot"}) {
        const auto text = TextOf(header, key);
        const bool isMeant = isImage || key == std::string_view("version");
        if (isMeant && !text.empty() && !IsVersion(text)) {
            return Failure{kInvalidData, source.QuotedName() + " gives " + QuoteForMessage(text) +
                                             " as " + QuoteForMessage(key) +
                                             ", which is no version such as 1.21"};
        }
    }
    return std::nullopt;
}

/// Code is kept in the flash memory's own part, so that what files leave free does not matter.
Outcome ExpectSize(const CSourceFile& source, const DeviceDescription& device) {
    const std::int64_t sizeBytes = source.SizeBytes();
    if (sizeBytes <= device.totalFlashBytes) {
        return std::nullopt;
    }
    return Failure{kMemoryFull, source.QuotedName() + " has " + std::to_string(sizeBytes) +
                                    " bytes, and the whole flash memory " +
                                    std::to_string(device.totalFlashBytes)};
}

std::string VersionOf(const CSourceFile& source, const Header& header) {
    if (auto version = TextOf(header, "version"); !version.empty()) {
        return version;
    }
    const auto stem = TextOfPath(PathOf(source.Name()).stem());
    const std::string version(LastVersionIn(stem));
    return version.empty() ? kVersionWithoutAny : version;
}

}

std::variant<CodeVersions, Failure> RecogniseCode(const CSourceFile& source, CodeKind kind,
                                                  const DeviceDescription& device) {
    const auto header = ReadHeader(source.Head());
    for (const auto& failure :
         {ExpectKind(kind, device.type), ExpectModel(source, header, kind, device.type),
          ExpectContent(source, header, kind), ExpectVersions(source, header, kind),
          ExpectSize(source, device)}) {
        if (failure) {
            return *failure;
        }
    }
    const auto version = VersionOf(source, header);
    if (kind == CodeKind::Fpga) {
        return CodeVersions{"", version, ""};
    }
    if (kind == CodeKind::Application) {
        return CodeVersions{version, "", ""};
    }
    return CodeVersions{version, TextOf(header, "fpga"), TextOf(header, "boot")};
}

void InstallCode(DeviceDescription& device, const CodeVersions& versions) {
    using contract::SelfTest;
    if (!versions.application.empty()) {
        device.software.application = versions.application;
        device.mode = kNormalMode;
        PassIfPresent(device, SelfTest::ApplicationSw);
    }
    if (!versions.fpga.empty()) {
        device.software.fpgaCode = versions.fpga;
        PassIfPresent(device, SelfTest::FpgaCode);
        PassIfPresent(device, SelfTest::FpgaLoad);
    }
    if (!versions.boot.empty()) {
        device.software.boot = versions.boot;
        PassIfPresent(device, SelfTest::BootCode);
    }
}

}
