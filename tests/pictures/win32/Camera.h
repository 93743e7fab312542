#pragma once

#include "frontend/win32/WinApi.h"

#include <filesystem>
#include <string>

namespace pictures {

/// Takes pictures of windows as they are on the screen, into one folder.
class CCamera {
public:
    /// Throws std::runtime_error when the system has no encoder of pictures.
    explicit CCamera(std::filesystem::path folder);
    ~CCamera();
    CCamera(const CCamera&) = delete;
    CCamera& operator=(const CCamera&) = delete;

    /// Writes NAME.png: what the screen shows where the window is, its frame included. Throws
    /// std::runtime_error when it cannot, or when a part of the window is outside of the screen.
    void Take(HWND window, const std::string& name) const;

private:
    const std::filesystem::path m_folder;
    ULONG_PTR m_encoders = 0;
};

}
