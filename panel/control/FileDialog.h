#pragma once

#include "panel/control/DialogHandler.h"
#include "panel/control/Toolkit.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace panel {

/// A line of a file dialog's list of file types.
struct FileFilter {
    std::string description;
    std::string pattern; ///< such as "*.bin"; empty when the filter text named none

    friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

/// The lines of a filter text, in which descriptions and patterns alternate, each ended by "|":
/// "Ini files (*.ini)|*.ini|". A text without "|" is one description without a pattern; an empty
/// part ends the text.
std::vector<FileFilter> SplitFilter(std::string_view text);

/// What the controls of our own in an open dialog tell their owner; OnHelp is for all of it.
class IFileDialogHandler : public IDialogHandler {
public:
    /// The user has chosen a file. False refuses it, and the dialog stays open.
    virtual bool OnFileAccepted() = 0;
};

/// A file dialog of the system: the first filter is chosen at first, no box offers to open files
/// for reading only, and the choice does not join the list of recent documents. Texts are UTF-8.
struct FileDialog {
    Owner owner = Owner::Panel;
    std::string title = {}; ///< empty: the system's own
    std::vector<FileFilter> filters = {};
    std::string fileName = {}; ///< proposed
    /// Empty: the system's own choice. One that is missing: the system's, too, as near to it as may
    /// be.
    std::string startFolder = {};
    std::string defaultExtension =
        {}; ///< appended to a name typed without one; three characters count
    /// Bytes that the chosen path may take, terminator included. For a longer one the dialog stays
    /// open and says so where the front end draws it itself, and ends with kFilePathTooLong where
    /// the system does that.
    std::size_t pathCapacity = 260;
    /// Controls of our own below the list of files; null for none. The dialog can then be resized.
    const DialogTemplate* optionsTemplate = nullptr;
    IFileDialogHandler* optionsHandler = nullptr;
};

/// The error number of a dialog whose chosen path exceeds the capacity (FNERR_BUFFERTOOSMALL of
/// commdlg.h).
inline constexpr int kFilePathTooLong = 0x3003;

/// A typed path with the dialog's default extension, cut to the three characters that count, when
/// its last part has none. For front ends whose system does not do it; one that opens a file leaves
/// a name alone that exists as typed.
std::string WithDefaultExtension(const std::string& path, const std::string& defaultExtension);

/// How a file dialog ended.
struct FileOutcome {
    enum class Kind { Accepted, Cancelled, Failed };

    Kind kind = Kind::Cancelled;
    std::string path = {}; ///< full, UTF-8; of an accepted one
    int code = 0;          ///< the dialog's error number, of a failed one

    static FileOutcome Accepted(std::string path) { return {Kind::Accepted, std::move(path), 0}; }
    static FileOutcome Cancelled() { return {}; }
    static FileOutcome Failed(int code) { return {Kind::Failed, {}, code}; }

    friend bool operator==(const FileOutcome&, const FileOutcome&) = default;
};

}
