#include "frontend/registry/SystemError.h"

#include "panel/control/Registry.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace registry {

namespace {

struct Counterpart {
    int systemError;
    int number;
};

constexpr Counterpart kCounterparts[] = {
    {ENOENT, panel::kRegistryNotFound},
    {ENOTDIR, kPathNotFound},
    {ELOOP, kPathNotFound},
    {EMFILE, kTooManyOpenFiles},
    {ENFILE, kTooManyOpenFiles},
    {EACCES, kAccessDenied},
    {EPERM, kAccessDenied},
    {EROFS, kAccessDenied},
    {EISDIR, kAccessDenied},
    {ENOSPC, kDiskFull},
    {EDQUOT, kDiskFull},
    {ENAMETOOLONG, kNameTooLong},
    {EFBIG, kFileTooLarge},
};

}

int ToErrorNumber(int systemError) {
    const auto* found =
        std::find_if(std::begin(kCounterparts), std::end(kCounterparts),
                     [&](const Counterpart& known) { return known.systemError == systemError; });
    return found == std::end(kCounterparts) ? kGeneralFailure : found->number;
}

}
