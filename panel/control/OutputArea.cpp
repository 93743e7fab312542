#include "panel/control/OutputArea.h"

#include "contract/ErrorInfo.h"
#include "contract/host/Context.h"
#include "contract/host/MessageService.h"
#include "panel/control/Call.h"
#include "panel/control/Format.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"

#include <array>
#include <charconv>
#include <limits>

namespace panel {

namespace {

constexpr std::size_t kLongestPlainLine = 259;
constexpr std::size_t kLongestPercentLine = 260;
constexpr std::size_t kLongestTaskLabel = 100;
constexpr std::int32_t kNothingShown = -1;

/// Whole per cent of done in total. The tenth that is added lets a count that has reached its total
/// show 100 in spite of rounding. Values beyond 32 bits saturate.
std::uint32_t Percent(std::uint32_t done, std::uint32_t total) {
    constexpr auto kLargest = std::numeric_limits<std::uint32_t>::max();
    const double percent = static_cast<double>(done) / total * 100 + 0.1;
    return percent >= kLargest ? kLargest : static_cast<std::uint32_t>(percent);
}

/// Always with a decimal point, whatever the user's locale puts there.
std::string WithOneDecimal(double number) {
    // A sign, the ten digits of a 32-bit number times 100, the point and one digit more.
    std::array<char, 24> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                    std::chars_format::fixed, 1)
                          .ptr;
    return {buffer.data(), end};
}

}

COutputArea::COutputArea(CPanelView& view, IToolkit& toolkit,
                         const std::shared_ptr<contract::IContext>& context)
    : m_view(view), m_toolkit(toolkit), m_context(context) {}

void COutputArea::AppendStatusLine(std::optional<std::string_view> text, std::uint32_t done,
                                   std::uint32_t total) {
    if (!text || text->empty()) {
        return;
    }
    if (total == 0) {
        AppendPlainLine(*text);
    } else {
        AppendPercentLine(*text, Percent(done, total));
    }
}

void COutputArea::AppendPlainLine(std::string_view text) {
    // Compared with the text alone, so a plain line after the same text with a percentage is not
    // written; the percentage stays remembered.
    if (text == m_lastLine) {
        return;
    }
    m_lastLine = CutToBytes(text, kLongestPlainLine);
    WriteLine(m_lastLine);
}

void COutputArea::AppendPercentLine(std::string_view text, std::uint32_t percent) {
    if (percent == m_lastPercent && text == m_lastLine) {
        return;
    }
    m_lastLine = CutToBytes(text, kLongestPercentLine);
    m_lastPercent = percent;
    const std::string line = std::string(text) + " " + std::to_string(percent) + "%";
    WriteLine(CutToBytes(line, kLongestPercentLine));
}

void COutputArea::WriteLine(std::string_view line) {
    m_view->AppendLog(m_view[kStatusLog], std::string(line) + "\r\n");
}

void COutputArea::ClearStatusLog() { m_view->ClearLog(m_view[kStatusLog]); }

void COutputArea::ShowTaskProgress(std::optional<std::string_view> label, std::int32_t position,
                                   std::int32_t range) {
    double percent = 0.0;
    if (position == 0 && range == 0) {
        m_view->SetProgressPosition(kProgressBar, 0);
    } else {
        m_view->SetProgressRange(kProgressBar, range);
        m_view->SetProgressPosition(kProgressBar, position);
        percent = position * 100.0 / range;
    }
    const std::string text =
        std::string(label.value_or("(null)")) + "  " + WithOneDecimal(percent) + "%";
    m_view->SetText(kTaskLabel, CutToUtf16Units(text, kLongestTaskLabel));
}

std::int32_t COutputArea::ShowMessage(std::optional<std::string_view> text,
                                      std::optional<std::string_view> caption,
                                      contract::Status status,
                                      std::optional<std::string_view> description,
                                      std::uint32_t style, std::int32_t showFlag,
                                      std::int32_t owner) {
    if (!text || !caption) {
        return kNothingShown;
    }
    const contract::Message message{owner,
                                    std::string(*text),
                                    std::string(*caption),
                                    status,
                                    std::string(description.value_or("")),
                                    style,
                                    showFlag};
    std::shared_ptr<contract::IMessageService> service;
    std::int32_t button = 0;
    if (Query(m_context, &contract::IContext::QueryMessageService, service).IsSuccess() &&
        Call(service, &contract::IMessageService::ShowMessage, message, button).IsSuccess()) {
        return button;
    }
    const std::string code =
        Format("\r\nHRESULT 0x%08x (%d)", static_cast<unsigned>(status.Code()), status.Code());
    return m_toolkit.ShowBox(message.text + code, message.caption, style);
}

void COutputArea::ShowFatalError(std::string_view caption) {
    ShowMessage(LoadPanelString(StringId::FatalError), caption, contract::kInvalidPointer, "",
                kErrorStyle);
}

std::int32_t COutputArea::ReportError(std::optional<std::string_view> text,
                                      std::optional<std::string_view> caption,
                                      contract::Status status, std::uint32_t style,
                                      std::int32_t showFlag, std::int32_t owner) {
    const std::string description = contract::TakeErrorInfo();
    return ShowMessage(text, caption, status, description, style, showFlag, owner);
}

}
