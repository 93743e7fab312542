#pragma once

#include "tests/simulator/WritingFixture.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// A device that phone files are uploaded to.
class UploadFixture : public WritingFixture {
protected:
    static DeviceDescription DeviceWith(std::vector<StoredFile> files) {
        auto description = SmallDevice(kKrx20);
        description.files = std::move(files);
        return description;
    }
    void ExpectRefused(contract::Status status, std::uint32_t bits, const std::string& text) {
        ExpectFailure(status, bits, text);
        EXPECT_EQ(m_device->State(), m_before);
        EXPECT_EQ(m_log->events, Events{});
        EXPECT_EQ(m_result, -1);
    }
    void Connect(DeviceDescription description) {
        WritingFixture::Connect(std::move(description));
        m_before = m_device->State();
    }

    DeviceDescription m_before;
};

}
