#pragma once

#include <sys/types.h>

#include <string>

namespace qttests {

/// An X server without a screen, for as long as the object lives. Ends the program when there is
/// none to be had.
class CVirtualDisplay {
public:
    CVirtualDisplay();
    ~CVirtualDisplay();
    CVirtualDisplay(const CVirtualDisplay&) = delete;
    CVirtualDisplay& operator=(const CVirtualDisplay&) = delete;

    /// As the DISPLAY variable takes it.
    const std::string& GetName() const { return m_name; }

private:
    pid_t m_server = -1;
    std::string m_name;
};

}
