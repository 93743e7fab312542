// A session of the panel, byte by byte: what user, host and device do, and what goes wrong.

#include "fuzz/panel/Session.h"
#include "fuzz/support/Input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::CSession(fuzz::CInput(data, size)).Play();
    return 0;
}
