// The description of a simulated device: the bytes of its device.json, beside a few stored files.

#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Utf8Oracle.h"
#include "simulator/Device.h"
#include "simulator/DeviceFolder.h"
#include "simulator/folder/DescriptionWriter.h"
#include "tests/simulator/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace {

using namespace fuzz;
using simulator::CDevice;
using simulator::DescriptionError;
using simulator::DeviceDescription;

struct Content {
    const char* name;
    const char* bytes;
};

constexpr Content kContents[] = {{"a", "1"}, {"b.fia", "22"}, {"version.fia", "333"}, {"d", ""}};

const simulator::CTemporaryFolder& Folder() {
    static const simulator::CTemporaryFolder folder;
    return folder;
}

void Describe(const std::string& text) {
    Folder().Write("device.json", text);
    for (const auto& [name, bytes] : kContents) {
        // A device that was changed removes what it does not name.
        if (!std::filesystem::exists(Folder().Path() / "files" / name)) {
            Folder().Write(std::string("files/") + name, bytes);
        }
    }
}

bool IsOneLine(const std::string& text) {
    return std::none_of(text.begin(), text.end(), [](char letter) {
        return static_cast<unsigned char>(letter) < ' ' || letter == '\x7F';
    });
}

void TryRefusal(const DescriptionError& error, const std::string& text) {
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    Require(error.line <= lines, "a refusal names a line of the text");
    Require(!error.reason.empty(), "a refusal has a reason");
    Require(IsUtf8(error.Message()), "a refusal is UTF-8");
    Require(IsOneLine(error.Message()), "a refusal is one line");
}

DeviceDescription Read(const char* what) {
    auto result = simulator::ReadDeviceFolder(Folder().Path());
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        RequireEqual(error->Message(), "", what);
    }
    return std::get<DeviceDescription>(std::move(result));
}

void TryFiles(const DeviceDescription& description) {
    for (const auto& file : description.files) {
        const auto* content =
            std::find_if(std::begin(kContents), std::end(kContents),
                         [&](const Content& stored) { return file.content == stored.name; });
        Require(content != std::end(kContents), "a file's bytes are stored");
        Require(file.sizeBytes == static_cast<std::int32_t>(std::string(content->bytes).size()),
                "a file has the size of its bytes");
    }
}

void TryWriting(const DeviceDescription& description) {
    const std::string written = simulator::WriteDescription(description);
    Describe(written);
    const DeviceDescription again = Read("what was written can be read");
    Require(again == description, "what was written reads the same");
    RequireEqual(simulator::WriteDescription(again), written, "and is written the same");
}

/// What a device in a folder does is kept there.
void TryDevice() {
    auto opened = simulator::OpenDevice(Folder().Path());
    Require(std::holds_alternative<std::shared_ptr<CDevice>>(opened), "a device opens");
    const auto device = std::get<std::shared_ptr<CDevice>>(opened);
    Require(device->FreeFlashBytes() <= device->Description().totalFlashBytes &&
                device->FreeRamBytes() <= device->Description().totalRamBytes,
            "no more is free than there is");
    Require(device->RequestMode(contract::ModeRequest::Reset).IsSuccess(), "a device resets");
    Require(Read("a device that was reset can be read") == device->State(), "a device is kept");
    DeviceDescription next = device->State();
    next.files.clear();
    Require(!device->Change(next), "a device's files can go");
    Require(Read("a device without files can be read") == device->State(), "and are gone then");
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(CInput(data, size).Rest());
    Describe(text);
    const auto result = simulator::ReadDeviceFolder(Folder().Path());
    if (const auto* error = std::get_if<DescriptionError>(&result)) {
        TryRefusal(*error, text);
        return 0;
    }
    const auto& description = std::get<DeviceDescription>(result);
    TryFiles(description);
    TryWriting(description);
    TryDevice();
    return 0;
}
