#include "simulator/device/FilePlan.h"

#include "simulator/device/VersionText.h"
#include "simulator/folder/MessageText.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

using Files = std::vector<StoredFile>;

constexpr const char* kLocationNames[] = {"RAM", "flash memory", "the memory card"};

std::int64_t TotalBytes(const DeviceDescription& device, std::int32_t location) {
    if (location == kInRam) {
        return device.totalRamBytes;
    }
    if (location == kInFlash) {
        return device.totalFlashBytes;
    }
    return device.pcCard ? device.pcCard->totalBytes : 0;
}

std::int64_t FreeBytes(const DeviceDescription& device, std::int32_t location) {
    std::int64_t usedBytes = 0;
    for (const auto& file : device.files) {
        usedBytes += file.location == location ? file.sizeBytes : 0;
    }
    return std::max<std::int64_t>(0, TotalBytes(device, location) - usedBytes);
}

Files::iterator FindNamesake(Files& files, const PhoneFile& file) {
    return std::find_if(files.begin(), files.end(), [&](const StoredFile& stored) {
        return stored.type == file.type && IsSameName(stored.name, file.name);
    });
}

Files::iterator FindAt(Files& files, std::int32_t type, std::int32_t id) {
    return std::find_if(files.begin(), files.end(), [&](const StoredFile& stored) {
        return stored.type == type && AddressingPart(stored.id) == AddressingPart(id);
    });
}

/// One above the highest of the type, else the lowest unused one; none when all are used.
std::optional<std::int32_t> UnusedId(const Files& files, std::int32_t type) {
    std::vector<bool> isUsed(0x10000);
    for (const auto& file : files) {
        if (file.type == type) {
            isUsed[static_cast<std::size_t>(AddressingPart(file.id))] = true;
        }
    }
    const auto highest = std::find(isUsed.rbegin(), isUsed.rend(), true);
    const auto above = isUsed.rend() - highest;
    if (above != 0 && above <= 0xFFFF) {
        return static_cast<std::int32_t>(above);
    }
    const auto unused = std::find(isUsed.begin() + 1, isUsed.end(), false);
    if (unused == isUsed.end()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(unused - isUsed.begin());
}

std::int32_t LocationFor(const DeviceDescription& device, const StoredFile& entry, bool isNew,
                         Destination destination, UploadMethod method) {
    if (destination != Destination::Default) {
        return static_cast<std::int32_t>(destination);
    }
    if (method == UploadMethod::Flashing) {
        return kInFlash;
    }
    // A made-up location is nowhere that a file could be written to.
    const bool isKnown = entry.location >= kInRam && entry.location <= kOnPcCard;
    if (!isNew && isKnown) {
        return entry.location;
    }
    // The KRX-8 family tries MCU software from RAM before it is moved to flash memory.
    return entry.type == kMcuSoftware && IsKrx8Family(device.type) ? kInRam : kInFlash;
}

struct Place {
    std::size_t file;
    bool isNew;
};

/// Puts what is known of the file into the entry that it replaces, else into a new one. Its size is
/// 0 for now: what the replaced file takes is free for it.
Place MakePlace(Files& files, const PhoneFile& file) {
    const auto present = FindNamesake(files, file);
    const Place place{static_cast<std::size_t>(present - files.begin()), present == files.end()};
    if (place.isNew) {
        files.emplace_back();
    }
    auto& entry = files[place.file];
    entry.name = file.name;
    entry.type = file.type;
    entry.id = file.id.value_or(entry.id);
    entry.version = file.version;
    entry.sizeBytes = 0;
    entry.generation = file.generation.value_or(entry.generation);
    entry.content.clear();
    return place;
}

Failure FailAsTaken(const PhoneFile& file, const StoredFile& holder) {
    return {kInvalidArgument, "The identifier " + std::to_string(*file.id) + " of " +
                                  QuoteForMessage(file.name) + " is that of " +
                                  QuoteForMessage(holder.name) + " on the device"};
}

/// Makes way for a file that brings its own identifier: under force the holder goes.
Outcome ClaimId(Files& files, const PhoneFile& file, UploadMethod method) {
    const auto holder = file.id ? FindAt(files, file.type, *file.id) : files.end();
    if (holder == files.end() || IsSameName(holder->name, file.name)) {
        return std::nullopt;
    }
    if (method != UploadMethod::Force) {
        return FailAsTaken(file, *holder);
    }
    files.erase(holder);
    return std::nullopt;
}

Outcome GiveUnusedId(const Files& files, StoredFile& entry) {
    const auto id = UnusedId(files, entry.type);
    if (!id) {
        return Failure{kMemoryFull, "The device has no identifier left for a file of type " +
                                        std::to_string(entry.type)};
    }
    entry.id = *id;
    return std::nullopt;
}

Failure FailAsMissing(std::int32_t type, std::int32_t id) {
    const auto ofType = type == 0 ? std::string() : " of type " + std::to_string(type);
    return {kFileNotFound, "There is no file" + ofType + " with the identifier " +
                               std::to_string(id) + " on the device"};
}

bool IsStorage(Destination destination) {
    return destination == Destination::Flash || destination == Destination::ExternalStorage;
}

}

