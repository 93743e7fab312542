#pragma once

#include "contract/Status.h"
#include "panel/control/CallSeries.h"
#include "panel/control/PanelServices.h"
#include "panel/control/View.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace contract {
class IFileInfo;
class IFileListing;
}

namespace panel {

/// One filling of the file list, from the first device call to the selection.
class CListingRun {
public:
    /// `latestFill` counts the fillings begun. While it differs from its value now, the list
    /// belongs to another filling and this one must not touch it.
    CListingRun(PanelServices& services, const std::uint64_t& latestFill,
                std::optional<std::string_view> selectName);

    /// Lists all files. False when a call failed, which has been reported, or another filling has
    /// begun.
    bool ListFiles();

    /// Selects the row asked for, else the first.
    void SelectRow();

private:
    /// What the device says of one file.
    struct File {
        std::shared_ptr<contract::IFileInfo> info = {};
        bool isPackageVersion = false;
        std::int32_t type = 0;
        std::int32_t id = 0;
        std::string version = {};
        std::int32_t sizeBytes = 0;
        std::int32_t location = 0;
        std::uint32_t generation = 0;
    };

    bool ListFile(const std::shared_ptr<contract::IFileListing>& listing, std::int32_t index);
    bool FillRow(int row, File& file);
    bool FillCells(int row, File& file);
    std::string_view TakeVersion(const File& file);
    bool MayGoOn(contract::Status status, const char* failureText) {
        return status.IsFailure() ? ReportFailure(status, failureText) : m_latestFill == m_thisFill;
    }
    bool ReportFailure(contract::Status status, const char* failureText);

    PanelServices& m_services;
    CPanelView& m_view;
    const std::uint64_t& m_latestFill;
    const std::uint64_t m_thisFill;
    const std::optional<std::string_view> m_selectName;
    const ControlId m_list;
    CCallSeries m_calls;
    std::string m_name;
    std::int32_t m_count = 0;
    int m_rowToSelect = kNoRow;
};

}
