#pragma once

#include "simulator/Device.h"
#include "simulator/device/FilePlan.h"
#include "simulator/device/SourceFile.h"

#include <cstdint>
#include <string>

/// The operations on the files of a device. A failure changes nothing on it.
namespace simulator {

/// What became of an upload; the numbers are the operation's own result.
enum class UploadResult : std::int32_t { Stored = 0, UpToDate = 1 };

/// Stores a file of the workstation, with messages that begin with `verb` ("Uploading") and tell
/// the progress in bytes.
Outcome StorePhoneFile(CDevice& device, const CSourceFile& source, Destination destination,
                       UploadMethod method, const std::string& verb, UploadResult& result);

/// UploadPhoneFile, MoveFile and DeleteFile of the service.
Outcome UploadPhoneFile(CDevice& device, const std::string& path, std::int32_t destination,
                        std::int32_t method, std::int32_t& result);
Outcome MoveFile(CDevice& device, std::int32_t type, std::int32_t id, std::int32_t destination,
                 std::int32_t reserved);
Outcome DeleteFile(CDevice& device, std::int32_t type, std::int32_t id);

}
