#include "tests/sweeps/ExpectedFileDialogs.h"

#include "tests/sweeps/Expectation.h"

namespace sweeps {

bool ExpectFileDialog(CExpectation& panel, const ExpectedFileDialog& dialog) {
    DialogRows rows{{dialog.title, dialog.startFolder}, {dialog.fileName, dialog.defaultExtension}};
    rows.insert(rows.end(), dialog.filters.begin(), dialog.filters.end());
    using enum CExpectation::Prompt::Kind;
    panel.OpenDialog(dialog.saves ? SaveFile : OpenFile, std::move(rows));
    switch (panel.UserAnswers().file) {
    case FileChoice::Taken:
    case FileChoice::InNoFolder:
    case FileChoice::UnreadableMethod:
    case FileChoice::UnreadableDestination:
        return true;
    case FileChoice::WithoutPath:
        return dialog.saves;
    default:
        return false;
    }
}

}
