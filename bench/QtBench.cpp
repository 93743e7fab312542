#include "bench/BenchHost.h"
#include "bench/ResidentMemory.h"
#include "frontend/qt/QtToolkit.h"
#include "panel/control/PanelTemplate.h"

#include <benchmark/benchmark.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTableView>
#include <QWidget>

#include <stdexcept>

namespace {

/// The panel in a real window on the off-screen platform, which paints what a screen shows.
struct QtBench {
    explicit QtBench(std::int64_t files)
        : host(std::make_unique<qt::CQtToolkit>(), &window, bench::DeviceWithFiles(files)) {
        window.resize(800, 500);
        window.show();
        Paint();
    }

    /// Everything that is due is painted before this returns.
    void Paint() {
        QCoreApplication::processEvents();
        window.repaint();
    }

    void CheckRows(std::int64_t files) const {
        const auto* list = window.findChild<QTableView*>();
        if (list == nullptr || list->model()->rowCount() != files) {
            throw std::runtime_error("the list is not complete");
        }
    }

    QWidget window;
    bench::CBenchHost host;
};

void RefreshThroughQtView(benchmark::State& state) {
    const double before = bench::ResidentMegabytes();
    QtBench bench(state.range(0));
    for (auto _ : state) {
        bench.host.Refresh();
        bench.Paint();
    }
    bench.CheckRows(state.range(0));
    state.counters["MB"] = bench::ResidentMegabytes() - before;
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

/// Lines that differ, as device notices do; repeated ones never reach the log.
void LogLinesThroughQtView(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        QtBench bench(0);
        state.ResumeTiming();
        for (std::int64_t line = 0; line < state.range(0); ++line) {
            bench.host.RaiseNotice("Writing block " + std::to_string(line));
        }
        const auto* log = bench.window.findChild<QPlainTextEdit*>();
        while (log->blockCount() <= state.range(0)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        bench.Paint();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

}

BENCHMARK(RefreshThroughQtView)
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(LogLinesThroughQtView)->Arg(100000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (QFontDatabase::families().isEmpty()) {
        throw std::runtime_error("no font is installed: boxes would be measured, not texts");
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
