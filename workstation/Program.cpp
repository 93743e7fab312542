#include "workstation/Program.h"

#include "component/loader/ComponentLibrary.h"
#include "simulator/DeviceFolder.h"
#include "simulator/folder/MessageText.h"
#include "workstation/CommandLine.h"
#include "workstation/Display.h"
#include "workstation/MainWindow.h"
#include "workstation/Offscreen.h"
#include "workstation/PanelFactory.h"
#include "workstation/PanelPicture.h"
#include "workstation/PictureFile.h"
#include "workstation/PromptAnswerer.h"
#include "workstation/ToolkitMessages.h"

#include <QApplication>
#include <QMessageBox>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <variant>

namespace workstation {

namespace {

using Path = std::filesystem::path;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kRefused = 2;

void WriteError(const char* reason) { std::fprintf(stderr, "krx8-workstation: %s\n", reason); }

/// Ends the program with one line on stderr.
struct Refusal {
    std::string reason;
    int status = kRefused;
};

Options ReadCommandLine(int argc, char** argv) {
    const auto parsed = ParseCommandLine({argv + 1, argv + argc});
    if (const auto* error = std::get_if<CommandLineError>(&parsed)) {
        throw Refusal{error->reason + "; --help lists the options"};
    }
    return std::get<Options>(parsed);
}

// So that a folder given in one way is found again in a listing.
Path Normal(const Path& path) {
    std::error_code error;
    // Fails where the working directory is gone.
    const Path normal = std::filesystem::absolute(path, error).lexically_normal();
    if (error) {
        throw Refusal{simulator::EscapeForMessage(path.string()) +
                      ": has no absolute path: " + error.message()};
    }
    return normal.has_filename() ? normal : normal.parent_path();
}

std::optional<OpenedDevice> OpenGivenDevice(const Path& folder) {
    if (folder.empty()) {
        return {};
    }
    const auto opened = simulator::OpenDevice(folder);
    if (const auto* error = std::get_if<simulator::DescriptionError>(&opened)) {
        throw Refusal{error->Message()};
    }
    return OpenedDevice{Normal(folder), std::get<0>(opened)};
}

Path RootOf(const Options& options) {
    if (options.devices.empty()) {
        return options.device.empty() ? Path() : Normal(options.device).parent_path();
    }
    std::error_code error;
    const std::filesystem::directory_iterator entries(options.devices, error);
    if (error) {
        throw Refusal{simulator::EscapeForMessage(options.devices.string()) +
                      ": cannot be read: " + error.message()};
    }
    return Normal(options.devices);
}

void Print(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() ||
        std::fflush(stdout) != 0) {
        throw Refusal{"cannot write to the standard output: " +
                          std::generic_category().message(errno),
                      kFailed};
    }
}

void WritePicture(QWidget& window, const Path& file) {
    if (const auto error = WritePictureFile(window.grab(), file)) {
        throw Refusal{simulator::EscapeForMessage(file.string()) +
                      ": cannot be written: " + error.message()};
    }
}

void WaitUntilIdle(CMainWindow& window) {
    while (!window.IsIdle()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

int RunWithoutUser(CMainWindow& window, const Options& options) {
    std::string boxes;
    const CPromptAnswerer answerer(window, [&](const std::string& box) { boxes += box; });
    window.show();
    WaitUntilIdle(window);
    Print(boxes);
    if (options.text) {
        Print(headless::FormatTextPicture(ReadPanelPicture(window.PanelHolder())));
    }
    if (!options.snapshot.empty()) {
        WritePicture(window, options.snapshot);
        Print("The window is drawn in " + simulator::EscapeForMessage(options.snapshot.string()) +
              "\n");
    }
    return kDone;
}

// A start that has nobody to show a window to becomes a text and a picture.
void FallBack(Options& options) {
    Print("There is no display: the panel follows as text.\n");
    options.text = true;
    options.snapshot = options.fallback;
}

// The panel's columns have widths in pixels, which the usual 9 points overrun; in points all the
// same, so that a display of higher resolution is served.
void UseFontOfThePanel() {
    constexpr qreal kPoints = 8.25;
    QFont font = QApplication::font();
    font.setPointSizeF(kPoints);
    QApplication::setFont(font);
}

bool HasUser(const Options& options) { return !options.text && options.snapshot.empty(); }

struct Start {
    std::optional<OpenedDevice> device;
    Path root;
};

// Somebody who has started the program from a desktop sees no line on stderr.
void TellInABox(const char* problem) {
    QMessageBox box(QMessageBox::Critical, kWorkstationTitle, {});
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromUtf8(problem));
    box.exec();
}

std::shared_ptr<contract::IPanel> ObtainPanel(const Options& options) {
    try {
        return CreatePanel();
    } catch (const component::ComponentUnavailable& problem) {
        if (HasUser(options)) {
            TellInABox(problem.what());
        }
        throw Refusal{simulator::EscapeForMessage(problem.what())};
    }
}

int RunWindow(int argc, char** argv, const Options& options, const Start& start) {
    QApplication application(argc, argv);
    UseFontOfThePanel();
    CMainWindow window(ObtainPanel(options), start.root);
    window.Start(start.device);
    if (!HasUser(options)) {
        return RunWithoutUser(window, options);
    }
    window.show();
    return QApplication::exec();
}

int Run(int argc, char** argv) {
    Options options = ReadCommandLine(argc, argv);
    if (options.help) {
        Print(std::string("Usage: krx8-workstation [OPTION]...\n\n") + HelpText());
        return kDone;
    }
    // Before anything is said or drawn, so that a refusal is all there is.
    const Start start{OpenGivenDevice(options.device), RootOf(options)};
    FilterToolkitMessages();
    if (HasUser(options) && !HasDisplay()) {
        FallBack(options);
    }
    std::optional<COffscreen> offscreen;
    if (!HasUser(options)) {
        offscreen.emplace();
    }
    return RunWindow(argc, argv, options, start);
}

int RunRefusing(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const Refusal& refusal) {
        WriteError(refusal.reason.c_str());
        return refusal.status;
    }
}

}

int RunProgram(int argc, char** argv) {
    return RunReporting([&] { return RunRefusing(argc, argv); });
}

int RunReporting(const std::function<int()>& program) {
    try {
        return program();
    } catch (const std::bad_alloc&) {
        // Nothing that would need memory.
        WriteError("out of memory");
    } catch (const std::exception& exception) {
        WriteError(simulator::EscapeForMessage(exception.what()).c_str());
    }
    return kFailed;
}

}
