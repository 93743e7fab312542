#include "simulator/folder/DescriptionWriter.h"

#include "simulator/folder/AddressText.h"
#include "simulator/folder/DescriptionNames.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <iterator>
#include <span>

namespace simulator {

namespace {

using Json = nlohmann::ordered_json;

Json NameOrNumber(std::span<const NamedValue> names, std::int64_t value) {
    for (const auto& entry : names) {
        if (entry.value == value) {
            return Json(entry.name);
        }
    }
    return Json(value);
}

Json Software(const SoftwareVersions& versions) {
    Json json = Json::object();
    for (const auto& [key, version] : kSoftwareVersions) {
        if (!(versions.*version).empty()) {
            json[key] = versions.*version;
        }
    }
    return json;
}

Json SelfTests(const std::map<contract::SelfTest, std::int32_t>& results) {
    Json json = Json::object();
    for (const auto& [key, test] : kSelfTests) {
        if (const auto found = results.find(test); found != results.end()) {
            json[std::string(key)] = NameOrNumber(kTestResults, found->second);
        }
    }
    return json;
}

Json Network(const NetworkSettings& settings) {
    Json json{{"ipAddress", settings.ipAddress}};
    if (settings.subnetMask != 0) {
        json["subnetMask"] = AddressText(settings.subnetMask);
    }
    if (settings.gateway != 0) {
        json["gateway"] = AddressText(settings.gateway);
    }
    json["useDhcp"] = settings.useDhcp;
    json["description"] = settings.description;
    json["macAddress"] = settings.macAddress;
    return json;
}

Json File(const StoredFile& file) {
    Json json{{"name", file.name},
              {"type", NameOrNumber(kFileTypes, file.type)},
              {"id", file.id},
              {"version", file.version},
              {"location", NameOrNumber(kLocations, file.location)},
              {"generation", NameOrNumber(kGenerations, file.generation)}};
    if (file.content != file.name) {
        json["content"] = file.content;
    }
    return json;
}

std::string StatusText(contract::Status status) {
    std::array<char, 11> text{};
    std::snprintf(text.data(), text.size(), "0x%08X", static_cast<unsigned>(status.Code()));
    return text.data();
}

Json FaultEntry(const Fault& fault) {
    Json json{{"operation", fault.operation}, {"call", fault.call}};
    if (fault.succeedsWithNull) {
        json["null"] = true;
        return json;
    }
    json["status"] = StatusText(fault.status);
    if (!fault.description.empty()) {
        json["description"] = fault.description;
    }
    return json;
}

Json LatencyEntry(const Latency& latency) {
    Json json{{"defaultMs", latency.defaultMs}};
    if (!latency.operationsMs.empty()) {
        json["operationsMs"] = latency.operationsMs;
    }
    return json;
}

Json LossEntry(const DeviceLoss& loss) {
    Json json{{"operation", loss.operation}, {"call", loss.call}};
    if (loss.returnsAfterCalls) {
        json["returnsAfterCalls"] = *loss.returnsAfterCalls;
    }
    return json;
}

template <class Element, class Convert>
Json ListOf(const std::vector<Element>& elements, const Convert& convert) {
    Json json = Json::array();
    for (const auto& element : elements) {
        json.push_back(convert(element));
    }
    return json;
}

void AddKnobs(const DeviceDescription& device, Json& json) {
    if (!device.faults.empty()) {
        json["faults"] = ListOf(device.faults, FaultEntry);
    }
    if (device.latency != Latency()) {
        json["latency"] = LatencyEntry(device.latency);
    }
    if (device.loss) {
        json["loss"] = LossEntry(*device.loss);
    }
}

Json ToJson(const DeviceDescription& device) {
    Json json{{"model", NameOrNumber(kModels, device.type)},
              {"mode", NameOrNumber(kModes, device.mode)},
              {"serialNumber", device.serialNumber}};
    if (!device.hardwareVersion.empty()) {
        json["hardwareVersion"] = device.hardwareVersion;
    }
    json["memory"] = {{"ramBytes", device.totalRamBytes}, {"flashBytes", device.totalFlashBytes}};
    if (device.pcCard) {
        json["pcCard"] = Json{{"totalBytes", device.pcCard->totalBytes}};
    }
    if (device.software != SoftwareVersions()) {
        json["software"] = Software(device.software);
    }
    if (!device.selfTests.empty()) {
        json["selfTests"] = SelfTests(device.selfTests);
    }
    if (device.network != NetworkSettings()) {
        json["network"] = Network(device.network);
    }
    json["files"] = ListOf(device.files, File);
    AddKnobs(device, json);
    return json;
}

std::string OneLine(const Json& json) {
    // Texts are UTF-8 by now; should one ever not be, it is mended and not thrown.
    const auto scalar = [](const Json& value) {
        return value.dump(-1, ' ', false, Json::error_handler_t::replace);
    };
    if (!json.is_object()) {
        return scalar(json);
    }
    std::string line = "{";
    for (const auto& [key, value] : json.items()) {
        line += (line.size() == 1 ? " " : ", ") + scalar(Json(key)) + ": " + OneLine(value);
    }
    return line + " }";
}

/// The inside of an object or a list, one member or element a line, indented by `indent`.
std::string Lines(const Json& json, const std::string& indent);

std::string Value(const std::string& key, const Json& json, const std::string& indent) {
    // The knobs read best as the sentences they are.
    const bool isSpread =
        json.is_array() || (json.is_object() && key != "latency" && key != "loss");
    if (!isSpread || json.empty()) {
        return json.is_object() && json.empty() ? "{}" : OneLine(json);
    }
    const auto inside = Lines(json, indent + "  ");
    return (json.is_array() ? "[\n" + inside + indent + "]" : "{\n" + inside + indent + "}");
}

std::string Lines(const Json& json, const std::string& indent) {
    std::string lines;
    for (auto entry = json.begin(); entry != json.end(); ++entry) {
        const auto text = json.is_array() ? OneLine(*entry)
                                          : OneLine(Json(entry.key())) + ": " +
                                                Value(entry.key(), *entry, indent);
        lines += indent + text + (std::next(entry) == json.end() ? "\n" : ",\n");
    }
    return lines;
}

}

std::string WriteDescription(const DeviceDescription& description) {
    return "{\n" + Lines(ToJson(description), "  ") + "}\n";
}

}
