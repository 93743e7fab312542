#pragma once

#include "frontend/registry/SettingsText.h"

#include <functional>
#include <string>

namespace registry {

/// Takes a diagnostic line, which ends in a newline. Called in debug builds only.
using TraceSink = std::function<void(const std::string&)>;

/// A file of settings that several processes read and write at once. Readers see the file as it was
/// before or after each change and never wait; writers wait for one another. Operations return
/// panel::kRegistrySuccess or an error number (SystemError.h).
class CSettingsFile {
public:
    /// `path` is UTF-8; the folder that a relative one starts from is that of this moment.
    CSettingsFile(const std::string& path, TraceSink trace);

    /// Delivers what the file holds; nothing, with success, when there is no such file.
    /// kInvalidData, with a trace line, for a file that is damaged. `settings` is untouched on
    /// failure.
    int Load(Settings& settings) const;

    /// Changes the settings as they are, whoever wrote last, and puts the new file in the place of
    /// the old one when it is complete and on the medium: on failure, and whenever the process or
    /// the system stops, the old file is still there; only when the folder cannot be synced the new
    /// one is, and a power cut may take it. Makes the folders on the way to the file. A damaged
    /// file is left alone (kInvalidData).
    int Change(const std::function<void(Settings&)>& change) const;

private:
    int ChangeLocked(const std::string& path, const std::function<void(Settings&)>& change) const;

    const std::string m_path;
    const TraceSink m_trace;
};

}
