#pragma once

#include <string>

/// The description that a failing call may leave for its caller.
///
/// One text a thread, process wide: host, device service and panel link the same shared library,
/// krx8_contract, so that a description set in one is read in another. A failing operation sets
/// it just before it returns, on the thread of the call (a host that carries calls out on a thread
/// of its own hands it to the caller's); the panel clears it before every call it makes and takes
/// it into the report of the failure. None of the functions throws; a text for which there is no
/// memory is dropped.
namespace contract {

/// Leaves a description (UTF-8) for the current thread, replacing the one there.
void SetErrorInfo(const std::string& description) noexcept;

/// Returns the current thread's description and clears it; empty when there is none.
std::string TakeErrorInfo() noexcept;

/// Clears the current thread's description.
void ClearErrorInfo() noexcept;

/// Clears the description of the thread that made it, looked up once: for a caller that clears
/// before each of very many calls. Not to be used on another thread.
class CErrorInfoClearer {
public:
    CErrorInfoClearer() noexcept;

    void Clear() noexcept { m_hasDescription = false; }

private:
    bool& m_hasDescription;
};

}
