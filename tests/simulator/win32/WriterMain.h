#pragma once

/// What tells the test program that it is to write a device and nothing else: variables of its
/// environment with the device's folder and the first step.
namespace simulator {

inline constexpr const wchar_t* kWriterFolder = L"KRX8_WRITER_FOLDER";
inline constexpr const wchar_t* kWriterStep = L"KRX8_WRITER_STEP";

/// Whether this process is such a writer.
bool IsWriter();

/// Writes until something fails and returns the program's status.
int RunWriter();

}
