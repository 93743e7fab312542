#pragma once

namespace registry {

/// Error numbers of winerror.h that a registry in a file answers with, beside those of
/// panel/control/Registry.h.
inline constexpr int kPathNotFound = 3;
inline constexpr int kTooManyOpenFiles = 4;
inline constexpr int kAccessDenied = 5;
inline constexpr int kInvalidData = 13;
inline constexpr int kGeneralFailure = 31;
inline constexpr int kDiskFull = 112;
inline constexpr int kInvalidName = 123;
inline constexpr int kNameTooLong = 206;
inline constexpr int kFileTooLarge = 223;
inline constexpr int kNoUnicode = 1113; ///< a text that is not UTF-8

/// The error number that says what an errno says; kGeneralFailure for one that has no counterpart.
int ToErrorNumber(int systemError);

}
