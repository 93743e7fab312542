#pragma once

#include "simulator/DeviceStore.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace simulator {

/// Keeps a device in its folder (docs/device-folder.md).
///
/// The description says which files of the folder `files` belong to the device, so that replacing
/// the description is what makes a change: new bytes are stored before it, under a name that the
/// old description does not use, and what no description names is removed after it. An end at any
/// instant leaves the old state or the new one, and perhaps a file that the next change removes.
class CFolderStore final : public IDeviceStore {
public:
    /// `text` is the description as it was read.
    CFolderStore(const std::filesystem::path& folder, std::string text);

    /// kChangedElsewhere when the description is no longer the one that was read or stored last;
    /// kWriteFault when the folder cannot be written. The folder is locked meanwhile.
    Outcome Save(DeviceDescription& description, const NewContent* content) override;

private:
    Outcome ExpectUnchanged() const;
    Outcome StoreContent(StoredFile& file, const std::string& bytes) const;
    Outcome StoreDescription(const DeviceDescription& description);
    std::string UnusedName(const std::string& wanted) const;
    void RemoveWhatIsNotIn(const DeviceDescription& description) const;
    Failure FailToWrite(std::error_code error) const;

    const std::filesystem::path m_folder;
    const std::filesystem::path m_files;
    std::string m_text;
};

}
