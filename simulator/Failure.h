#pragma once

#include "contract/ErrorInfo.h"
#include "contract/Status.h"

#include <optional>
#include <string>

namespace simulator {

// The codes are those of winerror.h and olectl.h; a name in brackets is the one it has there.

/// An argument that makes no sense (E_INVALIDARG).
inline constexpr auto kInvalidArgument = contract::Status::FromBits(0x80070057);
/// A cookie that names no subscription (CONNECT_E_NOCONNECTION).
inline constexpr auto kNoSuchCookie = contract::Status::FromBits(0x80040200);
/// No device in the host (ERROR_DEVICE_NOT_CONNECTED, as an HRESULT).
inline constexpr auto kDeviceNotConnected = contract::Status::FromBits(0x8007048F);
/// There is no such file, here or on the device (ERROR_FILE_NOT_FOUND).
inline constexpr auto kFileNotFound = contract::Status::FromBits(0x80070002);
/// A file that may not be read (ERROR_ACCESS_DENIED).
inline constexpr auto kAccessDenied = contract::Status::FromBits(0x80070005);
/// A file whose content is not what it should be (ERROR_INVALID_DATA).
inline constexpr auto kInvalidData = contract::Status::FromBits(0x8007000D);
/// The device or its medium is in no state for the operation (ERROR_NOT_READY).
inline constexpr auto kNotReady = contract::Status::FromBits(0x80070015);
/// The device's folder cannot be written (ERROR_WRITE_FAULT).
inline constexpr auto kWriteFault = contract::Status::FromBits(0x8007001D);
/// A file cannot be read to its end (ERROR_READ_FAULT).
inline constexpr auto kReadFault = contract::Status::FromBits(0x8007001E);
/// A memory of the device is full (ERROR_DISK_FULL).
inline constexpr auto kMemoryFull = contract::Status::FromBits(0x80070070);
/// A file name that the device has no room for (ERROR_FILENAME_EXCED_RANGE).
inline constexpr auto kNameTooLong = contract::Status::FromBits(0x800700CE);
/// A name that is not UTF-8 (ERROR_NO_UNICODE_TRANSLATION).
inline constexpr auto kNotUtf8 = contract::Status::FromBits(0x80070459);
/// Another program has changed the device's folder (ERROR_REVISION_MISMATCH).
inline constexpr auto kChangedElsewhere = contract::Status::FromBits(0x8007051A);

/// Leaves `description` for the caller's thread and returns `status`.
inline contract::Status Fail(contract::Status status, const std::string& description) {
    contract::SetErrorInfo(description);
    return status;
}

/// What went wrong, as a value. Operations that raise events carry it to their end before it is
/// left for the thread: who hears an event may call the device, which clears the description.
struct Failure {
    contract::Status status;
    std::string description;
};

/// What came of a step: nothing when it succeeded.
using Outcome = std::optional<Failure>;

/// Leaves the description of a failure for the caller's thread and returns the status.
inline contract::Status Report(const Outcome& outcome) {
    return outcome ? Fail(outcome->status, outcome->description) : contract::kSuccess;
}

/// Delivers a value. Exists so that the many operations which do only that are one line each.
template <class Value>
contract::Status Give(const Value& value, Value& result) {
    result = value;
    return contract::kSuccess;
}

}
