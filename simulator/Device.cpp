#include "simulator/Device.h"

#include "simulator/device/SelfTestRun.h"
#include "simulator/device/StartMode.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

/// `other` has no files. Those of `description` are put aside and not copied: there may be many.
bool IsSameButForFiles(DeviceDescription& description, const DeviceDescription& other) {
    auto files = std::move(description.files);
    description.files.clear();
    const bool isSame = description == other;
    description.files = std::move(files);
    return isSame;
}

}

std::shared_ptr<CDevice> CDevice::Create(DeviceDescription description,
                                         std::unique_ptr<IDeviceStore> store) {
    return std::make_shared<CDevice>(std::move(description), std::move(store));
}

CDevice::CDevice(DeviceDescription description, std::unique_ptr<IDeviceStore> store)
    : m_description(std::move(description)),
      m_mode(m_description.mode),
      m_files(std::make_shared<const StoredFiles>(std::move(m_description.files))),
      m_store(std::move(store)) {
    m_description.files.clear();
}

std::uint32_t CDevice::FreeRamBytes() const {
    return FreeBytes(kInRam, m_description.totalRamBytes);
}

std::uint32_t CDevice::FreeFlashBytes() const {
    return FreeBytes(kInFlash, m_description.totalFlashBytes);
}

std::uint32_t CDevice::FreeBytes(std::int32_t location, std::uint32_t totalBytes) const {
    std::int64_t usedBytes = 0;
    for (const auto& file : *m_files) {
        if (file.location == location) {
            usedBytes += file.sizeBytes;
        }
    }
    // Made-up sizes may be negative or exceed the memory; the answer stays a possible one.
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(totalBytes - usedBytes, 0, totalBytes));
}

bool CDevice::IsNetworked() const {
    const auto type = m_description.type;
    return type == kKrx10 || type == kKrx20 || type == kKrx21;
}

DeviceDescription CDevice::State() const {
    auto state = m_description;
    state.files = *m_files;
    return state;
}

Outcome CDevice::Change(DeviceDescription next, const NewContent* content) {
    if (!content && next.files == *m_files && IsSameButForFiles(next, m_description)) {
        return std::nullopt;
    }
    if (m_store) {
        if (auto failure = m_store->Save(next, content)) {
            return failure;
        }
    }
    m_files = std::make_shared<const StoredFiles>(std::move(next.files));
    next.files.clear();
    m_description = std::move(next);
    return std::nullopt;
}

contract::Status CDevice::RequestMode(contract::ModeRequest request) {
    switch (request) {
    case contract::ModeRequest::Report:
        RaiseMode(m_mode);
        return contract::kSuccess;
    case contract::ModeRequest::Normal:
        return Report(SwitchToNormal());
    case contract::ModeRequest::Reset:
        return Report(Restart());
    }
    return Fail(kInvalidArgument,
                "Unknown mode request " + std::to_string(static_cast<std::int32_t>(request)));
}

Outcome CDevice::SwitchToNormal() {
    if (m_mode != kNormalMode && !HasPassed(m_description, contract::SelfTest::ApplicationSw)) {
        return Failure{kNotReady,
                       "The device stays out of Normal mode: its application software failed the "
                       "self-test"};
    }
    auto next = State();
    next.mode = kNormalMode;
    if (auto failure = Change(std::move(next))) {
        return failure;
    }
    EnterMode(kNormalMode);
    return std::nullopt;
}

Outcome CDevice::Restart() {
    EnterMode(kMaintenanceMode);
    auto next = State();
    RunStartUpTests(next);
    next.mode = ModeAfterStart(next);
    auto failure = Change(std::move(next));
    EnterMode(m_description.mode);
    return failure;
}

void CDevice::EnterMode(std::int32_t mode) {
    m_mode = mode;
    RaiseMode(mode);
}

void CDevice::RaiseMode(std::int32_t mode) {
    RaiseToAll([&](auto& sink) { return sink.ModeChanged(mode); });
}

void CDevice::RaiseMessage(const std::string& text, std::uint32_t done, std::uint32_t total) {
    RaiseToAll([&](auto& sink) { return sink.DeviceMessage(text, done, total); });
}

void CDevice::RaiseEvent3(std::int32_t first, std::int32_t second) {
    RaiseToAll([&](auto& sink) { return sink.Event3(first, second); });
}

template <class Raise>
void CDevice::RaiseToAll(const Raise& raise) {
    if (const auto events = m_events.lock()) {
        events->RaiseToAll(raise);
    }
}

}
