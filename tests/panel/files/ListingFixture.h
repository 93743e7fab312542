#pragma once

#include "tests/support/RoomFixture.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// The file listing by itself, on a device in Normal mode.
class ListingFixture : public RoomFixture {
protected:
    void SetUp() override {
        RoomFixture::SetUp();
        State().deviceMode = panel::DeviceMode::Normal;
    }

    /// Inserts a device that holds these files.
    void InsertFiles(std::vector<simulator::StoredFile> files) {
        simulator::DeviceDescription device = HealthyDevice(simulator::kKrx20);
        device.files = std::move(files);
        Insert(device);
    }

    void List() { rooms->files.UpdateFileListing(); }
    void ListAndSelect(std::string_view name) { rooms->files.UpdateFileListing(name); }

    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (int row = 0; row < RowCount(); ++row) {
            names.push_back(View().GetCell(panel::kFileList, row, 0));
        }
        return names;
    }
    std::uint32_t Key(int row) { return View().GetRowKey(panel::kFileList, row); }
    std::vector<int> Selection() { return View().GetSelectedRows(panel::kFileList); }
    int Mark() { return View().GetSelectionMark(panel::kFileList); }
};

/// Files named "file01.fia" and so on.
inline std::vector<simulator::StoredFile> NumberedFiles(int count) {
    std::vector<simulator::StoredFile> files;
    for (int number = 1; number <= count; ++number) {
        const std::string digits = (number < 10 ? "0" : "") + std::to_string(number);
        files.push_back(File("file" + digits + ".fia", 21, number));
    }
    return files;
}

}
