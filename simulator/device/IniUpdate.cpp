#include "simulator/device/IniUpdate.h"

#include "simulator/device/CodeOperations.h"
#include "simulator/device/FileOperations.h"
#include "simulator/device/SelfTestRun.h"
#include "simulator/device/StartMode.h"
#include "simulator/device/UpdateDescription.h"
#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemPath.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>
#include <variant>

namespace simulator {

namespace {

using Path = std::filesystem::path;
using Kind = UpdateEntry::Kind;

constexpr const char* kVerb = "Updating";
constexpr std::int32_t kVersionFileId = 1;

/// One update of one device.
class CUpdateRun {
public:
    CUpdateRun(CDevice& device, Path folder, UpdateDescription description)
        : m_device(device), m_folder(std::move(folder)), m_description(std::move(description)) {}

    Outcome Run(bool& isPartial) {
        const CMaintenance maintenance(m_device);
        for (const auto& entry : m_description.entries) {
            Try(entry);
        }
        if (m_loaded == 0) {
            return Failure{m_firstFailure->status, "None of the files of the package could be "
                                                   "loaded: " +
                                                       m_firstFailure->description};
        }
        if (m_loaded == m_description.entries.size()) {
            Note(kVersionFileName, InstallVersionFile());
        }
        if (auto failure = Start()) {
            return failure;
        }
        isPartial = m_firstFailure.has_value();
        return std::nullopt;
    }

private:
    void Try(const UpdateEntry& entry) {
        auto failure = Load(entry);
        m_loaded += failure ? 0 : 1;
        Note(entry.path, std::move(failure));
    }

    /// Tells of a failure, if it is one.
    void Note(const std::string& name, Outcome failure) {
        if (!failure) {
            return;
        }
        m_device.RaiseMessage(EscapeForMessage(name) + " was not loaded: " + failure->description,
                              0, 0);
        if (!m_firstFailure) {
            m_firstFailure = std::move(failure);
        }
    }

    Outcome Load(const UpdateEntry& entry) {
        const auto path = m_folder / PathOf(entry.path).make_preferred();
        if (auto failure = ExpectInFolder(path)) {
            return failure;
        }
        auto opened = CSourceFile::Open(path);
        if (auto* failure = std::get_if<Failure>(&opened)) {
            return std::move(*failure);
        }
        const auto& source = std::get<CSourceFile>(opened);
        if (entry.kind == Kind::PhoneFile) {
            auto ignored = UploadResult::Stored;
            return StorePhoneFile(m_device, source, entry.destination, UploadMethod::Force, kVerb,
                                  ignored);
        }
        return LoadCode(m_device, source, KindOf(entry.kind), kVerb);
    }

    static CodeKind KindOf(Kind kind) {
        if (kind == Kind::Fpga) {
            return CodeKind::Fpga;
        }
        return kind == Kind::Application ? CodeKind::Application : CodeKind::Image;
    }

    /// The description's own paths stay in its folder; a symbolic link in it might not.
    Outcome ExpectInFolder(const Path& path) const {
        std::error_code error;
        const auto folder = ResolvePath(m_folder, error);
        const auto file = ResolvePath(path, error);
        const auto [end, ignored] =
            std::mismatch(folder.begin(), folder.end(), file.begin(), file.end());
        if (!folder.empty() && !error && end == folder.end()) {
            return std::nullopt;
        }
        return Failure{kAccessDenied, "it lies outside the folder of the description"};
    }

    Outcome InstallVersionFile() {
        const auto text = std::string(kVersionFileName) + " " + m_description.version + "\n";
        auto state = m_device.State();
        PassIfPresent(state, contract::SelfTest::SecondaryAndAlgorithmFiles);
        // A device may hold several that panels take for it; none of them may tell an old version.
        std::erase_if(state.files, [](const StoredFile& stored) {
            return IsSameName(stored.name, kVersionFileName);
        });
        PhoneFile file;
        file.name = kVersionFileName;
        file.type = kMcuSoftware;
        file.sizeBytes = static_cast<std::int32_t>(text.size());
        file.version = m_description.version;
        if (!HasVersionFileId(state)) {
            file.id = kVersionFileId;
        }
        auto plan = PlanStore(std::move(state), file, Destination::Flash, UploadMethod::Default);
        if (auto* failure = std::get_if<Failure>(&plan)) {
            return std::move(*failure);
        }
        auto& store = std::get<StorePlan>(plan);
        const NewContent content{store.file, text};
        return m_device.Change(std::move(store.next), &content);
    }

    static bool HasVersionFileId(const DeviceDescription& state) {
        return std::any_of(state.files.begin(), state.files.end(), [](const StoredFile& stored) {
            return stored.type == kMcuSoftware && AddressingPart(stored.id) == kVersionFileId;
        });
    }

    Outcome Start() {
        auto next = m_device.State();
        next.mode = ModeAfterStart(next);
        return m_device.Change(std::move(next));
    }

    CDevice& m_device;
    const Path m_folder;
    const UpdateDescription m_description;
    std::size_t m_loaded = 0;
    Outcome m_firstFailure;
};

}

Outcome UpdateFromIniFile(CDevice& device, const std::string& path, bool& isPartial) {
    const auto file = LocalPath(path);
    auto read = ReadUpdateDescription(file, device.Description().type);
    if (auto* failure = std::get_if<Failure>(&read)) {
        return std::move(*failure);
    }
    auto& description = std::get<UpdateDescription>(read);
    const auto name = description.name.empty() ? "version" : EscapeForMessage(description.name);
    device.RaiseMessage("Updating to " + name + " " + description.version, 0, 0);
    auto folder = file.parent_path();
    return CUpdateRun(device, folder.empty() ? Path(".") : folder, std::move(description))
        .Run(isPartial);
}

}
