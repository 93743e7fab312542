#pragma once

#include "component/win32/com/Bridge.h"
#include "tests/component/win32/com/RawCall.h"
#include "tests/interception/OperationCheck.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace component {

/// Leads each object through COM and back.
class CRoundTrip {
public:
    explicit CRoundTrip(CBridge& bridge) : m_bridge(bridge) {}

    template <class Interface>
    requires requires { typename InterfacePair<Interface>::Com; }
    std::shared_ptr<Interface> Wrap(const std::shared_ptr<Interface>& object) const {
        return m_bridge.Import<Interface>(m_bridge.Export(object).Get());
    }

private:
    CBridge& m_bridge;
};

/// What came of a call that a client in COM has made.
struct ClientOutcome {
    RawOutcome call;
    std::size_t received = 0;
};

/// An operation that has the same parameters in the contract and in COM.
struct SweptOperation {
    std::string name;
    bool hasResults;
    /// Calls it from the contract through COM.
    std::function<interception::Outcome(CBridge&, const interception::Answer&)> roundTrip;
    /// Calls it as a client in COM, with places for the results and with null for them.
    std::function<ClientOutcome(CBridge&, const interception::Answer&)> call;
    std::function<ClientOutcome(CBridge&)> callWithNulls;
};

inline void PrintTo(const SweptOperation& operation, std::ostream* stream) {
    *stream << operation.name;
}

/// All that the table of interfaces lists as methods.
const std::vector<SweptOperation>& SweptOperations();
/// Names of the operations that it lists as queries.
const std::vector<std::string>& Queries();

}
