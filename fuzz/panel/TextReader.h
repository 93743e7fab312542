#pragma once

#include "fuzz/support/FuzzedPanel.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

/// What a device says of itself.
struct DeviceTexts {
    std::int32_t type = 0;
    /// The number of the call that fails with `other` for its description; 0: none does.
    std::size_t failingCall = 0;
    /// Bit 0: the host has no message service; bit 1: files are in RAM; bit 2: a question is
    /// answered with Yes.
    std::uint8_t flags = 0;
    /// Of files.
    std::string name;
    /// Of files and of most software.
    std::string version;
    /// All else.
    std::string other;
};

/// Looks at every text that a panel shows of such a device: in its view, in boxes, dialogs and
/// menus, and in the report.
///
/// Requires that what the view shows is UTF-8, that what is cut keeps to its limit, and that texts
/// which are UTF-8 stay so everywhere and lose nothing but their end.
class CTextReader final : private IPerson, private CFuzzedPanel {
public:
    explicit CTextReader(const DeviceTexts& texts);

    void ReadAll();

private:
    // IPerson
    std::int32_t AnswerBox(const Box& box) override;
    void UseDialog(headless::CHeadlessView& dialog) override;
    int ChooseCommand(std::span<const panel::MenuItem> items) override;
    void UseFileDialog(headless::CHeadlessFileDialog& dialog) override;
    bool TakeFile(const std::string& path, std::string_view content) override;

    bool Has(int flag) const { return (m_texts.flags >> flag & 1) != 0; }
    bool HasFailed() const { return faults->Fired() > 0; }
    simulator::DeviceDescription Device() const;
    void ReadFields();
    void ReadRows();
    void ReadMessages();
    void ReadPicture();
    /// Which is UTF-8 unless a device's text is not.
    void RequireText(std::string_view text, std::size_t mostUnits);

    const DeviceTexts& m_texts;
    const bool m_isValid;
    const std::shared_ptr<simulator::CDevice> m_device;
    int m_command = panel::kNoCommand;
};

}
