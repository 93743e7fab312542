#include "simulator/folder/KnobReader.h"

#include "interception/Operations.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>

namespace simulator {

namespace {

/// A minute: more is a typing error, and a panel that hangs for it is no help in finding it.
constexpr std::int64_t kLongestLatencyMs = 60000;

const interception::Operation& ReadOperation(const CDescriptionNode& node) {
    const auto* operation = interception::FindOperation(node.Member("operation").Text());
    if (!operation) {
        node.Member("operation").Refuse("is not the name of an operation");
    }
    return *operation;
}

std::uint32_t ReadCallNumber(const CDescriptionNode& node) {
    return static_cast<std::uint32_t>(node.Member("call").WholeNumber(1, 4294967295));
}

contract::Status ReadFailure(const CDescriptionNode& node) {
    const auto text = node.Text();
    std::uint32_t bits = 0;
    const auto* end = text.data() + text.size();
    const bool hasPrefix = text.starts_with("0x");
    if (hasPrefix) {
        const auto [rest, error] = std::from_chars(text.data() + 2, end, bits, 16);
        if (error != std::errc() || rest != end) {
            bits = 0;
        }
    }
    const auto status = contract::Status::FromBits(bits);
    if (!status.IsFailure()) {
        node.Refuse("must be a failure code such as \"0x80004005\" (0x80000000 to 0xFFFFFFFF)");
    }
    return status;
}

void ExpectNullFault(const CDescriptionNode& fault, const interception::Operation& operation) {
    if (operation.delivers != interception::Delivers::Object) {
        fault.Member("null").Refuse("is for operations that deliver an object");
    }
    for (const auto* key : {"status", "description"}) {
        if (const auto member = fault.OptionalMember(key)) {
            member->Refuse("has no place beside \"null\"");
        }
    }
}

Fault ReadFault(const CDescriptionNode& node) {
    node.ExpectKeys({"operation", "call", "status", "description", "null"});
    const auto& operation = ReadOperation(node);
    Fault fault;
    fault.operation = operation.name;
    fault.call = ReadCallNumber(node);
    const auto null = node.OptionalMember("null");
    fault.succeedsWithNull = null && null->Flag();
    if (fault.succeedsWithNull) {
        ExpectNullFault(node, operation);
        return fault;
    }
    fault.status = ReadFailure(node.Member("status"));
    fault.description = node.OptionalText("description");
    return fault;
}

/// Latency is for the device: its calls are made where they may take their time. The host answers
/// on the thread that paints its window, which would stand still.
void ExpectDeviceOperation(const CDescriptionNode& node, const std::string& name) {
    const auto* operation = interception::FindOperation(name);
    if (!operation) {
        node.Refuse("is not the name of an operation");
    }
    if (operation->provider != interception::Provider::Device) {
        node.Refuse("is not an operation of the device");
    }
}

Latency ReadLatency(const CDescriptionNode& node) {
    node.ExpectKeys({"defaultMs", "operationsMs"});
    const auto readTime = [](const CDescriptionNode& time) {
        return static_cast<std::uint32_t>(time.WholeNumber(0, kLongestLatencyMs));
    };
    Latency latency;
    if (const auto time = node.OptionalMember("defaultMs")) {
        latency.defaultMs = readTime(*time);
    }
    if (const auto operations = node.OptionalMember("operationsMs")) {
        operations->ForEachMember([&](const std::string& name, const CDescriptionNode& time) {
            ExpectDeviceOperation(time, name);
            latency.operationsMs[name] = readTime(time);
        });
    }
    return latency;
}

DeviceLoss ReadLoss(const CDescriptionNode& node) {
    node.ExpectKeys({"operation", "call", "returnsAfterCalls"});
    DeviceLoss loss;
    loss.operation = ReadOperation(node).name;
    loss.call = ReadCallNumber(node);
    if (const auto calls = node.OptionalMember("returnsAfterCalls")) {
        loss.returnsAfterCalls = calls->WholeNumberOf<std::uint32_t>();
    }
    return loss;
}

}

void ReadKnobs(const CDescriptionNode& root, DeviceDescription& description) {
    if (const auto faults = root.OptionalMember("faults")) {
        faults->ForEachElement(
            [&](const auto& fault) { description.faults.push_back(ReadFault(fault)); });
    }
    if (const auto latency = root.OptionalMember("latency")) {
        description.latency = ReadLatency(*latency);
    }
    if (const auto loss = root.OptionalMember("loss")) {
        description.loss = ReadLoss(*loss);
    }
}

}
