// What a long day does to the panel: very many files, lines, messages, connections and panels. Each
// load prints its time, the memory that it needs, and what the heap has grown by from the first
// tenth of it to the end; where nothing may grow, growth ends the program with status 1.

#include "bench/BenchHost.h"
#include "bench/HeapUse.h"
#include "bench/Require.h"
#include "bench/ResidentMemory.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "frontend/headless/HeadlessView.h"
#include "frontend/qt/QtToolkit.h"
#include "panel/control/PanelTemplate.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTableView>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace {

constexpr std::int64_t kMillion = 1'000'000;
/// Ten hours at a thousand a second.
constexpr std::int64_t kMessages = 10 * 3600 * 1000;
constexpr std::uint32_t kOperation = kMessages / 1000;
/// Allocators and caches keep a little.
constexpr double kNothing = 64.0 * 1024;

/// The panel without a screen.
struct HeadlessPanel {
    explicit HeadlessPanel(std::int64_t files)
        : host(std::make_unique<headless::CHeadlessToolkit>(desktop), nullptr,
               bench::DeviceWithFiles(files)) {}

    void Settle() {}
    std::int64_t Rows() const { return View().GetRowCount(panel::kFileList); }
    std::int64_t LogLines() const {
        return static_cast<std::int64_t>(View().LogLines(panel::kStatusLog).size());
    }
    void ClearLog() { View().ClearLog(panel::kStatusLog); }

    static constexpr const char* kName = "headless";
    std::shared_ptr<headless::HeadlessDesktop> desktop =
        std::make_shared<headless::HeadlessDesktop>();
    bench::CBenchHost host;

private:
    headless::CHeadlessView& View() const { return *desktop->windows.PanelView(); }
};

/// The panel in a window on the off-screen platform, which paints what a screen shows.
struct QtPanel {
    explicit QtPanel(std::int64_t files)
        : host(std::make_unique<qt::CQtToolkit>(), &window, bench::DeviceWithFiles(files)) {
        window.resize(800, 500);
        window.show();
    }

    void Settle() {
        QCoreApplication::processEvents();
        window.repaint();
    }
    std::int64_t Rows() const { return window.findChild<QTableView*>()->model()->rowCount(); }
    std::int64_t LogLines() const { return Log().blockCount() - 1; }
    void ClearLog() {
        Settle();
        Log().clear();
    }

    static constexpr const char* kName = "Qt";
    QWidget window;
    bench::CBenchHost host;

private:
    QPlainTextEdit& Log() const { return *window.findChild<QPlainTextEdit*>(); }
};

enum class Growth { Due, NotDue };

bool g_hasGrown = false;

/// Does `act` `count` times, the first tenth of it to warm up.
void Run(const std::string& name, std::int64_t count, Growth growth,
         const std::function<void(std::int64_t)>& act) {
    using Clock = std::chrono::steady_clock;
    const double residentBefore = bench::ResidentMegabytes();
    const auto start = Clock::now();
    std::int64_t number = 0;
    while (number < count / 10) {
        act(number++);
    }
    const auto heapBefore = static_cast<double>(bench::HeapBytes());
    while (number < count) {
        act(number++);
    }
    const double grown = static_cast<double>(bench::HeapBytes()) - heapBefore;
    const std::chrono::duration<double> time = Clock::now() - start;
    const bool isWrong = growth == Growth::NotDue && grown > kNothing;
    g_hasGrown = g_hasGrown || isWrong;
    std::printf("| %s | %.2f s | %.1f MB | %.0f KB%s |\n", name.c_str(), time.count(),
                bench::ResidentMegabytes() - residentBefore, grown / 1024,
                growth == Growth::Due ? ", due"
                : isWrong             ? ", WRONG"
                                      : "");
    std::fflush(stdout);
}

template <class FrontEnd>
std::string Name(const char* text) {
    return std::string(FrontEnd::kName) + ": " + text;
}

template <class FrontEnd>
void ListFiles() {
    FrontEnd panel(kMillion);
    Run(Name<FrontEnd>("10 refreshes with 1,000,000 files"), 10, Growth::NotDue, [&](std::int64_t) {
        panel.host.Refresh();
        panel.Settle();
    });
    bench::Require(panel.Rows() == kMillion, "the list is not complete");
}

template <class FrontEnd>
void WriteLog() {
    FrontEnd panel(0);
    Run(Name<FrontEnd>("1,000,000 lines in the log"), kMillion, Growth::Due,
        [&](std::int64_t number) {
            panel.host.RaiseNotice("Writing block " + std::to_string(number));
            if (number == kMillion - 1) {
                while (panel.LogLines() < kMillion) {
                    panel.Settle();
                }
            }
        });
}

/// As a thousand operations, whose percentages change a hundred times each. The log is emptied
/// after each, since every percentage adds a line.
template <class FrontEnd>
void HearMessages() {
    FrontEnd panel(0);
    Run(Name<FrontEnd>("36,000,000 messages of progress"), kMessages, Growth::NotDue,
        [&](std::int64_t number) {
            const auto done = static_cast<std::uint32_t>(number % kOperation + 1);
            panel.host.RaiseMessage(done, kOperation);
            if (done % 1000 == 0) {
                panel.Settle();
            }
            if (done == kOperation) {
                bench::Require(panel.LogLines() >= 100, "the percentages are not in the log");
                panel.ClearLog();
            }
        });
}

/// The log is emptied, since each connection adds its lines to it.
template <class FrontEnd>
void Reconnect() {
    FrontEnd panel(100);
    Run(Name<FrontEnd>("10,000 connections and disconnections"), 10'000, Growth::NotDue,
        [&](std::int64_t) {
            panel.host.Refresh();
            bench::Require(panel.Rows() == 100, "the list is not complete");
            panel.host.LoseDevice();
            panel.ClearLog();
        });
}

template <class FrontEnd>
void MakePanels() {
    Run(Name<FrontEnd>("1,000 panels, each with a refresh"), 1'000, Growth::NotDue,
        [](std::int64_t) {
            FrontEnd panel(100);
            panel.host.Refresh();
            panel.Settle();
            bench::Require(panel.Rows() == 100, "the list is not complete");
        });
}

template <class FrontEnd>
void BearEverything() {
    ListFiles<FrontEnd>();
    WriteLog<FrontEnd>();
    HearMessages<FrontEnd>();
    Reconnect<FrontEnd>();
    MakePanels<FrontEnd>();
}

}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::puts("| load | time | resident memory added | growth of the heap after the first tenth |\n"
              "| --- | --- | --- | --- |");
    BearEverything<HeadlessPanel>();
    BearEverything<QtPanel>();
    return g_hasGrown ? 1 : 0;
}
