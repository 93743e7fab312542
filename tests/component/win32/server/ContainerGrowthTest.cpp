#include "tests/component/win32/server/RegisteredFixture.h"
#include "tests/component/win32/server/SystemContainer.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Input.h"

#include <psapi.h>

#include <algorithm>
#include <cstdint>

namespace component {

namespace {

constexpr int kWarmUpCycles = 30;
constexpr int kCycles = 200;

// Each of the panel's twelve labels leaves a block of 24 bytes where the system's are Wine's.
constexpr int kBlocksLeftByOthers = 12;
constexpr int kBytesLeftByOthers = 12 * 24;
// Caches of the system come and go; what is lost in every cycle is far more.
constexpr int kSlack = 60;
constexpr int kSlackBytes = 128 * 1024;

/// What a process holds of the system.
struct Holdings {
    std::size_t windows = 0;
    // Always 0 where the system does not count them.
    DWORD userObjects = 0;
    DWORD drawingObjects = 0;
    int handles = 0;
    // In all heaps.
    std::size_t blocks = 0;
    std::size_t bytes = 0;
    // What the system has given for them and for all else.
    std::size_t privateBytes = 0;
};

// One by one, since not every system has a number of them.
int CountHandles() {
    constexpr std::uintptr_t kLast = 0x8000;
    int count = 0;
    for (std::uintptr_t value = 4; value < kLast; value += 4) {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) ? 1 : 0;
    }
    EXPECT_GT(count, 0);
    return count;
}

void CountBlocks(HANDLE heap, Holdings& holdings) {
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
            ++holdings.blocks;
            holdings.bytes += entry.cbData;
        }
    }
    HeapUnlock(heap);
}

Holdings Count() {
    Holdings holdings;
    holdings.windows = WindowsOfProcess().size();
    holdings.userObjects = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    holdings.drawingObjects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    holdings.handles = CountHandles();
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
    std::for_each(heaps, heaps + count, [&](HANDLE heap) { CountBlocks(heap, holdings); });
    PROCESS_MEMORY_COUNTERS memory{};
    EXPECT_TRUE(K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory));
    holdings.privateBytes = memory.PagefileUsage;
    return holdings;
}

/// A long session in which panels are opened and closed.
class ContainerGrowthTest : public RegisteredFixture {
protected:
    void SetUp() override { PrepareContainers(); }

    static void RunCycles(int count) {
        const win32tests::CHostWindow host;
        for (int i = 0; i < count; ++i) {
            const HWND container = OpenContainer(host.Get());
            ASSERT_NE(ControlWindowIn(container), nullptr) << i;
            win32tests::Pump();
            DestroyWindow(container);
            win32tests::Pump();
        }
    }
};

TEST_F(ContainerGrowthTest, TwoHundredCyclesLeaveNothingBehind) {
    RunCycles(kWarmUpCycles);
    const Holdings before = Count();
    RunCycles(kCycles);
    const Holdings after = Count();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.userObjects, before.userObjects);
    EXPECT_LE(after.drawingObjects, before.drawingObjects);
    EXPECT_LE(after.handles, before.handles);
    EXPECT_LE(after.blocks, before.blocks + kCycles * kBlocksLeftByOthers + kSlack);
    EXPECT_LE(after.bytes, before.bytes + kCycles * kBytesLeftByOthers + kSlackBytes);
    EXPECT_LE(after.privateBytes, before.privateBytes + kSlackBytes);
}

}

}
