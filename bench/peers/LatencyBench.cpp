// Usage: latency_bench MILLISECONDS FILES
//
// Refreshes from a device with that many files, each call of which takes that long, and prints a
// figure a line, in milliseconds:
//   calls_ms N     as many device calls as a refresh makes, and nothing else
//   headless_ms N  the refresh, without a toolkit
//   qt_ms N        the refresh in a window, painted

#include "bench/BareDevice.h"
#include "bench/BenchHost.h"
#include "bench/Require.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "frontend/qt/QtToolkit.h"

#include <QApplication>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

// Only calls that take time are counted.
int slowCalls = 0;

void WaitAndCount(interception::CLatency::Duration duration) {
    ++slowCalls;
    interception::CLatency::WaitOnThisThread(duration);
}

double Milliseconds(const std::function<void()>& run) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// The reads of files, and for all other calls of a refresh as many of one that answers a number.
void MakeCalls(contract::IProgrammingDeviceSubsystem& device, int count) {
    slowCalls = 0;
    bench::ReadFiles(device, bench::Caller::Bare);
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    std::shared_ptr<contract::IHardwareInfo> hardware;
    bench::Require(device.get_ProgrammingDeviceControl(control), "no control");
    bench::Require(control->GetHardwareInfo(hardware), "no hardware info");
    while (slowCalls < count) {
        std::int32_t number = 0;
        bench::Require(hardware->GetSerialNumber(number), "no number");
    }
}

simulator::DeviceDescription SlowDevice(std::uint32_t callMs, int files) {
    simulator::DeviceDescription device = bench::DeviceWithFiles(files, bench::Device::Intercepted);
    if (callMs > 0) {
        device.latency = {callMs, {}};
    }
    return device;
}

void Measure(std::uint32_t callMs, int files) {
    const simulator::DeviceDescription device = SlowDevice(callMs, files);
    const simulator::KnobOptions knobs{.sleep = WaitAndCount};
    bench::CBenchHost headless(
        std::make_unique<headless::CHeadlessToolkit>(std::make_shared<headless::HeadlessDesktop>()),
        nullptr, device, knobs);
    QWidget window;
    window.resize(800, 500);
    bench::CBenchHost inWindow(std::make_unique<qt::CQtToolkit>(), &window, device, knobs);
    window.show();
    // The first refresh of a panel asks for more than later ones.
    headless.Refresh();
    inWindow.Refresh();

    slowCalls = 0;
    const double headlessMs = Milliseconds([&] { headless.Refresh(); });
    const int calls = slowCalls;
    const double callsMs = Milliseconds([&] { MakeCalls(*headless.Device(), calls); });
    const double qtMs = Milliseconds([&] {
        inWindow.Refresh();
        QCoreApplication::processEvents();
    });
    std::printf("calls_ms %.2f\nheadless_ms %.2f\nqt_ms %.2f\n", callsMs, headlessMs, qtMs);
}

}

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "Usage: latency_bench MILLISECONDS FILES\n");
        return EXIT_FAILURE;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Measure(static_cast<std::uint32_t>(std::atoi(argv[1])), std::atoi(argv[2]));
}
