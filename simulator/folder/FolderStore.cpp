#include "simulator/folder/FolderStore.h"

#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/DescriptionWriter.h"
#include "simulator/folder/DurableFile.h"
#include "simulator/folder/FolderLock.h"
#include "simulator/folder/SystemError.h"
#include "simulator/folder/SystemPath.h"

#include <fstream>
#include <iterator>
#include <set>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;

/// Leaves room, in the 255 bytes that file systems give a name, for a number behind it.
constexpr std::size_t kLongestContentName = 200;

// Neither lies in `files`, where any name may be that of a stored file.
constexpr const char* kContentAside = "content.new";
constexpr const char* kDescriptionAside = "device.json.new";

}

CFolderStore::CFolderStore(const Path& folder, std::string text)
    : m_folder(std::filesystem::absolute(folder)),
      m_files(m_folder / kContentFolderName),
      m_text(std::move(text)) {}

Outcome CFolderStore::Save(DeviceDescription& description, const NewContent* content) {
    const CFolderLock lock(m_folder);
    if (lock.Error()) {
        return FailToWrite(lock.Error());
    }
    auto failure = ExpectUnchanged();
    if (!failure && content) {
        failure = StoreContent(description.files[content->file], content->bytes);
    }
    if (!failure) {
        failure = StoreDescription(description);
    }
    if (!failure) {
        RemoveWhatIsNotIn(description);
    }
    return failure;
}

Outcome CFolderStore::ExpectUnchanged() const {
    std::ifstream stream(m_folder / kDescriptionName, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    if (text == m_text) {
        return std::nullopt;
    }
    return Failure{kChangedElsewhere, "The device's folder " + QuotePath(m_folder) +
                                          " was changed by another program; connect the device "
                                          "again"};
}

Outcome CFolderStore::StoreContent(StoredFile& file, const std::string& bytes) const {
    std::error_code error;
    std::filesystem::create_directory(m_files, error);
    const auto name = UnusedName(file.name);
    if (!error) {
        error = WriteDurably(m_files / PathOf(name), m_folder / kContentAside, bytes);
    }
    if (!error) {
        error = SyncFolder(m_files);
    }
    if (error) {
        return FailToWrite(error);
    }
    file.content = name;
    return std::nullopt;
}

Outcome CFolderStore::StoreDescription(const DeviceDescription& description) {
    auto text = WriteDescription(description);
    const auto error =
        WriteDurably(m_folder / kDescriptionName, m_folder / kDescriptionAside, text);
    if (error) {
        return FailToWrite(error);
    }
    m_text = std::move(text);
    // The change has been made by now, for this process and for others. That its durability cannot
    // be had does not undo it, so that it is no failure.
    static_cast<void>(SyncFolder(m_folder));
    return std::nullopt;
}

std::string CFolderStore::UnusedName(const std::string& wanted) const {
    const bool isGood = IsPlainFileName(wanted) && wanted.size() <= kLongestContentName;
    const auto base = isGood ? wanted : std::string("content");
    auto name = base;
    std::error_code ignored;
    const auto isTaken = [&] {
        return std::filesystem::symlink_status(m_files / PathOf(name), ignored).type() !=
               std::filesystem::file_type::not_found;
    };
    for (int number = 2; isTaken(); ++number) {
        name = base + "~" + std::to_string(number);
    }
    return name;
}

void CFolderStore::RemoveWhatIsNotIn(const DeviceDescription& description) const {
    std::set<std::string> named;
    for (const auto& file : description.files) {
        named.insert(FileNameKey(file.content));
    }
    std::set<Path> superfluous;
    std::error_code error;
    std::filesystem::directory_iterator entry(m_files, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const auto name = TextOfPath(entry->path().filename());
        if (entry->is_regular_file(ignored) && !named.contains(FileNameKey(name))) {
            superfluous.insert(entry->path());
        }
    }
    for (const auto& path : superfluous) {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
}

Failure CFolderStore::FailToWrite(std::error_code error) const {
    return {kWriteFault, "The device's folder " + QuotePath(m_folder) +
                             " cannot be written: " + MessageOf(error)};
}

}
