#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "simulator/Failure.h"

#include <memory>
#include <utility>

namespace simulator {

/// A subsystem of a CHost: one of the two kinds, the other is null.
class CSubsystem final : public contract::ISubsystem {
public:
    explicit CSubsystem(std::shared_ptr<contract::IProgrammingDeviceSubsystem> programming)
        : m_programming(std::move(programming)) {}
    explicit CSubsystem(std::shared_ptr<contract::IProductInformation> product)
        : m_product(std::move(product)) {}

    contract::Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) override {
        return m_programming ? Give(m_programming, subsystem) : FailAsOtherKind();
    }
    contract::Status
    QueryProductInformation(std::shared_ptr<contract::IProductInformation>& information) override {
        return m_product ? Give(m_product, information) : FailAsOtherKind();
    }

private:
    static contract::Status FailAsOtherKind() {
        return Fail(contract::kNoSuchInterface, "The subsystem is of another kind");
    }

    const std::shared_ptr<contract::IProgrammingDeviceSubsystem> m_programming;
    const std::shared_ptr<contract::IProductInformation> m_product;
};

}
