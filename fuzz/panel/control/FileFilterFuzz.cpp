// Filters of file dialogs: a line with a chosen path, one with a default extension, and a filter
// text.

#include "frontend/qt/FileFilters.h"
#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Utf8Oracle.h"
#include "panel/control/FileDialog.h"
#include "panel/control/Utf8.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace fuzz;
using panel::FileFilter;

std::string Joined(const std::vector<FileFilter>& filters) {
    std::string text;
    for (const FileFilter& filter : filters) {
        text += filter.description + "|" + filter.pattern + "|";
    }
    return text;
}

bool HasBar(const std::string& text) { return text.find('|') != std::string::npos; }

void TrySplitting(const std::string& text) {
    const std::vector<FileFilter> filters = panel::SplitFilter(text);
    for (const FileFilter& filter : filters) {
        Require(!filter.description.empty(), "a filter has a description");
        Require(!HasBar(filter.description) && !HasBar(filter.pattern), "no part holds a bar");
        Require(!filter.pattern.empty() || &filter == &filters.back(),
                "a filter without a pattern is the last one");
    }
    // A text may lack its last bar, or its last pattern with it.
    Require((text + "||").starts_with(Joined(filters)), "the parts are those of the text");
    Require(panel::SplitFilter(Joined(filters)) == filters, "what is joined splits the same");
    const std::string rest = text.substr(std::min(Joined(filters).size(), text.size()));
    const bool endsEarly = !filters.empty() && filters.back().pattern.empty();
    Require(rest.empty() || rest.front() == '|' || endsEarly, "nothing but an empty part ends it");
}

/// The patterns that a toolkit's filter names behind its description.
QStringList Patterns(const QString& shown, const FileFilter& filter) {
    const QString description = QString::fromStdString(filter.description);
    Require(shown.startsWith(description + " (") && shown.endsWith(")"),
            "the toolkit's filter is description and patterns");
    const QString inside = shown.mid(description.size() + 2).chopped(1);
    return inside.split(' ', Qt::KeepEmptyParts);
}

/// Blanks inside a pattern are more than the toolkit's filters can say.
bool HasInnerBlank(const std::string& pattern) {
    for (const QString& part : QString::fromStdString(pattern).split(';')) {
        const QString trimmed = part.trimmed();
        if (trimmed.simplified().contains(' ') || trimmed != trimmed.simplified()) {
            return true;
        }
    }
    return false;
}

void TryToolkit(const std::string& text) {
    const std::vector<FileFilter> filters = panel::SplitFilter(text);
    const QStringList shown = qt::ToNameFilters(filters);
    Require(static_cast<std::size_t>(shown.size()) == filters.size(), "a filter stays a filter");
    for (std::size_t i = 0; i < filters.size(); ++i) {
        if (HasInnerBlank(filters[i].pattern)) {
            continue;
        }
        for (const QString& pattern : Patterns(shown[static_cast<qsizetype>(i)], filters[i])) {
            Require(!pattern.isEmpty(), "a pattern is not empty");
            Require(pattern != QStringLiteral("*.*"), "all files include those without a dot");
        }
    }
}

void TryExtension(const std::string& path, const std::string& extension) {
    const std::string whole = panel::WithDefaultExtension(path, extension);
    Require(whole.starts_with(path), "a path keeps what was typed");
    const std::string added = whole.substr(path.size());
    Require(added.empty() || added == "." + extension.substr(0, 3),
            "what is added is the extension, three letters of it");
    const bool isOneName = extension.find_first_of("/\\") == std::string::npos;
    Require(!isOneName || panel::WithDefaultExtension(whole, extension) == whole,
            "an extension is added once");
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CInput input(data, size);
    const std::string path(input.Line());
    const std::string extension(input.Line());
    const std::string text(input.Rest());
    TryExtension(path, extension);
    TrySplitting(text);
    TrySplitting(std::string(panel::CutToUtf16Units(text, 260)));
    if (IsUtf8(text)) {
        TryToolkit(text);
    }
    return 0;
}
