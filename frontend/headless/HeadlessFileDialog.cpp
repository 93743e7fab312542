#include "frontend/headless/HeadlessFileDialog.h"

#include <filesystem>
#include <system_error>

namespace headless {

namespace {

bool Exists(const std::string& path) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::path(std::u8string(path.begin(), path.end())),
                                   error);
}

}

bool CHeadlessFileDialog::Accept(const std::string& path) {
    if (!m_isOpen) {
        return false;
    }
    const bool isFound = m_kind == FileDialogKind::Open && Exists(path);
    const std::string chosen =
        isFound ? path : panel::WithDefaultExtension(path, m_dialog.defaultExtension);
    if (chosen.size() >= m_dialog.pathCapacity) {
        return End(panel::FileOutcome::Failed(panel::kFilePathTooLong));
    }
    if (m_dialog.optionsHandler && !m_dialog.optionsHandler->OnFileAccepted()) {
        return false;
    }
    return End(panel::FileOutcome::Accepted(chosen));
}

void CHeadlessFileDialog::Cancel() { End(panel::FileOutcome::Cancelled()); }

void CHeadlessFileDialog::Fail(int code) { End(panel::FileOutcome::Failed(code)); }

bool CHeadlessFileDialog::End(const panel::FileOutcome& outcome) {
    if (m_isOpen) {
        m_outcome = outcome;
        m_isOpen = false;
    }
    return true;
}

}
