#include "workstation/Display.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <map>
#include <string>

namespace {

/// Says what a program finds that is started with nothing but this in its environment.
class DisplayTest : public testing::Test {
protected:
    DisplayTest() {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            if (qEnvironmentVariableIsSet(name)) {
                m_before[name] = qgetenv(name);
            }
            qunsetenv(name);
        }
    }
    ~DisplayTest() override {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            qunsetenv(name);
        }
        for (const auto& [name, value] : m_before) {
            qputenv(name.c_str(), value);
        }
    }

    static bool HasDisplayWith(const char* platforms) {
        qputenv("QT_QPA_PLATFORM", platforms);
        return workstation::HasDisplay();
    }

private:
    std::map<std::string, QByteArray> m_before;
};

TEST_F(DisplayTest, NothingSaidIsNone) { EXPECT_FALSE(workstation::HasDisplay()); }

TEST_F(DisplayTest, X11OrWaylandThatIsOnlyAskedForIsNone) {
    for (const char* platform : {"xcb", "xcb:nographicsbuffers", "wayland", "wayland-egl"}) {
        EXPECT_FALSE(HasDisplayWith(platform)) << platform;
    }
}

TEST_F(DisplayTest, X11ThatDoesNotAnswerIsNone) {
    qputenv("DISPLAY", ":65500");
    EXPECT_FALSE(HasDisplayWith("xcb"));
}

TEST_F(DisplayTest, PlatformThatShowsNothingIsNone) {
    for (const char* platform : {"offscreen", "minimal", "minimalegl"}) {
        EXPECT_FALSE(HasDisplayWith(platform)) << platform;
    }
}

TEST_F(DisplayTest, PlatformWithoutDisplayServerIsTaken) {
    for (const char* platform : {"linuxfb", "eglfs", "vnc:size=1024x768"}) {
        EXPECT_TRUE(HasDisplayWith(platform)) << platform;
    }
}

TEST_F(DisplayTest, ListCountsByItsBest) {
    EXPECT_FALSE(HasDisplayWith("wayland;xcb"));
    EXPECT_FALSE(HasDisplayWith("xcb;"));
    EXPECT_TRUE(HasDisplayWith("xcb;linuxfb"));
}

}
