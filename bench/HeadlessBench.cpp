#include "bench/BareDevice.h"
#include "bench/BenchHost.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "frontend/headless/HeadlessView.h"
#include "panel/control/PanelTemplate.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

using bench::CBenchHost;
using bench::DeviceWithFiles;

/// The panel without a screen, answering no prompts: a benchmark that met one would measure it.
struct HeadlessBench {
    explicit HeadlessBench(std::int64_t files, bench::Device kind = bench::Device::InMemory)
        : desktop(std::make_shared<headless::HeadlessDesktop>()),
          host(std::make_unique<headless::CHeadlessToolkit>(desktop), nullptr,
               DeviceWithFiles(files, kind)) {
        host.Refresh();
        Check(files);
    }

    void Check(std::int64_t files) {
        if (desktop->windows.PanelView()->GetRowCount(panel::kFileList) != files) {
            throw std::runtime_error("the list is not complete");
        }
    }

    std::shared_ptr<headless::HeadlessDesktop> desktop;
    CBenchHost host;
};

void DeviceCalls(benchmark::State& state, bench::Device kind, bench::Caller caller) {
    HeadlessBench bench(state.range(0), kind);
    const auto device = bench.host.Device();
    for (auto _ : state) {
        benchmark::DoNotOptimize(bench::ReadFiles(*device, caller));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void RefreshThroughHeadlessView(benchmark::State& state, bench::Device kind) {
    HeadlessBench bench(state.range(0), kind);
    for (auto _ : state) {
        bench.host.Refresh();
    }
    bench.Check(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

/// A million progress messages, of which one in ten thousand changes the whole percentage.
void MillionDeviceMessages(benchmark::State& state) {
    constexpr std::uint32_t kMessages = 1000000;
    HeadlessBench bench(0);
    for (auto _ : state) {
        for (std::uint32_t done = 1; done <= kMessages; ++done) {
            bench.host.RaiseMessage(done, kMessages);
        }
    }
    state.SetItemsProcessed(state.iterations() * kMessages);
}

}

BENCHMARK_CAPTURE(DeviceCalls, InMemoryBare, bench::Device::InMemory, bench::Caller::Bare)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DeviceCalls, InMemoryClient, bench::Device::InMemory, bench::Caller::Client)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DeviceCalls, InterceptedBare, bench::Device::Intercepted, bench::Caller::Bare)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RefreshThroughHeadlessView, Intercepted, bench::Device::Intercepted)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RefreshThroughHeadlessView, InMemory, bench::Device::InMemory)
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(MillionDeviceMessages)->Unit(benchmark::kMillisecond);
