#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

/// Writing that survives the end of the process, or of the power, at any instant. Each system does
/// it in its own way.
namespace simulator {

/// Puts `bytes` into `file`, in place of what is there: `file` is never seen half written. They are
/// first written to `aside`, which must be on the same file system. After an error `file` is as it
/// was and `aside` is gone.
std::error_code WriteDurably(const std::filesystem::path& file, const std::filesystem::path& aside,
                             std::string_view bytes);

/// Makes the names in a folder durable.
std::error_code SyncFolder(const std::filesystem::path& folder);

}
