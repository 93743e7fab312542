#pragma once

#include <string>
#include <string_view>

/// The one place where the panel's UTF-8 meets the system's UTF-16. What is not well-formed becomes
/// U+FFFD in both directions.
namespace win32 {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

/// `text` so that a control that knows mnemonics shows it as it is.
std::wstring EscapeMnemonics(std::wstring text);
/// A template's text as the user sees it.
std::wstring WithoutMnemonicMark(std::wstring text);

}
