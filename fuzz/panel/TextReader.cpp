#include "fuzz/panel/TextReader.h"

#include "frontend/headless/HeadlessFileDialog.h"
#include "frontend/headless/Utf8.h"
#include "frontend/headless/ViewPicture.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/SoundView.h"
#include "fuzz/support/Utf8Oracle.h"
#include "panel/netconf/KRX10ConfTemplate.h"

#include <algorithm>
#include <limits>

namespace fuzz {

namespace {

using headless::CHeadlessView;

constexpr const char* kReportPath = "/reports/report.txt";
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
constexpr std::size_t kLongestCell = 256;
constexpr std::size_t kLongestLine = 259;
constexpr std::size_t kLongestDescription = 110;
constexpr std::size_t kLongestQuestion = 199;
/// What a plain box says behind its text: a line with a status, twice.
constexpr std::size_t kLongestStatus = 40;
constexpr std::size_t kLongestVersion = 80;
constexpr std::int32_t kYes = 6;
constexpr std::int32_t kNo = 7;
constexpr std::int32_t kOk = 1;

std::size_t LinesOf(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}

CTextReader::CTextReader(const DeviceTexts& texts)
    : CFuzzedPanel(static_cast<IPerson&>(*this)),
      m_texts(texts),
      m_isValid(IsUtf8(texts.name) && IsUtf8(texts.version) && IsUtf8(texts.other)),
      m_device(simulator::CDevice::Create(Device())) {
    if (Has(0)) {
        host.SetMessageService(nullptr);
    }
}

simulator::DeviceDescription CTextReader::Device() const {
    simulator::DeviceDescription device = support::HealthyDevice(m_texts.type);
    const std::string& version = m_texts.version;
    device.hardwareVersion = m_texts.other;
    device.software = {m_texts.other, version, version, version, version,
                       version,       version, version, version, version};
    device.network.ipAddress = version;
    device.network.description = m_texts.other;
    device.network.macAddress = version;
    device.selfTests[contract::SelfTest::Rs232] = 814;
    device.pcCard = simulator::PcCard{1000000};
    device.files = {support::File(m_texts.name, 19, 1, m_texts.version),
                    support::File("Version.fia", 22, 2, m_texts.version),
                    support::File(m_texts.name, 21, 3, "1.0")};
    for (simulator::StoredFile& file : device.files) {
        file.location = Has(1) ? simulator::kInRam : simulator::kInFlash;
    }
    return device;
}

void CTextReader::ReadAll() {
    StartPanel();
    host.InsertDevice(m_device);
    if (m_texts.failingCall != 0) {
        faults->Fail({m_texts.failingCall}, {contract::kUnspecifiedFailure, m_texts.other});
    }
    RaiseState(contract::kConnectionDeviceReady);
    RequireIdle();
    RequireControlsOfType(View(), State().deviceType);
    ReadFields();
    ReadRows();
    ReadMessages();
    // Which takes its time with long texts, so that it is done once.
    RequireSoundView(View(), State());
    for (const panel::ControlId button : {panel::kDetailsButton, panel::kNetworkButton,
                                          panel::kReportButton, panel::kDeleteButton}) {
        View().SelectRow(panel::kFileList, 0, true);
        View().Press(button);
        RequireIdle();
    }
    for (m_command = 1; m_command <= 10; ++m_command) {
        View().RightClick(panel::kFileList, RowCount() > 0 ? 0 : panel::kNoRow);
        RequireIdle();
    }
    ReadPicture();
    DisconnectDevice();
    // A call by which the panel lets go of its host must not fail.
    faults->Clear();
    End();
}

void CTextReader::ReadFields() {
    if (HasFailed() || m_texts.type < 1 || m_texts.type > 5) {
        return;
    }
    RequireEqual(Field(panel::kBootSwField), headless::ToShownText(m_texts.other),
                 "a version is shown whole");
    RequireEqual(Field(panel::kFpgaField), headless::ToShownText(m_texts.version),
                 "another version is shown whole");
}

void CTextReader::ReadRows() {
    if (HasFailed() || m_texts.type < 1 || m_texts.type > 5) {
        return;
    }
    const int expected = m_texts.name.empty() ? 1 : 3;
    Require(RowCount() == expected, "each file that has a name has a row");
    if (m_isValid && expected == 3) {
        RequireEqual(Row(0)[0], LongestBeginning(m_texts.name, kLongestCell), "a name is cut");
        RequireEqual(Row(0)[3], LongestBeginning(m_texts.version, kLongestCell),
                     "a file's version is cut");
    }
}

void CTextReader::ReadMessages() {
    m_device->RaiseMessage(m_texts.other, 0, 0);
    if (m_isValid && !m_texts.other.empty() && m_texts.other.find("\r\n") == std::string::npos) {
        RequireEqual(Log().back(), LongestBeginning(m_texts.other, kLongestLine),
                     "a message is cut to a line");
    }
    for (const std::uint32_t total : {0U, 3U}) {
        m_device->RaiseMessage(m_texts.other, 1, total);
        m_device->RaiseMessage(m_texts.name, 2, total);
        m_device->RaiseMessage(m_texts.name, 2, total);
        RequireIdle();
    }
}

void CTextReader::ReadPicture() {
    const auto picture = headless::PictureOf(View());
    const std::string text = headless::FormatTextPicture(picture);
    Require(IsUtf8(text), "a panel's text is UTF-8");
    // A part has a title and, but for the first one, an empty line before it; the list has
    // headings.
    const std::size_t fields = 1 + picture.fields.size();
    const std::size_t list = 3 + picture.rows.size();
    const std::size_t log = picture.logLines.empty() ? 0 : 2 + picture.logLines.size();
    Require(LinesOf(text) == fields + list + log, "no text breaks its line");
    Require(std::ranges::none_of(text,
                                 [](char letter) {
                                     const auto byte = static_cast<unsigned char>(letter);
                                     return (byte < ' ' && byte != '\n') || byte == 0x7F;
                                 }),
            "nothing steers the terminal");
}

void CTextReader::RequireText(std::string_view text, std::size_t mostUnits) {
    if (m_isValid) {
        Require(IsUtf8(text), "a text that was UTF-8 stays so");
        Require(Utf16Units(text) <= mostUnits, "a text keeps to its limit");
    }
}

std::int32_t CTextReader::AnswerBox(const Box& box) {
    Require(!box.text.empty() && !box.caption.empty(), "a box has a text and a caption");
    RequireText(box.text, box.IsQuestion() ? kLongestQuestion + kLongestStatus : kNoLimit);
    RequireText(box.caption, kNoLimit);
    RequireText(box.description, kNoLimit);
    return !box.IsQuestion() ? kOk : Has(2) ? kYes : kNo;
}

void CTextReader::UseDialog(CHeadlessView& dialog) {
    for (const panel::ControlTemplate& control : dialog.Template().controls) {
        Require(IsUtf8(dialog.GetText(control.id)), "a dialog is UTF-8");
    }
    if (dialog.Template().id == panel::kKRX10ConfTemplate.id) {
        const std::string description = dialog.GetText(panel::kDescriptionEdit);
        if (m_isValid && !HasFailed()) {
            RequireEqual(description, LongestBeginning(m_texts.other, kLongestDescription),
                         "a description is cut");
        }
        dialog.Press(panel::kOkButton);
    }
    dialog.Press(panel::kNoButton);
}

int CTextReader::ChooseCommand(std::span<const panel::MenuItem> items) {
    RequireSoundMenu(items, View(), State());
    const bool isOffered =
        std::ranges::find(items, m_command, &panel::MenuItem::command) != items.end();
    return isOffered ? m_command : panel::kNoCommand;
}

void CTextReader::UseFileDialog(headless::CHeadlessFileDialog& dialog) {
    dialog.Accept(dialog.Kind() == headless::FileDialogKind::Save ? kReportPath : "/none.bin");
}

bool CTextReader::TakeFile(const std::string& path, std::string_view content) {
    RequireEqual(path, kReportPath, "a report goes where it was told to");
    RequireText(content, kNoLimit);
    // Fifteen versions and sizes, the title and the date, each in a line.
    Require(content.size() <= 17 * (3 * kLongestVersion + 32), "what is reported is cut");
    return !Has(2);
}

}
