// The file of the machine's settings: its bytes.

#include "frontend/registry/FileRegistry.h"
#include "frontend/registry/SystemError.h"
#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"
#include "tests/simulator/TemporaryFolder.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using namespace fuzz;
using registry::Settings;

/// A writing is synced, so that few keys are written to.
constexpr int kKeysWritten = 2;

/// Counts the names of a text, which a parser does not keep where they stand twice.
class CNameCounter final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool key(string_t&) override {
        ++count;
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

    std::size_t count = 0;
};

std::size_t NamesIn(const Settings& settings) {
    std::size_t names = settings.size();
    for (const auto& values : settings) {
        names += values.size();
    }
    return names;
}

/// Returns whether the text is one of settings.
bool TryText(const std::string& text, Settings& settings) {
    const std::string fault = registry::ParseSettings(text, settings);
    if (!fault.empty()) {
        Require(settings.is_null(), "nothing is read from a damaged text");
        return false;
    }
    CNameCounter names;
    Require(nlohmann::json::sax_parse(text, &names), "settings are JSON");
    Require(names.count == NamesIn(settings), "no name of the text is lost");
    const std::string written = registry::FormatSettings(settings);
    Require(!written.empty(), "what was read can be written");
    Settings again;
    RequireEqual(registry::ParseSettings(written, again), "", "what was written can be read");
    Require(again == settings, "what was written reads the same");
    RequireEqual(registry::FormatSettings(again), written, "and is written the same");
    return true;
}

/// A registry in a file of that content.
class CScratch {
public:
    explicit CScratch(const std::string& text) { std::ofstream(Path(), std::ios::binary) << text; }

    std::string Text() const {
        std::ifstream stream(Path(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    Settings Content() const {
        Settings settings;
        RequireEqual(registry::ParseSettings(Text(), settings), "", "the file stays sound");
        return settings;
    }

    registry::CFileRegistry registry{Path(), [](const std::string& line) {
                                         Require(line.ends_with('\n'), "a trace line ends");
                                     }};

private:
    static std::string Path() {
        static const simulator::CTemporaryFolder folder;
        return folder.PathOf("registry.json");
    }
};

void TryDamaged(const std::string& text) {
    CScratch scratch(text);
    std::unique_ptr<panel::IRegistryKey> key;
    Require(scratch.registry.OpenKey("A\\B", key) == panel::kRegistryNotFound && !key,
            "a damaged file has no keys");
    Require(scratch.registry.CreateKey("A\\B", key) == registry::kInvalidData && !key,
            "a damaged file takes no keys");
    RequireEqual(scratch.Text(), text, "a damaged file stays as it is");
}

std::string Bytes(const Settings& value) {
    if (value.is_string()) {
        return value.get<std::string>() + '\0';
    }
    const auto number = value.get<std::uint32_t>();
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

void TryReading(panel::IRegistryKey& key, const std::string& name, const std::string& expected) {
    std::string bytes = "as before";
    Require(key.ReadValue(name, expected.size() - 1, bytes) == panel::kRegistryMoreData,
            "a value does not fit into less room");
    RequireEqual(bytes, "as before", "a value that does not fit is not delivered");
    Require(key.ReadValue(name, expected.size(), bytes) == panel::kRegistrySuccess,
            "a value fits into its own room");
    RequireEqual(bytes, expected, "a value is what the file says");
}

void TryWriting(const CScratch& scratch, const std::string& path, panel::IRegistryKey& key) {
    Settings expected = scratch.Content();
    expected[path]["written"] = "\xC3\xA9\n\\";
    Require(key.WriteText("written", "\xC3\xA9\n\\") == panel::kRegistrySuccess, "a text is taken");
    expected[path][""] = 4294967295U;
    Require(key.WriteNumber("", 4294967295U) == panel::kRegistrySuccess, "a number is taken");
    Require(scratch.Content() == expected, "nothing but what is written changes");
    const std::string before = scratch.Text();
    Require(key.WriteText("\xC3", "") == registry::kNoUnicode, "a name is UTF-8");
    RequireEqual(scratch.Text(), before, "what is refused changes nothing");
}

/// The path of a key as programs name it; empty for a name that none of them can have written.
std::string PathOf(std::string name) {
    const bool isPath = !name.empty() && name.find('\\') == std::string::npos &&
                        name.find("//") == std::string::npos && name.front() != '/' &&
                        name.back() != '/';
    std::replace(name.begin(), name.end(), '/', '\\');
    return isPath ? name : "";
}

void TrySound(const std::string& text, const Settings& settings) {
    CScratch scratch(text);
    int written = 0;
    for (const auto& [name, values] : settings.items()) {
        const std::string path = PathOf(name);
        if (path.empty()) {
            continue;
        }
        std::unique_ptr<panel::IRegistryKey> key;
        Require(scratch.registry.OpenKey(path, key) == panel::kRegistrySuccess && key,
                "a key of the file opens");
        for (const auto& [valueName, value] : values.items()) {
            TryReading(*key, valueName, Bytes(value));
        }
        if (written++ < kKeysWritten) {
            TryWriting(scratch, name, *key);
        }
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(CInput(data, size).Rest());
    Settings settings;
    if (TryText(text, settings)) {
        TrySound(text, settings);
    } else {
        TryDamaged(text);
    }
    return 0;
}
