#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

class IProductInformation;
class IProgrammingDeviceSubsystem;

/// A subsystem of the host, not yet known by kind: each query asks whether it is one.
/// One call at a time, on the thread of the call (see contract/device/ProgrammingDeviceControl.h).
/// A query that does not apply fails with kNoSuchInterface and leaves its result untouched.
class ISubsystem {
public:
    virtual ~ISubsystem() = default;

    virtual Status
    QueryProgrammingDeviceSubsystem(std::shared_ptr<IProgrammingDeviceSubsystem>& subsystem) = 0;
    virtual Status QueryProductInformation(std::shared_ptr<IProductInformation>& information) = 0;
};

}
