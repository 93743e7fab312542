#pragma once

namespace workstation {

/// Has a QApplication that is made while this lives draw off screen, on a screen large enough for
/// the window at any scale, whatever the surroundings say.
class COffscreen {
public:
    COffscreen();
    ~COffscreen();
    COffscreen(const COffscreen&) = delete;
    COffscreen& operator=(const COffscreen&) = delete;

private:
    int m_screenFile;
};

}
