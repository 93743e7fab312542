#include "tests/component/win32/com/SweptOperations.h"

#include "tests/component/win32/com/PanelTargets.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

namespace component {

namespace {

using interception::Answer;

template <auto method, class... Parameters, class Interface, class ComMethod>
SweptOperation Sweep(const std::string& name, const Interface*, ComMethod comMethod) {
    using Call = CRawCall<Parameters...>;
    SweptOperation operation;
    operation.name = name;
    operation.hasResults = Call::kHasResults;
    operation.roundTrip = [](CBridge& bridge, const Answer& answer) {
        return interception::COperationCheck<method>::Run(CRoundTrip(bridge), answer);
    };
    operation.call = [comMethod](CBridge& bridge, const Answer& answer) {
        const auto target = interception::MakeTarget<Interface>();
        target->exchange.status = answer.status;
        target->exchange.whileCalled = answer.whileCalled;
        const auto exported = bridge.Export<Interface>(target);
        const RawOutcome outcome = Call::Make(exported.Get(), comMethod);
        return ClientOutcome{outcome, target->exchange.received.size()};
    };
    operation.callWithNulls = [comMethod](CBridge& bridge) {
        const auto target = interception::MakeTarget<Interface>();
        const auto exported = bridge.Export<Interface>(target);
        const HRESULT result = Call::MakeWithNulls(exported.Get(), comMethod);
        return ClientOutcome{{result, true}, target->exchange.received.size()};
    };
    return operation;
}

/// "FileInfo.GetName" of "IFileInfo" and "GetName".
std::string NameOf(const std::string& interfaceName, const std::string& method) {
    return interfaceName.substr(1) + '.' + method;
}

std::vector<SweptOperation> ListOperations() {
    std::vector<SweptOperation> operations;
#define INTERFACE(contract_, com)                                                                  \
    {                                                                                              \
        using Contract = contract::contract_;                                                      \
        using Com [[maybe_unused]] = ::com;                                                        \
        const std::string of = #contract_;                                                         \
        [[maybe_unused]] const Contract* const none = nullptr;
#define METHOD0(name)                                                                              \
    operations.push_back(Sweep<&Contract::name>(NameOf(of, #name), none, &Com::name));
#define METHOD1(name, A)                                                                           \
    operations.push_back(Sweep<&Contract::name, A>(NameOf(of, #name), none, &Com::name));
#define METHOD2(name, A, B)                                                                        \
    operations.push_back(Sweep<&Contract::name, A, B>(NameOf(of, #name), none, &Com::name));
#define METHOD4(name, A, B, C, D)                                                                  \
    operations.push_back(Sweep<&Contract::name, A, B, C, D>(NameOf(of, #name), none, &Com::name));
#define LONG_FLAG(name)                                                                            \
    operations.push_back(Sweep<&Contract::name, LongFlag>(NameOf(of, #name), none, &Com::name));
#define END }
#include "component/win32/com/InterfaceTable.inc"
    return operations;
}

std::vector<std::string> ListQueries() {
    std::vector<std::string> queries;
#define QUERY(contract_, name, other) queries.push_back(NameOf(#contract_, #name));
#include "component/win32/com/InterfaceTable.inc"
    return queries;
}

}

const std::vector<SweptOperation>& SweptOperations() {
    static const std::vector<SweptOperation> operations = ListOperations();
    return operations;
}

const std::vector<std::string>& Queries() {
    static const std::vector<std::string> queries = ListQueries();
    return queries;
}

}
