// The description of an update: the bytes of an INI file, beside a few files that it may name.

#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Utf8Oracle.h"
#include "simulator/EventSource.h"
#include "simulator/device/IniText.h"
#include "simulator/device/IniUpdate.h"
#include "simulator/device/UpdateDescription.h"
#include "simulator/device/VersionText.h"
#include "tests/simulator/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace {

using namespace fuzz;
using namespace simulator;

constexpr std::int32_t kModels = kKrx21;

struct Entry {
    std::string section;
    std::string key;
    std::string value;

    bool operator==(const Entry&) const = default;
};

std::vector<Entry> EntriesOf(const std::string& text, bool& isRead) {
    std::vector<Entry> entries;
    const auto mistake = ReadIni(text, [&](const IniEntry& entry) {
        entries.push_back(
            {std::string(entry.section), std::string(entry.key), std::string(entry.value)});
        return std::string();
    });
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    Require(!mistake || (mistake->line >= 1 && mistake->line <= lines && !mistake->reason.empty()),
            "a mistake has a line of the text and a reason");
    isRead = !mistake;
    return entries;
}

bool IsTrimmed(const std::string& text) {
    constexpr const char* kSpaces = " \t\r\n";
    return text.empty() ||
           (text.find_first_of(kSpaces) != 0 && text.find_last_of(kSpaces) != text.size() - 1);
}

void TryText(const std::string& text) {
    bool isRead = false;
    const std::vector<Entry> entries = EntriesOf(text, isRead);
    // Not a byte order mark, whatever comes first.
    std::string written = "\n";
    for (const Entry& entry : entries) {
        Require(!entry.key.empty(), "an entry has a key");
        Require(IsTrimmed(entry.section) && IsTrimmed(entry.key) && IsTrimmed(entry.value),
                "blanks around a part are none of it");
        Require(IsUtf8(entry.section + entry.key + entry.value), "an entry is UTF-8");
        written += entry.section.empty() ? "" : "[" + entry.section + "]\n";
        written += entry.key + "=" + entry.value + "\n";
    }
    // Without a section an entry belongs to the one before it.
    const bool mayBeWritten =
        std::is_sorted(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
            return a.section.empty() && !b.section.empty();
        });
    if (isRead && mayBeWritten) {
        Require(EntriesOf(written, isRead) == entries && isRead, "what is written reads the same");
    }
}

const CTemporaryFolder& Folder() {
    static const CTemporaryFolder folder;
    return folder;
}

/// The path of a description of that text.
std::filesystem::path Describe(const std::string& text) {
    static const bool isMade = [] {
        Folder().Write("a_2nd.fia", "a_2nd.fia 2.0 id=5\n");
        Folder().Write("sub/b_alg.fg", "b_alg.fg 3.0\n");
        Folder().Write("c.bin", "version: 1.5\n");
        Folder().Write("d.krx10", "model: KRX-10\nversion: 4.2\n");
        Folder().Write("e.krx20", "version: 4.3\nfpga: 1.1\nboot: 2.2\n");
        Folder().Write("empty.fia", "");
        return true;
    }();
    static_cast<void>(isMade);
    Folder().Write("u.ini", text);
    return Folder().Path() / "u.ini";
}

void TryFailure(const Failure& failure) {
    Require(failure.status.IsFailure(), "a failure has a status");
    Require(!failure.description.empty() && IsUtf8(failure.description), "and a reason in UTF-8");
    Require(failure.description.find('\n') == std::string::npos, "which is one line");
}

void TryEntry(const UpdateEntry& entry) {
    const std::filesystem::path path(entry.path);
    Require(path.has_filename() && path.is_relative(), "an entry names a file in the folder");
    Require(std::find(path.begin(), path.end(), "..") == path.end(), "and none above it");
}

/// Returns the mistake, if there is one, that is in a line.
std::string TryReading(const std::filesystem::path& path, std::int32_t type) {
    const auto result = ReadUpdateDescription(path, type);
    if (const auto* failure = std::get_if<Failure>(&result)) {
        TryFailure(*failure);
        const bool isInLine = failure->description.find(", line ") != std::string::npos;
        return isInLine ? failure->description : "";
    }
    const auto& description = std::get<UpdateDescription>(result);
    Require(IsVersion(description.version), "a package has a version");
    Require(!description.entries.empty(), "and files");
    std::for_each(description.entries.begin(), description.entries.end(), TryEntry);
    return "";
}

/// Hears what a device tells.
class CListener final : public contract::_IProgrammingDeviceControlEvents {
public:
    contract::Status ModeChanged(std::int32_t mode) override {
        Require(mode == kNormalMode || mode == kMaintenanceMode, "an update has two modes");
        return contract::kSuccess;
    }
    contract::Status DeviceMessage(const std::string& text, std::uint32_t done,
                                   std::uint32_t total) override {
        Require(!text.empty() && IsUtf8(text), "a device's message is UTF-8");
        Require(text.find('\n') == std::string::npos, "it is one line");
        Require(done <= total, "no more is done than there is");
        return contract::kSuccess;
    }
    contract::Status Event3(std::int32_t, std::int32_t) override { return contract::kSuccess; }
};

DeviceDescription SmallDevice(std::int32_t type) {
    DeviceDescription device;
    device.type = type;
    device.totalRamBytes = 30;
    device.totalFlashBytes = 100;
    device.pcCard = PcCard{15};
    device.files = {{"Version.FIA", kMcuSoftware, 9, "1.0", 5, kInFlash, 0, ""}};
    return device;
}

std::string InstalledVersion(const CDevice& device) {
    const auto files = device.Files();
    const auto file = std::find_if(files->begin(), files->end(), [](const StoredFile& stored) {
        return stored.name == "version.fia" || stored.name == "Version.FIA";
    });
    return file == files->end() ? "" : file->version;
}

void TryUpdate(const std::filesystem::path& path, std::int32_t type) {
    const auto device = CDevice::Create(SmallDevice(type));
    const auto events = std::make_shared<CDeviceEvents>();
    std::uint32_t cookie = 0;
    Require(events->Subscribe(std::make_shared<CListener>(), cookie).IsSuccess(), "one listens");
    device->SendEventsTo(events);
    const DeviceDescription before = device->State();
    bool isPartial = false;
    const Outcome failure = UpdateFromIniFile(*device, path.string(), isPartial);
    Require(device->Mode() == kNormalMode, "a device is back in its mode");
    if (failure) {
        TryFailure(*failure);
        Require(!isPartial && device->State() == before, "a failed update changes nothing");
    } else if (isPartial) {
        RequireEqual(InstalledVersion(*device), "1.0", "an update in part is offered again");
    } else {
        const auto read = ReadUpdateDescription(path, type);
        RequireEqual(InstalledVersion(*device), std::get<UpdateDescription>(read).version,
                     "an update installs its version");
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(CInput(data, size).Rest());
    TryText(text);
    const std::filesystem::path path = Describe(text);
    const auto type = static_cast<std::int32_t>(size % kModels);
    RequireEqual(TryReading(path, 1 + type), TryReading(path, 1 + (type + 1) % kModels),
                 "a mistake is the same for every device");
    TryUpdate(path, 1 + type);
    return 0;
}
