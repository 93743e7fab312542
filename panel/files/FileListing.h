#pragma once

#include "panel/control/PanelServices.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace panel {

/// Fills the file list from the device. User-interface thread only.
class CFileListing {
public:
    explicit CFileListing(PanelServices& services) : m_services(services) {}

    /// Makes the list's columns; once, when the panel is initialised.
    void InsertColumns();

    /// Removes all rows.
    void Clear();

    /// Lists the device's files anew and selects the one named `selectName` (the last of that name,
    /// ignoring case), else the first. Outside Normal mode the list stays empty. The first failing
    /// call is reported and ends the listing; rows inserted before it stay. On the way the version
    /// of "version.fia" becomes the installed package version.
    ///
    /// When an event refills the list from inside a call of this one, this one stops there.
    void UpdateFileListing(std::optional<std::string_view> selectName = std::nullopt);

    /// Changes whenever the list's rows give way to others: what was selected before is no longer
    /// what is selected now.
    std::uint64_t FillNumber() const { return m_fillNumber; }

private:
    PanelServices& m_services;
    std::uint64_t m_fillNumber = 0;
};

}