bool IsKrx8Family(std::int32_t type) { return type == kKrx8 || type == kKrx8c; }

Outcome ExpectFileMode(std::int32_t type, std::int32_t mode) {
    if (mode == kNormalMode || IsKrx8Family(type)) {
        return std::nullopt;
    }
    return Failure{kNotReady, "The device is not in Normal mode, in which alone it handles files"};
}

Outcome ExpectRoom(const DeviceDescription& device, const std::string& name, std::int64_t sizeBytes,
                   std::int32_t location) {
    if (location == kOnPcCard && !device.pcCard) {
        return Failure{kNotReady, "There is no memory card in the device"};
    }
    const auto freeBytes = FreeBytes(device, location);
    if (sizeBytes <= freeBytes) {
        return std::nullopt;
    }
    const std::string memory = kLocationNames[location - kInRam];
    return Failure{kMemoryFull, QuoteForMessage(name) + " needs " + std::to_string(sizeBytes) +
                                    " bytes, and " + memory + " has " + std::to_string(freeBytes) +
                                    " of " + std::to_string(TotalBytes(device, location)) +
                                    " bytes free"};
}

std::variant<StorePlan, Failure> PlanStore(DeviceDescription device, const PhoneFile& file,
                                           Destination destination, UploadMethod method) {
    const auto present = FindNamesake(device.files, file);
    if (method == UploadMethod::Version && present != device.files.end() &&
        !IsNewer(file.version, present->version)) {
        const auto index = static_cast<std::size_t>(present - device.files.begin());
        return StorePlan{std::move(device), index, true};
    }
    if (auto failure = ClaimId(device.files, file, method)) {
        return *failure;
    }
    const auto place = MakePlace(device.files, file);
    auto& entry = device.files[place.file];
    entry.location = LocationFor(device, entry, place.isNew, destination, method);
    auto failure = place.isNew && !file.id ? GiveUnusedId(device.files, entry) : std::nullopt;
    if (!failure) {
        failure = ExpectRoom(device, file.name, file.sizeBytes, entry.location);
    }
    if (failure) {
        return *failure;
    }
    entry.sizeBytes = file.sizeBytes;
    return StorePlan{std::move(device), place.file};
}

std::variant<DeviceDescription, Failure> PlanMove(DeviceDescription device, std::int32_t type,
                                                  std::int32_t id, Destination destination) {
    if (!IsStorage(destination)) {
        return Failure{kInvalidArgument, "Files are moved to flash memory (2) or to the memory "
                                         "card (3), not to " +
                                             std::to_string(static_cast<int>(destination))};
    }
    const auto location = static_cast<std::int32_t>(destination);
    const auto isMeant = [&](const StoredFile& file) {
        return (type == 0 || file.type == type) && AddressingPart(file.id) == AddressingPart(id);
    };
    auto& files = device.files;
    if (std::none_of(files.begin(), files.end(), isMeant)) {
        return FailAsMissing(type, id);
    }
    const auto file = std::find_if(files.begin(), files.end(), [&](const StoredFile& candidate) {
        return isMeant(candidate) && candidate.location != location;
    });
    if (file == files.end()) {
        return device;
    }
    if (auto failure = ExpectRoom(device, file->name, file->sizeBytes, location)) {
        return *failure;
    }
    file->location = location;
    return device;
}

std::variant<DeviceDescription, Failure> PlanDelete(DeviceDescription device, std::int32_t type,
                                                    std::int32_t id) {
    if (type == 0 && id == 0) {
        device.files.clear();
        return device;
    }
    const auto file = FindAt(device.files, type, id);
    if (file == device.files.end()) {
        return FailAsMissing(type, id);
    }
    device.files.erase(file);
    return device;
}

}
