#pragma once

#include "contract/EventSource.h"
#include "contract/Status.h"

#include <cstdint>
#include <memory>
#include <string>

namespace contract {

class _IProgrammingDeviceControlEvents;
class IExternalStorages;
class IFileListing;
class IFreeResources;
class IHardwareInfo;
class ISelfTestResults;
class ISoftwareInfo;

/// Requests that RequestMode understands.
enum class ModeRequest : std::int32_t { Report = 0, Normal = 1, Reset = 4 };

/// Bits of the mask that RerunMediaTests takes.
inline constexpr std::uint32_t kInternalFlashTest = 0x10000;
inline constexpr std::uint32_t kPcCardTest = 0x2000;

/// The programming-device service: every operation on the connected device.
///
/// One call at a time, on the thread of the call: the panel calls on the user-interface thread and
/// is blocked until the device answers, but a host may carry each call out on a thread of its own
/// meanwhile, the same one for all. A device leaves its description there and raises there what
/// events it raises from inside an operation, any of them; such a host hands both to the
/// user-interface thread. The same goes for every object that an operation delivers and for those
/// that lead to this one.
///
/// A failing operation returns a negative status, leaves its results untouched and may leave a
/// description (contract/ErrorInfo.h). Objects delivered are the caller's to release. An operation
/// that succeeds delivers an object that is not null.
class IProgrammingDeviceControl {
public:
    virtual ~IProgrammingDeviceControl() = default;

    /// Asks for the object through which events are found. kNoSuchInterface: no events.
    virtual Status
    QueryBaseObject(std::shared_ptr<IBaseObject<_IProgrammingDeviceControlEvents>>& object) = 0;

    virtual Status GetHardwareInfo(std::shared_ptr<IHardwareInfo>& info) = 0;
    virtual Status GetSoftwareInfo(std::shared_ptr<ISoftwareInfo>& info) = 0;
    /// The panel asks a KRX-8 or KRX-8C in Normal mode only, the others in every mode.
    virtual Status GetFreeResources(std::shared_ptr<IFreeResources>& resources) = 0;
    virtual Status GetSelfTestResults(std::shared_ptr<ISelfTestResults>& results) = 0;
    /// The panel asks in Normal mode only.
    virtual Status GetFileListing(std::shared_ptr<IFileListing>& listing) = 0;
    virtual Status GetExternalStorages(std::shared_ptr<IExternalStorages>& storages) = 0;

    /// Report asks for the mode, Normal switches to Normal mode, Reset restarts the device and
    /// returns when it answers again. The mode arrives as the event ModeChanged, before the
    /// operation returns or later.
    virtual Status RequestMode(ModeRequest request) = 0;

    /// Stores the file at `path` (UTF-8, absolute) on the device. destination: 0 the device's
    /// default, 1 RAM, 2 flash memory, 3 external storage. method: 0 the device's default, 1 force,
    /// 2 only if the version is newer, 3 flashing. -1 in either: the choice could not be read.
    /// `result` is the device's own code, which the panel ignores.
    virtual Status UploadPhoneFile(const std::string& path, std::int32_t destination,
                                   std::int32_t method, std::int32_t& result) = 0;

    /// Moves the file (type, low 16 bits of its identifier) to destination 2 flash memory or 3
    /// external storage. `type` is 0 when the files selected together are of several types.
    /// `reserved` is 0.
    virtual Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                            std::int32_t reserved) = 0;

    /// Deletes one file by type and the low 16 bits of its identifier; type 0 with id 0 deletes
    /// every file.
    virtual Status DeleteFile(std::int32_t type, std::int32_t id) = 0;

    /// Loads code or a whole software image from `path` (UTF-8, absolute). codeKind: 0 FPGA code, 1
    /// application code, -1 image. `reserved` is -1. mode: 0 for FPGA code; for application code
    /// the way it takes, 0 RS-232 or 1 the current connection; -1 for an image.
    virtual Status UploadCode(const std::string& path, std::int32_t codeKind, std::int32_t reserved,
                              std::int32_t mode) = 0;

    /// Updates the device's software as the INI description at `path` (UTF-8) says. kPartialUpdate
    /// when only some of the files could be loaded. Paths keep their backslashes.
    virtual Status UpdateFromIniFile(const std::string& path) = 0;

    /// Runs the start-up tests of the media in `mask` again (kInternalFlashTest, kPcCardTest).
    virtual Status RerunMediaTests(std::uint32_t mask) = 0;
};

}
