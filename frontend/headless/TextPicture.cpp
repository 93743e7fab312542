#include "frontend/headless/TextPicture.h"

#include "frontend/headless/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace headless {

namespace {

using panel::Alignment;

constexpr std::size_t kGap = 2;

// The cells of one row, each widened to its column.
class CLine {
public:
    void Add(std::string_view text, std::size_t width, Alignment alignment) {
        const std::string cell = Printable(text);
        const std::size_t used = CountCharacters(cell);
        const std::string padding(width > used ? width - used : 0, ' ');
        m_text += alignment == Alignment::Right ? padding + cell : cell + padding;
        m_text.append(kGap, ' ');
    }

    std::string Take() {
        m_text.erase(m_text.find_last_not_of(' ') + 1);
        return std::move(m_text) + "\n";
    }

    static std::string Printable(std::string_view text) {
        std::string printable = ToShownText(text);
        std::ranges::replace_if(
            printable,
            [](char byte) { return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F'; },
            ' ');
        return printable;
    }

private:
    std::string m_text;
};

std::string LineOf(std::string_view text) {
    CLine line;
    line.Add(text, 0, Alignment::Left);
    return line.Take();
}

std::string FormatFields(const std::vector<PictureField>& fields) {
    std::size_t labelWidth = 0;
    for (const PictureField& field : fields) {
        labelWidth = std::max(labelWidth, CountCharacters(field.label));
    }
    std::string text;
    for (const PictureField& field : fields) {
        CLine line;
        line.Add(field.label, labelWidth, Alignment::Left);
        line.Add(field.value, 0, Alignment::Left);
        text += line.Take();
    }
    return text;
}

std::vector<std::size_t> ColumnWidths(const TextPicture& picture) {
    std::vector<std::size_t> widths;
    for (const PictureColumn& column : picture.columns) {
        widths.push_back(CountCharacters(column.heading));
    }
    for (const std::vector<std::string>& row : picture.rows) {
        for (std::size_t column = 0; column < std::min(row.size(), widths.size()); ++column) {
            widths[column] = std::max(widths[column], CountCharacters(row[column]));
        }
    }
    return widths;
}

std::string FormatList(const TextPicture& picture) {
    if (picture.columns.empty()) {
        return {};
    }
    const std::vector<std::size_t> widths = ColumnWidths(picture);
    const auto addTo = [&](CLine& line, std::size_t column, std::string_view text) {
        line.Add(text, widths[column], picture.columns[column].alignment);
    };
    std::string text = picture.listTitle.empty() ? std::string() : LineOf(picture.listTitle);
    CLine headings;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        addTo(headings, column, picture.columns[column].heading);
    }
    text += headings.Take();
    for (const std::vector<std::string>& row : picture.rows) {
        CLine line;
        for (std::size_t column = 0; column < std::min(row.size(), widths.size()); ++column) {
            addTo(line, column, row[column]);
        }
        text += line.Take();
    }
    return text;
}

std::string FormatLog(const TextPicture& picture) {
    if (picture.logLines.empty()) {
        return {};
    }
    std::string text = picture.logTitle.empty() ? std::string() : LineOf(picture.logTitle);
    for (const std::string& line : picture.logLines) {
        text += LineOf(line);
    }
    return text;
}

}

std::string FormatTextPicture(const TextPicture& picture) {
    const std::string parts[] = {
        (picture.title.empty() ? std::string() : LineOf(picture.title)) +
            FormatFields(picture.fields),
        FormatList(picture),
        FormatLog(picture),
    };
    std::string text;
    for (const std::string& part : parts) {
        if (!part.empty() && !text.empty()) {
            text += "\n";
        }
        text += part;
    }
    return text;
}

}
