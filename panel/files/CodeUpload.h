#pragma once

#include "panel/control/PanelServices.h"
#include "panel/control/StringTable.h"
#include "panel/files/MenuContents.h"

#include <cstdint>
#include <optional>
#include <string>

namespace panel {

class CDeviceControls;
class CRefreshSequence;

/// How a code or image upload differs from the others.
struct CodeUpload {
    FileContextMenuCommand command;
    StringId failureText;
    StringId filter;
    std::int32_t codeKind; ///< as contract::IProgrammingDeviceControl::UploadCode takes them
    std::int32_t mode;
};

/// The row of a menu command; null for one that uploads no code.
const CodeUpload* FindCodeUpload(FileContextMenuCommand command);

/// Loads FPGA code, application code or a whole software image onto the device. User-interface
/// thread only.
class CCodeUpload {
public:
    CCodeUpload(PanelServices& services, CDeviceControls& controls, CRefreshSequence& refresh)
        : m_services(services), m_controls(controls), m_refresh(refresh) {}

    /// Lets the user choose a file, uploads it with the device controls disabled and, after a
    /// success, reads everything anew. Phones are not polled meanwhile, the reading included. A
    /// failure is reported; without a file nothing happens at all.
    void Upload(const CodeUpload& upload);

private:
    std::optional<std::string> ChooseFile(StringId filter);
    void UploadFile(const CodeUpload& upload, const std::string& path);

    PanelServices& m_services;
    CDeviceControls& m_controls;
    CRefreshSequence& m_refresh;
};

}
