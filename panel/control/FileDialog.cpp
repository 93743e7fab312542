#include "panel/control/FileDialog.h"

namespace panel {

namespace {

constexpr std::size_t kLongestExtension = 3;

std::string TakePart(std::string_view& text) {
    const std::size_t end = text.find('|');
    std::string part(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

}

std::vector<FileFilter> SplitFilter(std::string_view text) {
    std::vector<FileFilter> filters;
    for (std::string description = TakePart(text); !description.empty();
         description = TakePart(text)) {
        filters.push_back({description, TakePart(text)});
        if (filters.back().pattern.empty()) {
            break;
        }
    }
    return filters;
}

std::string WithDefaultExtension(const std::string& path, const std::string& defaultExtension) {
    const std::size_t separator = path.find_last_of("/\\");
    const std::string_view name =
        std::string_view(path).substr(separator == std::string::npos ? 0 : separator + 1);
    if (defaultExtension.empty() || name.empty() || name.find('.') != std::string_view::npos) {
        return path;
    }
    return path + "." + defaultExtension.substr(0, kLongestExtension);
}

}
