#include "interception/Operations.h"
#include "workstation/QtEventLoop.h"
#include "workstation/WorkerInterceptor.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <chrono>
#include <memory>
#include <stdexcept>

namespace {

constexpr interception::Operation kQuery{"HardwareInfo.GetSerialNumber",
                                         interception::Delivers::Value};

/// A call that does nothing, to the worker and back: what the worker adds to each device call.
/// With a paint interval longer than the run no event is handled in between, so that the hand-over
/// alone is measured.
void EmptyCall(benchmark::State& state, workstation::CWorkerInterceptor::Limits limits) {
    workstation::ICallObserver observer;
    workstation::CWorkerInterceptor worker(std::make_unique<workstation::CQtEventLoop>(), observer,
                                           limits);
    int calls = 0;
    for (auto _ : state) {
        const contract::Status status = worker.Call(kQuery, [&] {
            ++calls;
            return contract::kSuccess;
        });
        benchmark::DoNotOptimize(status);
    }
    if (calls != state.iterations()) {
        throw std::runtime_error("a call was not made");
    }
}

}

BENCHMARK_CAPTURE(EmptyCall, AsInTheWorkstation, {})->UseRealTime();
BENCHMARK_CAPTURE(EmptyCall, WithoutPainting, {.paintInterval = std::chrono::hours(1)})
    ->UseRealTime();

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
