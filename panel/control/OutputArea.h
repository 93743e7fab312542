#pragma once

#include "contract/Status.h"
#include "panel/control/PanelView.h"
#include "panel/control/Toolkit.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace contract {
class IContext;
}

namespace panel {

/// Icon and button bits of a message (winuser.h).
inline constexpr std::uint32_t kErrorStyle = 0x10;
inline constexpr std::uint32_t kQuestionStyle = 0x24;
inline constexpr std::uint32_t kWarningStyle = 0x30;
inline constexpr std::uint32_t kInformationStyle = 0x40;

inline constexpr std::int32_t kShowFlag = 1;
inline constexpr std::int32_t kNoOwner = 0;

/// How every sequence of the panel speaks to the user: the status log, messages and error reports.
/// An absent text is std::nullopt, which is not the same as an empty one. User-interface thread
/// only.
class COutputArea {
public:
    /// `context` is the panel's reference to its host context, which may be null and may change.
    COutputArea(CPanelView& view, IToolkit& toolkit,
                const std::shared_ptr<contract::IContext>& context);

    /// Appends a line to the status log: `text` cut to 259 bytes, or with a `total` that is not 0
    /// "text NN%" cut to 260. Nothing for an absent or empty text. A line that says what the last
    /// one said is not written again: a plain line is compared with the last text alone, a line
    /// with a percentage with the last text and the last percentage.
    void AppendStatusLine(std::optional<std::string_view> text, std::uint32_t done = 0,
                          std::uint32_t total = 0);

    /// Clears the status log's text. What is remembered of the last line stays.
    void ClearStatusLog();

    /// Drives the progress bar and its label, "label  NN.N%" cut to 100 units of UTF-16, both of
    /// which the template hides. An absent label prints as "(null)"; 0 of 0 is 0 per cent.
    void ShowTaskProgress(std::optional<std::string_view> label, std::int32_t position,
                          std::int32_t range);

    /// Shows a modal message and returns the button pressed, or -1 when text or caption is absent.
    /// Uses the host's message service; without one, or when it fails, a plain box.
    std::int32_t ShowMessage(std::optional<std::string_view> text,
                             std::optional<std::string_view> caption, contract::Status status,
                             std::optional<std::string_view> description, std::uint32_t style,
                             std::int32_t showFlag = kShowFlag, std::int32_t owner = kNoOwner);

    /// The report that there is no device control to work with.
    void ShowFatalError(std::string_view caption);

    /// ShowMessage with the description that the failing call left, which it takes.
    std::int32_t ReportError(std::optional<std::string_view> text,
                             std::optional<std::string_view> caption, contract::Status status,
                             std::uint32_t style = kErrorStyle, std::int32_t showFlag = kShowFlag,
                             std::int32_t owner = kNoOwner);

private:
    void AppendPlainLine(std::string_view text);
    void AppendPercentLine(std::string_view text, std::uint32_t percent);
    void WriteLine(std::string_view line);

    CPanelView& m_view;
    IToolkit& m_toolkit;
    const std::shared_ptr<contract::IContext>& m_context;
    std::string m_lastLine;
    std::uint32_t m_lastPercent = 0;
};

}
