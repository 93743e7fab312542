#include "panel/update/UpdateDecisions.h"

#include "panel/control/OutputArea.h"
#include "panel/control/Utf8.h"
#include "panel/control/VersionNumber.h"

namespace panel {

namespace {

constexpr std::size_t kLongestPath = 260;

}

bool IsUpdateOffered(std::string_view package, std::string_view installed) {
    return installed.empty() || CompareVersions(package, installed) > 0;
}

std::string PackageIniPath(std::string_view packageFolder, DeviceType type) {
    const char* name = IsKrx8Family(type) ? "\\Flash\\krx8upd.ini" : "\\Flash\\krxxupd.ini";
    return std::string(CutToUtf16Units(std::string(packageFolder) + name, kLongestPath));
}

UpdateMessage MessageFor(contract::Status success) {
    return success == contract::kPartialUpdate
               ? UpdateMessage{StringId::UpdatePartiallyFailed, kWarningStyle}
               : UpdateMessage{StringId::SoftwareUpdated, kInformationStyle};
}

}
