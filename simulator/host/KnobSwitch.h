#pragma once

#include "interception/Interceptor.h"

#include <memory>
#include <utility>

namespace simulator {

/// Leads the calls on a host through the knobs of the device that was last inserted.
class CKnobSwitch final : public interception::IInterceptor {
public:
    /// Null lets calls pass.
    void Select(std::shared_ptr<interception::IInterceptor> knobs) { m_knobs = std::move(knobs); }

    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override {
        // A copy: the device may be exchanged from inside the call.
        const auto knobs = m_knobs;
        return knobs ? knobs->Call(operation, run) : run();
    }

    /// What the control makes of a device lives shortly, so that it is wrapped for knobs only. All
    /// else may live until a device with knobs comes.
    bool WrapsResultOf(const interception::Operation& operation) const override {
        return m_knobs || !operation.name.starts_with("ProgrammingDeviceControl.Get");
    }

private:
    std::shared_ptr<interception::IInterceptor> m_knobs;
};

}
