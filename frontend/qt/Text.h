#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace qt {

/// UTF-8 to the toolkit's text; invalid bytes become replacement characters.
QString ToQt(std::string_view text);

/// Back to UTF-8.
std::string FromQt(const QString& text);

/// `text` for a widget that takes "&" as the mark of a mnemonic: shown as it is, marking none.
QString EscapeMnemonics(QString text);

/// What the user reads of a text in which "&" marks the mnemonic.
QString WithoutMnemonicMark(QString text);

/// `text` as the title of a window, where the toolkit gives "[*]" a meaning of its own.
QString ToTitle(std::string_view text);

}
