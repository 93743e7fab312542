#pragma once

/// Where the window can be drawn. To be settled before a QApplication is made.
namespace workstation {

/// Whether a window can be shown to a user: a display that answers, or a platform that the user has
/// chosen himself.
bool HasDisplay();

/// Has the application draw off screen, on a screen large enough for the window, whatever the
/// surroundings say.
class COffscreen {
public:
    COffscreen();
    ~COffscreen();
    COffscreen(const COffscreen&) = delete;
    COffscreen& operator=(const COffscreen&) = delete;

private:
    int m_screenFile;
};

/// Leaves out what the toolkit says of its surroundings and a user can do nothing about.
void SilenceToolkit();

}
