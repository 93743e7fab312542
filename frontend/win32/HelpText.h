#pragma once

#include "frontend/help/HelpFile.h"
#include "frontend/win32/WinApi.h"

#include <map>

namespace win32 {

/// Where the links of a page begin, and the topics that they lead to.
using HelpLinks = std::map<LONG, std::uint32_t>;

/// Writes a topic into a rich edit control, from its beginning.
HelpLinks ShowHelpTopic(HWND page, const help::HelpTopic& topic);
/// The same with a plain text.
HelpLinks ShowHelpText(HWND page, const std::string& text);

}
