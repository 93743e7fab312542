#include "simulator/Device.h"

#include <algorithm>
#include <utility>

namespace simulator {

std::shared_ptr<CDevice> CDevice::Create(DeviceDescription description) {
    return std::make_shared<CDevice>(std::move(description));
}

CDevice::CDevice(DeviceDescription description)
    : m_description(std::move(description)),
      m_mode(m_description.mode),
      m_files(std::make_shared<const StoredFiles>(std::move(m_description.files))) {
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

contract::Status CDevice::RequestMode(contract::ModeRequest request) {
    switch (request) {
    case contract::ModeRequest::Normal:
        EnterMode(kNormalMode);
        return contract::kSuccess;
    case contract::ModeRequest::Report:
    case contract::ModeRequest::Reset:
        RaiseMode(m_mode);
        return contract::kSuccess;
    }
    return Fail(kInvalidArgument,
                "Unknown mode request " + std::to_string(static_cast<std::int32_t>(request)));
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
