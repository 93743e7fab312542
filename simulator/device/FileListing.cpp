#include "simulator/device/FileListing.h"

#include "simulator/device/FileInfo.h"

#include <cstddef>
#include <string>

namespace simulator {

contract::Status CFileListing::GetFileInfo(std::int32_t index,
                                           std::shared_ptr<contract::IFileInfo>& info) {
    if (index < 1 || static_cast<std::size_t>(index) > m_files->size()) {
        return Fail(kInvalidArgument, "There is no file " + std::to_string(index) +
                                          " in a listing of " + std::to_string(m_files->size()));
    }
    info = std::make_shared<CFileInfo>(m_files, (*m_files)[static_cast<std::size_t>(index) - 1]);
    return contract::kSuccess;
}

}
