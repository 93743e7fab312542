#pragma once

#include "panel/control/FileDialog.h"

#include <QStringList>

#include <vector>

namespace qt {

/// The filters as the toolkit's file dialog takes them: each a description and, in brackets behind
/// it, its patterns. "*.*" becomes "*", as there are files without a dot; so does a missing
/// pattern. Blanks around a pattern do not count.
QStringList ToNameFilters(const std::vector<panel::FileFilter>& filters);

}
