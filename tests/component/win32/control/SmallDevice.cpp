#include "tests/component/win32/control/SmallDevice.h"

#include "contract/device/FileInfo.h"

namespace controltests {

using contract::Status;

namespace {

struct File {
    const char* name;
    std::int32_t type;
    std::int32_t id;
    const char* version;
};

constexpr File kFiles[] = {
    {"alpha.fia", 19, 1, "1.1"}, {"beta.fia", 21, 2, "2.2"}, {"version.fia", 22, 3, "2.5.13"}};

class CFileOfDevice final : public contract::IFileInfo {
public:
    explicit CFileOfDevice(const File& file) : m_file(file) {}

    Status GetName(std::string& name) override { return Tell(m_file.name, name); }
    Status GetType(std::int32_t& type) override { return Tell(m_file.type, type); }
    Status GetId(std::int32_t& id) override { return Tell(m_file.id, id); }
    Status GetVersion(std::string& version) override { return Tell(m_file.version, version); }
    Status GetSize(std::int32_t& sizeBytes) override { return Tell(1000, sizeBytes); }
    Status GetLocation(std::int32_t& location) override { return Tell(2, location); }
    Status GetGeneration(std::uint32_t& generation) override { return Tell(0u, generation); }

private:
    template <class Value, class Result>
    Status Tell(const Value& value, Result& result) {
        result = value;
        return contract::kSuccess;
    }

    const File& m_file;
};

}

Status CSmallDevice::ReportMode() {
    m_events->RaiseToAll([](Events& sink) { return sink.ModeChanged(1); });
    return Run("RequestMode(0)");
}

Status CSmallDevice::GetTypeInfo(std::uint32_t, std::uint32_t,
                                 Shared<contract::ITypeInformation>& information) {
    information = std::make_shared<contract::ITypeInformation>();
    return contract::kSuccess;
}

Status CSmallDevice::GetFileInfo(std::int32_t index, Shared<contract::IFileInfo>& info) {
    info = std::make_shared<CFileOfDevice>(kFiles[index - 1]);
    return contract::kSuccess;
}

}
