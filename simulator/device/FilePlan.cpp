#include "simulator/device/FilePlan.h"

#include "simulator/device/VersionText.h"
#include "simulator/folder/MessageText.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

using Files = std::vector<StoredFile>;

/// The part of an identifier that addresses a file, together with its type.
constexpr std::int32_t AddressOf(std::int32_t id) { return id & 0xFFFF; }

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
        return stored.type == type && AddressOf(stored.id) == AddressOf(id);
    });
}

/// One above the highest of the type, else the lowest unused one; none when all are used.
std::optional<std::int32_t> UnusedId(const Files& files, std::int32_t type) {
    std::vector<bool> isUsed(0x10000);
    for (const auto& file : files) {
        if (file.type == type) {
            isUsed[static_cast<std::size_t>(AddressOf(file.id))] = true;
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

std::int32_t LocationFor(const DeviceDescription& device, const PhoneFile& file,
                         const StoredFile* replaced, Destination destination, UploadMethod method) {
    if (destination != Destination::Default) {
        return static_cast<std::int32_t>(destination);
    }
    if (method == UploadMethod::Flashing) {
        return kInFlash;
    }
    if (replaced) {
        return replaced->location;
    }
    // The KRX-8 family tries MCU software from RAM before it is moved to flash memory.
    return file.type == kMcuSoftware && IsKrx8Family(device.type) ? kInRam : kInFlash;
}

StoredFile MakeEntry(const PhoneFile& file, const StoredFile* replaced, std::int32_t location) {
    StoredFile entry;
    if (replaced) {
        entry = *replaced;
    }
    entry.name = file.name;
    entry.type = file.type;
    entry.id = file.id.value_or(entry.id);
    entry.version = file.version;
    entry.sizeBytes = file.sizeBytes;
    entry.location = location;
    entry.generation = file.generation.value_or(entry.generation);
    entry.content.clear();
    return entry;
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

Outcome GiveId(const Files& files, StoredFile& entry, bool hasId) {
    if (hasId) {
        return std::nullopt;
    }
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

bool IsStorageOf(Destination destination) {
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

std::variant<StorePlan, Failure> PlanStore(const DeviceDescription& device, const PhoneFile& file,
                                           Destination destination, UploadMethod method) {
    StorePlan plan{device};
    auto& files = plan.next.files;
    if (auto failure = ClaimId(files, file, method)) {
        return *failure;
    }
    const auto namesake = FindNamesake(files, file);
    const auto* replaced = namesake == files.end() ? nullptr : &*namesake;
    plan.file = static_cast<std::size_t>(namesake - files.begin());
    if (method == UploadMethod::Version && replaced && !IsNewer(file.version, replaced->version)) {
        plan.next = device;
        plan.isUpToDate = true;
        return plan;
    }
    auto entry =
        MakeEntry(file, replaced, LocationFor(device, file, replaced, destination, method));
    if (replaced) {
        // What it takes is free for the new one.
        files[plan.file].sizeBytes = 0;
    }
    if (auto failure = GiveId(files, entry, replaced || file.id)) {
        return *failure;
    }
    if (auto failure = ExpectRoom(plan.next, file.name, file.sizeBytes, entry.location)) {
        return *failure;
    }
    if (replaced) {
        files[plan.file] = std::move(entry);
    } else {
        files.push_back(std::move(entry));
    }
    return plan;
}

std::variant<DeviceDescription, Failure> PlanMove(const DeviceDescription& device,
                                                  std::int32_t type, std::int32_t id,
                                                  Destination destination) {
    if (!IsStorageOf(destination)) {
        return Failure{kInvalidArgument, "Files are moved to flash memory (2) or to the memory "
                                         "card (3), not to " +
                                             std::to_string(static_cast<int>(destination))};
    }
    const auto location = static_cast<std::int32_t>(destination);
    auto next = device;
    bool isThere = false;
    for (auto& file : next.files) {
        if ((type != 0 && file.type != type) || AddressOf(file.id) != AddressOf(id)) {
            continue;
        }
        isThere = true;
        if (file.location == location) {
            continue;
        }
        if (auto failure = ExpectRoom(next, file.name, file.sizeBytes, location)) {
            return *failure;
        }
        file.location = location;
        return next;
    }
    if (!isThere) {
        return FailAsMissing(type, id);
    }
    return next;
}

std::variant<DeviceDescription, Failure> PlanDelete(const DeviceDescription& device,
                                                    std::int32_t type, std::int32_t id) {
    auto next = device;
    if (type == 0 && id == 0) {
        next.files.clear();
        return next;
    }
    const auto file = FindAt(next.files, type, id);
    if (file == next.files.end()) {
        return FailAsMissing(type, id);
    }
    next.files.erase(file);
    return next;
}

}
