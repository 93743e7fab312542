#pragma once

#include "contract/device/ExternalStorages.h"
#include "simulator/Device.h"

namespace simulator {

/// The memory cards of a device at the moment of asking: its PC card, or none.
class CExternalStorages final : public contract::IExternalStorages {
public:
    explicit CExternalStorages(const CDevice& device)
        : m_count(device.Description().pcCard ? 1 : 0) {}

    contract::Status GetCount(std::int32_t& count) override { return Give(m_count, count); }

private:
    const std::int32_t m_count;
};

}
