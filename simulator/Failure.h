#pragma once

#include "contract/ErrorInfo.h"
#include "contract/Status.h"

#include <string>

namespace simulator {

/// The operation is not offered (E_NOTIMPL, winerror.h).
inline constexpr auto kNotImplemented = contract::Status::FromBits(0x80004001);
/// An argument that makes no sense (E_INVALIDARG, winerror.h).
inline constexpr auto kInvalidArgument = contract::Status::FromBits(0x80070057);
/// A cookie that names no subscription (CONNECT_E_NOCONNECTION, olectl.h).
inline constexpr auto kNoSuchCookie = contract::Status::FromBits(0x80040200);
/// No device in the host (ERROR_DEVICE_NOT_CONNECTED, winerror.h, as an HRESULT).
inline constexpr auto kDeviceNotConnected = contract::Status::FromBits(0x8007048F);

/// Leaves `description` for the caller's thread and returns `status`.
inline contract::Status Fail(contract::Status status, const std::string& description) {
    contract::SetErrorInfo(description);
    return status;
}

/// The failure of every operation that the simulated devices do not carry out.
inline contract::Status FailAsNotAvailable() {
    return Fail(kNotImplemented, "Not available in this version of the simulated device");
}

/// Delivers a value. Exists so that the many operations which do only that are one line each.
template <class Value>
contract::Status Give(const Value& value, Value& result) {
    result = value;
    return contract::kSuccess;
}

}
