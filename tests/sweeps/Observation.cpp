#include "tests/sweeps/Observation.h"

#include <algorithm>
#include <sstream>

namespace sweeps {

namespace {

/// A description made of lines, each with enough in it to be understood alone.
class CLines {
public:
    template <class... Parts>
    void Add(const Parts&... parts) {
        std::ostringstream line;
        (line << ... << parts);
        m_lines.push_back(line.str());
    }

    void Add(const Picture& picture) {
        for (const auto& [id, text] : picture.texts) {
            Add("text of ", id, ": \"", text, '"');
        }
        for (const auto& [id, isEnabled] : picture.enabled) {
            Add(id, isEnabled ? " is enabled" : " is disabled");
        }
        Add("Close is ", picture.isCloseVisible ? "visible" : "hidden");
        Add("progress is ", picture.isProgressVisible ? "visible" : "hidden");
        for (std::size_t row = 0; row < picture.rows.size(); ++row) {
            std::string cells;
            for (const std::string& cell : picture.rows[row].cells) {
                cells += cell + " | ";
            }
            Add("row ", row, ": ", cells, "key 0x", std::hex, picture.rows[row].key);
        }
        for (const int row : picture.selection) {
            Add("row ", row, " is selected");
        }
        Add("selection mark ", picture.mark);
    }

    void Add(const Kept& kept) {
        Add("type ", kept.type, ", mode ", kept.mode, ", refresh ",
            kept.refreshAllowed ? "allowed" : "held back");
        Add(std::hex, "network 0x", kept.ipAddress, " 0x", kept.subnetMask, " 0x", kept.gateway,
            kept.useDhcp ? " DHCP \"" : " fixed \"", kept.description, '"');
        Add("package version \"", kept.packageVersion, '"');
    }

    const std::vector<std::string>& All() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

template <class List, class Write>
void AddEach(CLines& lines, const char* what, const List& list, Write write) {
    std::size_t number = 0;
    for (const auto& item : list) {
        std::ostringstream text;
        write(text, item);
        lines.Add(what, ' ', ++number, ": ", text.str());
    }
}

constexpr auto kAsIs = [](std::ostream& out, const auto& item) { out << item; };

CLines Describe(const Observation& seen) {
    CLines lines;
    AddEach(lines, "call", seen.calls, kAsIs);
    AddEach(lines, "status", seen.statuses,
            [](std::ostream& out, contract::Status status) { out << std::hex << status.Code(); });
    AddEach(lines, "message", seen.messages, kAsIs);
    AddEach(lines, "box", seen.boxes, [](std::ostream& out, const headless::ShownBox& box) {
        out << '"' << box.text << "\", \"" << box.caption << "\", style " << box.style;
    });
    AddEach(lines, "behind box", seen.behindBoxes, [](std::ostream& out, const Picture& picture) {
        CLines behind;
        behind.Add(picture);
        for (const std::string& line : behind.All()) {
            out << line << ", ";
        }
    });
    AddEach(lines, "dialog", seen.dialogs, [](std::ostream& out, const DialogRows& rows) {
        for (const auto& [label, status] : rows) {
            out << label << " = " << status << ", ";
        }
    });
    AddEach(lines, "behind dialog", seen.enabledBehindDialogs, [](auto& out, const auto& enabled) {
        for (const auto& [id, isEnabled] : enabled) {
            out << id << (isEnabled ? " is enabled, " : " is disabled, ");
        }
    });
    AddEach(lines, "write", seen.writes, kAsIs);
    AddEach(lines, "focus", seen.focused, kAsIs);
    AddEach(lines, "log line", seen.log, kAsIs);
    lines.Add("report: ", seen.report.value_or("none"));
    lines.Add(seen.isPolling ? "polling" : "not polling");
    lines.Add(seen.picture ? "a view" : "no view");
    if (seen.picture) {
        lines.Add(*seen.picture);
    }
    lines.Add(seen.kept ? "a panel" : "no panel");
    if (seen.kept) {
        lines.Add(*seen.kept);
    }
    return lines;
}

void AddMissing(std::string& text, const char* heading, const CLines& from, const CLines& in) {
    for (const std::string& line : from.All()) {
        if (std::find(in.All().begin(), in.All().end(), line) == in.All().end()) {
            text += heading + line + "\n";
        }
    }
}

std::string Difference(const CLines& expected, const CLines& seen) {
    std::string text;
    AddMissing(text, "expected, not seen: ", expected, seen);
    AddMissing(text, "seen, not expected: ", seen, expected);
    return text.empty() ? "(differs in what is not described)" : text;
}

}

std::string DescribeWrite(const std::string& call, bool isBusy, bool isPolling,
                          std::optional<bool> isRefreshAllowed) {
    std::string text = call + (isBusy ? ", wait cursor" : "") + (isPolling ? ", polling" : "");
    if (isRefreshAllowed) {
        text += *isRefreshAllowed ? ", refresh allowed" : ", refresh held back";
    }
    return text;
}

Picture FreshPicture() {
    Picture picture;
    for (const panel::ControlId id : kTextControls) {
        picture.texts[id] = "";
    }
    picture.texts[panel::kInfoGroup] = "KRX-8 Info";
    for (const panel::ControlId id : kSwitchedControls) {
        picture.enabled[id] = false;
    }
    for (const panel::ControlId id : {panel::kIpAddressLabel, panel::kIpAddressField,
                                      panel::kHelpButton, panel::kCloseButton}) {
        picture.enabled[id] = true;
    }
    return picture;
}

std::string Difference(const Observation& expected, const Observation& seen) {
    return expected == seen ? "" : Difference(Describe(expected), Describe(seen));
}

std::string Difference(const Picture& expected, const Picture& seen) {
    if (expected == seen) {
        return "";
    }
    CLines expectedLines;
    expectedLines.Add(expected);
    CLines seenLines;
    seenLines.Add(seen);
    return Difference(expectedLines, seenLines);
}

}
