#pragma once

#include <QApplication>
#include <QTemporaryDir>

namespace qttests {

/// The application of a test program, with everything pinned that geometry depends on: DejaVu Sans
/// of 11 pixels, Fusion style, a cursor that does not flash, a folder and a registry file of its
/// own for settings.
///
/// Runs off screen, on a screen of 1280 x 1024 pixels, unless the environment names a platform.
/// Ends the program when the font is missing, since every measure would be another one.
class CTestApplication {
public:
    CTestApplication(int& argc, char** argv);

private:
    /// Prepares the environment that the application is then made in.
    struct Environment {
        Environment();

        QTemporaryDir folder;
    };

    Environment m_environment;
    QApplication m_application;
};

}
