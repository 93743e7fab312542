#pragma once

#include "contract/device/FileListing.h"
#include "simulator/Device.h"

namespace simulator {

/// The files of a device at the moment of asking.
class CFileListing final : public contract::IFileListing {
public:
    explicit CFileListing(const CDevice& device) : m_files(device.Files()) {}

    contract::Status GetFileCount(std::int32_t& count) override {
        return Give(static_cast<std::int32_t>(m_files->size()), count);
    }
    /// kInvalidArgument outside 1 to the count.
    contract::Status GetFileInfo(std::int32_t index,
                                 std::shared_ptr<contract::IFileInfo>& info) override;

private:
    const std::shared_ptr<const StoredFiles> m_files;
};

}
