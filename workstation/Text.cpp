#include "workstation/Text.h"

#include <cctype>

namespace workstation {

QString NameOf(const std::filesystem::path& folder) {
    // A path that ends in a separator has no file name of its own.
    const auto normal = folder.lexically_normal();
    const auto name = normal.has_filename() ? normal.filename() : normal.parent_path().filename();
    return QString::fromStdString(name.string());
}

std::string DescribeOperation(std::string_view operation) {
    std::string words;
    for (const char letter : operation.substr(operation.find('.') + 1)) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == '_') {
            continue;
        }
        if (words.empty()) {
            words += static_cast<char>(std::toupper(byte));
        } else if (std::isupper(byte)) {
            words += ' ';
            words += static_cast<char>(std::tolower(byte));
        } else {
            words += letter;
        }
    }
    return words;
}

std::string WithoutMnemonic(const QString& text) {
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && ++i == text.size()) {
            break;
        }
        shown += text[i];
    }
    return shown.toStdString();
}

}
